#include "Printer.h"

#include <QStringList>
#include <QTextStream>

namespace {

constexpr int mostPrinted = 3;  // differences of a row; the others only say the same

/// Texts of the host may have several lines.
void print(QString line)
{
    line.replace('\n', QLatin1String("\\n")).replace('\r', QLatin1String("\\r"));
    QTextStream(stdout) << line << '\n';
}

QString statementOf(Row row)
{
    const Reliance& reliance = ::reliance(row);
    return QStringLiteral("%1 %2").arg(QString::fromLatin1(reliance.subject),
                                       QString::fromLatin1(reliance.statement));
}

QString placesOf(Row row)
{
    QStringList places;
    for (const Place& place : reliance(row).places) {
        places.append(
            QStringLiteral("%1: %2").arg(QLatin1String(place.file), QLatin1String(place.function)));
    }
    return places.join(QStringLiteral(", "));
}

QString whyNotJudged(Row row)
{
    switch (reliance(row).judgedBy) {
        case JudgedBy::Calls:
            return QStringLiteral("no check came so far");
        case JudgedBy::Pair:
            return QStringLiteral("no --module is given, or it did not get that far");
        case JudgedBy::PairInBoth:
            return QStringLiteral(
                "no --module or no --switch-unit is given, or it did not get that far");
        case JudgedBy::Nothing:
            return QStringLiteral(
                "messages cannot be seen from outside: it takes modules that receive them");
    }
    return QString();
}

const char* markOf(JudgedBy judgedBy)
{
    switch (judgedBy) {
        case JudgedBy::Calls:
            return "";
        case JudgedBy::Pair:
            return " Judged with `--module`.";
        case JudgedBy::PairInBoth:
            return " Judged with `--module` and `--switch-unit`.";
        case JudgedBy::Nothing:
            return " Not judged.";
    }
    return "";
}

}  // namespace

void Printer::take(const Judgement& judgement)
{
    if (judgement.kind == Judgement::Kind::Step) {
        if (m_isVerbose) {
            print(QStringLiteral("trying: ") + judgement.done);
        }
        return;
    }
    Fate& fate = m_fates[size_t(judgement.row)];
    if (judgement.kind == Judgement::Kind::Untried) {
        fate.whyNot = judgement.done;
        return;
    }
    fate.isJudged = true;
    ++m_tried;
    if (judgement.kind == Judgement::Kind::Differs) {
        ++m_differences;
        if (++fate.differences <= mostPrinted || m_isVerbose) {
            printDifference(judgement);
        }
    }
}

void Printer::printDifference(const Judgement& judgement)
{
    print(QStringLiteral("differs: %1").arg(statementOf(judgement.row)));
    print(QStringLiteral("  done: %1: expected %2, came %3")
              .arg(judgement.done, judgement.expected, judgement.came));
    print(QStringLiteral("  the user sees: %1").arg(QLatin1String(reliance(judgement.row).seen)));
    print(QStringLiteral("  relied on by: %1").arg(placesOf(judgement.row)));
}

void Printer::finish()
{
    int untried = 0;
    for (int i = 0; i < int(Row::Count); ++i) {
        const Fate& fate = m_fates[size_t(i)];
        if (fate.differences > mostPrinted && !m_isVerbose) {
            print(QStringLiteral("differs %1 times in all: %2")
                      .arg(fate.differences)
                      .arg(statementOf(Row(i))));
        }
        if (!fate.isJudged || !fate.whyNot.isEmpty()) {
            ++untried;
            print(QStringLiteral("not tried%1: %2: %3")
                      .arg(fate.isJudged ? QStringLiteral(" in part") : QString(),
                           statementOf(Row(i)),
                           fate.whyNot.isEmpty() ? whyNotJudged(Row(i)) : fate.whyNot));
        }
    }
    print(QStringLiteral("%1 tried, %2 different, %3 not tried")
              .arg(m_tried)
              .arg(m_differences)
              .arg(untried));
}

void Printer::printTable()
{
    for (int i = 0; i < int(Row::Count); ++i) {
        const Reliance& row = reliance(Row(i));
        QTextStream(stdout) << "- **" << row.subject << "** " << row.statement << ". *If not:* "
                            << row.seen << '.' << markOf(row.judgedBy) << " (`"
                            << placesOf(Row(i)).replace(QLatin1String(", "), QLatin1String("`, `"))
                            << "`)\n";
    }
}
