#include "Checks.h"
#include "RandomNumbers.h"
#include "Report.h"
#include "UserActions.h"

#include <ui_api.h>

#include <QIntValidator>
#include <QLocale>

using ZENTRA::UIAPI::ZTERegExp;
using ZENTRA::UIAPI::ZTLineEdit;

namespace {

// The module knows the patterns by their numbers.
enum Pattern {
    UnsignedDecimal,
    SignedLength,
    UnsignedInteger,
    SignedDecimal,
    SignedInteger,
    SymbolName,
    FreeText,
};

/// A line edit, and how often it has emitted editingFinished.
struct Field {
    ZTLineEdit edit;
    int finished = 0;

    Field(Pattern pattern, QWidget* context) : edit(static_cast<ZTERegExp>(pattern), context)
    {
        QObject::connect(&edit, &QLineEdit::editingFinished, &edit, [this] { ++finished; });
    }
};

struct Typing {
    Pattern pattern;
    const char* typed;
    const char* shown;
};

constexpr Typing typings[] = {
    {UnsignedDecimal, "-2.5", "2.5"}, {UnsignedDecimal, "1,5", "15"},
    {SignedLength, "-1.5x", "-1.5"},  {SignedLength, "1e5", "15"},
    {UnsignedInteger, "-2.5", "25"},  {SignedDecimal, "-a12.3.4", "-12.34"},
    {SignedDecimal, "1e5", "15"},     {SignedDecimal, "1,5", "15"},
    {SignedInteger, "-2.5", "-25"},   {SymbolName, "r10 _4,5", "r10_45"},
    {SymbolName, "R1.5+-", "R1.5+-"}, {FreeText, "a B-1,5", "a B-1,5"},
};

struct Finished {
    Pattern pattern;
    const char* text;
};

// Incomplete numbers are accepted, as far as the pattern has their signs.
constexpr Finished finishedTexts[] = {
    {UnsignedDecimal, ""},  {UnsignedDecimal, "."}, {UnsignedDecimal, "1.5"},
    {SignedLength, ""},     {SignedLength, "-"},    {SignedLength, "."},
    {SignedLength, "1.5"},  {UnsignedInteger, ""},  {UnsignedInteger, "15"},
    {SignedDecimal, ""},    {SignedDecimal, "-"},   {SignedDecimal, "."},
    {SignedDecimal, "1.5"}, {SignedInteger, ""},    {SignedInteger, "-"},
    {SignedInteger, "-15"},
};

struct InBothUnits {
    Pattern pattern;
    const char* mil;
    const char* metric;
};

constexpr InBothUnits unitTexts[] = {
    {UnsignedDecimal, "10.5", "266.7"},
    {UnsignedInteger, "10", "254"},
    {SignedInteger, "-10", "-254"},
    {SymbolName, "r10", "r10"},
    {SignedLength, "10", "254"},
    {SignedDecimal, "-0.5", "-12.7"},
    {SignedDecimal, "10", "254"},
    {SignedDecimal, "50000", "1270000"},
    {SignedLength, "50000", "1270000"},
    {SignedDecimal, "0.00001", "0.000254"},
    {SignedDecimal, "0", "0"},
    {SignedDecimal, "", ""},
    {SignedDecimal, "-", "-"},
    {SignedLength, ".", "."},
    {FreeText, "10", "10"},
    {FreeText, "r10", "r10"},
};

QString named(Pattern pattern, const char* what)
{
    return QStringLiteral("ZTLineEdit of pattern %1: %2").arg(pattern).arg(QLatin1String(what));
}

void checkTyping(Report& report, QWidget* context)
{
    // The decimal separator is a point everywhere, even where the user writes a comma.
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    for (const Typing& row : typings) {
        const QString what =
            named(row.pattern, "what is shown of the typed \"%1\"").arg(QLatin1String(row.typed));
        report.run(what, [&] {
            Field field(row.pattern, context);
            UserActions::type(field.edit, QLatin1String(row.typed));
            report.expect(what, QLatin1String(row.shown), field.edit.text());
        });
    }
    QLocale::setDefault(before);
}

void checkEditing(Report& report, QWidget* context)
{
    for (const Finished& row : finishedTexts) {
        const QString what = named(row.pattern, "editingFinished after \"%1\" and Return")
                                 .arg(QLatin1String(row.text));
        report.run(what, [&] {
            Field field(row.pattern, context);
            field.edit.setText(QLatin1String(row.text));
            field.finished = 0;
            UserActions::pressKey(field.edit, Qt::Key_Return);
            report.expect(what, 1, field.finished);
        });
    }
    const QString parent = named(SignedLength, "its parent is the context");
    report.run(parent, [&] {
        const Field field(SignedLength, context);
        report.expect(parent, true, field.edit.parentWidget() == context);
    });
    const QString validator =
        named(SignedDecimal, "what a later validator of integers leaves of \"1.5\"");
    report.run(validator, [&] {
        Field field(SignedDecimal, nullptr);
        QIntValidator integers;
        field.edit.setValidator(&integers);
        UserActions::type(field.edit, QStringLiteral("1.5"));
        report.expect(validator, QStringLiteral("15"), field.edit.text());
    });
}

/// Changes the unit twice, the second time to the same one, and looks for what must not happen.
void expectChanged(Report& report, Field& field, const QString& what, bool isMetric,
                   const QString& expected)
{
    const bool wasAcceptable = field.edit.hasAcceptableInput();
    field.finished = 0;
    for (int i = 0; i < 2; ++i) {
        const QString change =
            QStringLiteral("%1: changeunit(%2) %3")
                .arg(what, isMetric ? QStringLiteral("metric") : QStringLiteral("mil"),
                     i == 0 ? QStringLiteral("once") : QStringLiteral("twice"));
        report.step(change);
        field.edit.changeunit(isMetric);
        report.expect(change, expected, field.edit.text());
    }
    report.expect(what + QStringLiteral(": changeunit() emits editingFinished"), 0, field.finished);
    report.expect(what + QStringLiteral(": acceptable after changeunit()"), wasAcceptable,
                  field.edit.hasAcceptableInput());
}

void checkUnitTexts(Report& report, const Situation& situation)
{
    for (const InBothUnits& row : unitTexts) {
        const QString own = QLatin1String(situation.isMetric ? row.metric : row.mil);
        const QString other = QLatin1String(situation.isMetric ? row.mil : row.metric);
        const QString what = named(row.pattern, "\"%1\"").arg(own);
        report.run(what, [&] {
            Field field(row.pattern, situation.context);
            field.edit.setText(own);
            expectChanged(report, field, what + QStringLiteral(" in its own unit"),
                          situation.isMetric, own);
            for (int round = 0; round < 3; ++round) {
                expectChanged(report, field, what, !situation.isMetric, other);
                expectChanged(report, field, what + QStringLiteral(" and back"), situation.isMetric,
                              own);
            }
        });
    }
}

void checkTextsComeBack(Report& report, const Situation& situation)
{
    RandomNumbers numbers;
    Field field(SignedLength, situation.context);
    bool isSame = true;
    for (int i = 0; i < 2000 && isSame; ++i) {
        const QString text = numbers.next(9);
        const QString what = named(SignedLength, "\"%1\" in the other unit").arg(text);
        report.step(what);
        field.edit.setText(text);
        field.edit.changeunit(!situation.isMetric);
        isSame = report.expect(what + QStringLiteral(" is acceptable"), true,
                               field.edit.hasAcceptableInput());
        field.edit.changeunit(situation.isMetric);
        isSame &= report.expect(what + QStringLiteral(" and back"), text, field.edit.text());
    }
}

void checkEditedText(Report& report, const Situation& situation)
{
    Field field(SignedLength, situation.context);
    const QString zeros = QStringLiteral("10.500");
    field.edit.setText(zeros);
    field.edit.changeunit(!situation.isMetric);
    field.edit.changeunit(situation.isMetric);
    report.expect(named(SignedLength, "\"10.500\" there and back"), zeros, field.edit.text());

    field.edit.changeunit(false);
    field.edit.setText(QStringLiteral("10.50"));
    field.edit.changeunit(true);
    field.edit.setText(QStringLiteral("508"));
    field.edit.changeunit(false);
    report.expect(named(SignedLength, "\"508\", typed in place of a converted text, in mil"),
                  QStringLiteral("20"), field.edit.text());
    field.edit.changeunit(true);
    report.expect(named(SignedLength, "\"508\", typed in place of a converted text, and back"),
                  QStringLiteral("508"), field.edit.text());
}

}  // namespace

void checkLineEdit(Report& report, const Situation& situation)
{
    checkTyping(report, situation.context);
    checkEditing(report, situation.context);
    checkUnitTexts(report, situation);
    report.run(named(SignedLength, "changeunit() of any number"),
               [&] { checkTextsComeBack(report, situation); });
    report.run(named(SignedLength, "changeunit() of a text that was edited"),
               [&] { checkEditedText(report, situation); });
}
