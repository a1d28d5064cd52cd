#pragma once

#include <QStringList>
#include <QVariantMap>
#include <QVector>

#include <functional>

class DialogFixture;

/// What is expected of the dialog, by name. What is not named must not happen: nothing is sent, no
/// box opens, the record stays as it was.
namespace Expect {

/// A state of a control, with a description.
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
/// A box of the host's, with its own words.
Expectation hostBox();
/// The box that refuses a length up to that bound in the current unit.
Expectation lengthBox(int bound);
/// The box that refuses a coordinate up to that bound, either way, in the current unit.
Expectation coordinateBox(int bound);

Expectation text(const QString& field, const QString& text);
Expectation chosen(const QString& combo, const QString& item);
Expectation shown(const QString& control);
Expectation hidden(const QString& control);
Expectation enabled(const QString& control);
Expectation disabled(const QString& control);
Expectation checked(const QString& button);
Expectation unchecked(const QString& button);

/// Fails if the record differs: a key missing or extra, a different value or type.
void sameRecord(const QVariantMap& actual, const QVariantMap& expected);

/// Fails if the boxes are not the expected ones.
void sameBoxes(const QStringList& actual, const QStringList& expected);

/// Fails if a state differs.
void states(const DialogFixture& fixture, const QList<State>& expected);

/// Checks the fixture as it is now: the named states, and those entries in the record and in the
/// message that carried it last.
void holds(DialogFixture& fixture, const Expectations& expectations);

}  // namespace Expect
