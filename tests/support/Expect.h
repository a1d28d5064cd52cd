#pragma once

#include <QStringList>
#include <QVariantMap>
#include <QVector>

#include <functional>

class DialogFixture;

/// What is expected of the dialog, by name. What is not named must not happen: nothing is sent, no
/// box opens, the record stays as it was.
namespace Expect {

/// A state of a control, and the words for it.
struct State {
    QString words;
    std::function<bool(const DialogFixture&)> holds;
};

struct Expected {
    QVariantMap record;
    QVector<int> codes;
    QStringList boxes;
    QList<State> states;
};

using Expectation = std::function<void(Expected&)>;
using Expectations = QList<Expectation>;

/// The entry of the record, with its type.
Expectation record(const QString& key, const QVariant& value);

template <class... Codes>
Expectation sent(Codes... codes)
{
    return [=](Expected& expected) { expected.codes = {int(codes)...}; };
}

Expectation box(const QString& title, const QString& text);
/// A box of the host's, whose words are its own.
Expectation hostBox();
/// The box that refuses a length up to that bound in the unit of the moment.
Expectation lengthBox(int bound);
/// The box that refuses a coordinate up to that bound, either way, in the unit of the moment.
Expectation coordinateBox(int bound);

Expectation text(const QString& field, const QString& text);
Expectation chosen(const QString& combo, const QString& item);
Expectation shown(const QString& control);
Expectation hidden(const QString& control);
Expectation enabled(const QString& control);
Expectation disabled(const QString& control);
Expectation checked(const QString& button);
Expectation unchecked(const QString& button);

/// Fails where the record is another one: a key missing or too much, a value or its type another.
void sameRecord(const QVariantMap& actual, const QVariantMap& expected);

/// Fails where boxes are others than the expected ones.
void sameBoxes(const QStringList& actual, const QStringList& expected);

/// Fails where a state is another one.
void states(const DialogFixture& fixture, const QList<State>& expected);

/// Looks at the fixture as it stands: at the states that are named, and at those entries, in the
/// record and in the message that carried it last.
void holds(DialogFixture& fixture, const Expectations& expectations);

}  // namespace Expect
