#include "Checks.h"
#include "Numbers.h"
#include "RandomNumbers.h"
#include "Report.h"

#include <ui_api.h>

#include <QIntValidator>
#include <QLocale>
#include <QRegExpValidator>
#include <QTest>

#include <memory>

using ZENTRA::UIAPI::ZTERegExp;
using ZENTRA::UIAPI::ZTLineEdit;

namespace {

/// The module knows the patterns by their numbers.
enum Pattern { Length = 1, Decimal = 3, Text = 6 };

constexpr Pattern numeric[] = {Length, Decimal};

/// A line edit in a page, as the module uses it, and how often it has reported.
struct Field {
    QWidget page;
    ZTLineEdit* edit;
    int finished = 0;

    Field(Pattern pattern, const Situation& situation)
        : edit(new ZTLineEdit(static_cast<ZTERegExp>(pattern), situation.context))
    {
        edit->setParent(&page);
        QObject::connect(edit, &QLineEdit::editingFinished, &page, [this] { ++finished; });
    }

    void type(const QString& text)
    {
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    void pressReturn() { QTest::keyClick(edit, Qt::Key_Return); }
    void leave()
    {
        QFocusEvent event(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(edit, &event);
    }
    QString converted(bool isMetric)
    {
        edit->changeunit(isMetric);
        return edit->text();
    }
};

QString named(Pattern pattern, const QString& what)
{
    return QStringLiteral("pattern %1: %2").arg(pattern).arg(what);
}

QString unitNamed(bool isMetric)
{
    return isMetric ? QStringLiteral("metric units") : QStringLiteral("mil");
}

struct Entered {
    Pattern pattern;
    const char* text;
    Row row = Row::EditKeepsText;
};

// What the module sets, and what its fields are for.
constexpr Entered settings[] = {{Length, "0"},     {Decimal, "0"}, {Decimal, "609.6"},
                                {Decimal, "5080"}, {Text, ""},     {Text, "standard"},
                                {Text, "r254_45"}, {Text, "$$JOB"}};
constexpr Entered typings[] = {{Length, "10"},
                               {Length, "-12.5"},
                               {Decimal, "10"},
                               {Decimal, "12.5"},
                               {Text, "r10.5_45"},
                               {Text, "abc"},
                               {Length, "100001", Row::EditTakesRefused},
                               {Length, "-2540001", Row::EditTakesRefused},
                               {Decimal, "50001", Row::EditTakesRefused},
                               {Decimal, "1270001", Row::EditTakesRefused},
                               {Decimal, "400", Row::EditTakesRefused},
                               {Decimal, "-101", Row::EditTakesRefused}};

void checkEntries(Report& report, const Situation& situation)
{
    for (const Entered& row : settings) {
        const QString text = QLatin1String(row.text);
        const QString what = named(row.pattern, QStringLiteral("setText(\"%1\")").arg(text));
        report.run(row.row, what, [&] {
            Field field(row.pattern, situation);
            field.edit->setText(text);
            report.expect(row.row, what, text, field.edit->text());
        });
    }
    for (const Entered& row : typings) {
        const QString text = QLatin1String(row.text);
        const QString what = named(row.pattern, QStringLiteral("\"%1\" is typed").arg(text));
        report.run(row.row, what, [&] {
            Field field(row.pattern, situation);
            field.type(text);
            report.expect(row.row, what, text, field.edit->text());
            field.pressReturn();
            report.expect(Row::EditIsReported, what + QStringLiteral(", Return: reports"), 1,
                          field.finished);
            report.expect(row.row, what + QStringLiteral(", Return"), text, field.edit->text());
        });
        report.run(row.row, what + QStringLiteral(", left"), [&] {
            Field field(row.pattern, situation);
            field.type(text);
            field.leave();
            report.expect(Row::EditIsReported, what + QStringLiteral(", left: reports"), 1,
                          field.finished);
            report.expect(row.row, what + QStringLiteral(", left"), text, field.edit->text());
        });
    }
}

/// Whether `text` is `value` to six digits, written with a decimal point and without an exponent.
bool isNumber(const QString& text, double value)
{
    const bool isPlain = !text.isEmpty() && !text.contains('e', Qt::CaseInsensitive);
    return isPlain && isSameToSixDigits(text.toDouble(), value);
}

void checkConversion(Report& report, const Situation& situation, Pattern pattern,
                     const QString& own)
{
    const bool other = !situation.isMetric;
    const QString what = named(pattern, QStringLiteral("\"%1\"").arg(own));
    const QString there = what + QStringLiteral(" in ") + unitNamed(other);
    const double expected = other ? own.toDouble() * factor : own.toDouble() / factor;
    report.run(Row::EditConverts, what, [&] {
        Field field(pattern, situation);
        field.edit->setText(own);
        report.expect(Row::EditStartsInUnit,
                      what + QStringLiteral(" in ") + unitNamed(situation.isMetric), own,
                      field.converted(situation.isMetric));
        const QString once = field.converted(other);
        report.judge(Row::EditConverts, there, isNumber(once, expected),
                     QString::number(expected, 'g', 12), once);
        report.expect(Row::EditConvertsOnce, there + QStringLiteral(" twice"), once,
                      field.converted(other));
        const QString back = field.converted(situation.isMetric);
        report.judge(Row::EditComesBack, there + QStringLiteral(" and back"),
                     isNumber(back, own.toDouble()), own, back);
        report.expect(Row::EditIsQuiet, there + QStringLiteral(" and back: reports"), 0,
                      field.finished);
    });
}

void checkTypedConversion(Report& report, const Situation& situation, Pattern pattern)
{
    const QString what = named(pattern, QStringLiteral("\"10\" is typed, then the unit changes"));
    report.run(Row::EditIsQuiet, what, [&] {
        Field field(pattern, situation);
        field.type(QStringLiteral("10"));
        field.edit->changeunit(!situation.isMetric);
        report.expect(Row::EditIsQuiet, what + QStringLiteral(": reports"), 0, field.finished);
    });
}

void checkRandomConversions(Report& report, const Situation& situation)
{
    RandomNumbers numbers;
    bool isSame = true;
    for (int i = 0; i < 300 && isSame; ++i) {
        const QString text = numbers.next();
        const QString what = named(Decimal, QStringLiteral("\"%1\" there and back").arg(text));
        report.run(Row::EditComesBack, what, [&] {
            Field field(Decimal, situation);
            field.edit->setText(text);
            field.edit->changeunit(!situation.isMetric);
            const QString back = field.converted(situation.isMetric);
            isSame =
                report.judge(Row::EditComesBack, what, isNumber(back, text.toDouble()), text, back);
        });
    }
}

void checkLocale(Report& report, const Situation& situation, Pattern pattern)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString what = named(pattern, QStringLiteral("where a comma is written"));
    report.run(Row::EditDecimalPoint, what, [&] {
        Field field(pattern, situation);
        field.type(QStringLiteral("12.5"));
        report.expect(Row::EditDecimalPoint, what + QStringLiteral(", \"12.5\" is typed"),
                      QStringLiteral("12.5"), field.edit->text());
        const double expected = situation.isMetric ? 12.5 / factor : 12.5 * factor;
        const QString came = field.converted(!situation.isMetric);
        report.judge(Row::EditDecimalPoint,
                     what + QStringLiteral(", \"12.5\" in ") + unitNamed(!situation.isMetric),
                     isNumber(came, expected), QString::number(expected, 'g', 12), came);
    });
    QLocale::setDefault(before);
}

void checkPlace(Report& report, const Situation& situation)
{
    const QString what = QStringLiteral("setParent(page)");
    report.run(Row::EditParent, what, [&] {
        Field field(Decimal, situation);
        field.page.show();
        field.edit->show();
        report.expect(Row::EditParent, what + QStringLiteral(": it is in the page"), true,
                      field.edit->parentWidget() == &field.page && !field.edit->isWindow());
        report.expect(Row::EditParent, what + QStringLiteral(": is visible"), true,
                      field.edit->isVisible());
    });
}

void checkValidators(Report& report, const Situation& situation)
{
    const QString integers = named(Decimal, QStringLiteral("a validator of integers, \"1.5\""));
    report.run(Row::EditValidator, integers, [&] {
        Field field(Decimal, situation);
        field.edit->setValidator(new QIntValidator(field.edit));
        field.type(QStringLiteral("1.5"));
        report.expect(Row::EditValidator, integers, QStringLiteral("15"), field.edit->text());
    });
    const QString symbols = named(Text, QStringLiteral("a validator of symbols, \"xr10_4\""));
    report.run(Row::EditValidator, symbols, [&] {
        Field field(Text, situation);
        field.edit->setValidator(new QRegExpValidator(
            QRegExp(QStringLiteral("[rs]?|[rs][0-9]+(\\.[0-9]+)?")), field.edit));
        field.type(QStringLiteral("xr10_4"));
        report.expect(Row::EditValidator, symbols, QStringLiteral("r104"), field.edit->text());
        field.edit->setValidator(
            new QRegExpValidator(QRegExp(QStringLiteral("[a-z0-9_]*")), field.edit));
        field.type(QStringLiteral("logo_1"));
        report.expect(Row::EditValidator,
                      symbols + QStringLiteral(", then a wider one, \"logo_1\""),
                      QStringLiteral("logo_1"), field.edit->text());
    });
}

}  // namespace

void checkLineEdit(Report& report, const Situation& situation)
{
    checkEntries(report, situation);
    for (const Pattern pattern : numeric) {
        for (const char* const text : {"10", "254", "0.5", "1000", "50000", "0"}) {
            checkConversion(report, situation, pattern, QLatin1String(text));
        }
        checkTypedConversion(report, situation, pattern);
        checkLocale(report, situation, pattern);
    }
    checkConversion(report, situation, Length, QStringLiteral("-10"));
    checkRandomConversions(report, situation);
    checkPlace(report, situation);
    checkValidators(report, situation);
}
