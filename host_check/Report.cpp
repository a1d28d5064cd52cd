#include "Report.h"

#include <QTextStream>

#include <cmath>
#include <exception>

namespace {

/// Texts of the host may have several lines.
void print(QString line)
{
    line.replace('\n', QLatin1String("\\n")).replace('\r', QLatin1String("\\r"));
    QTextStream(stdout) << line << '\n';
}

QString quoted(const QString& text)
{
    return '"' + text + '"';
}

QString quoted(const QStringList& texts)
{
    QStringList all;
    for (const QString& text : texts) {
        all.append(quoted(text));
    }
    return '[' + all.join(QStringLiteral(", ")) + ']';
}

QString word(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

}  // namespace

bool Report::expect(const QString& what, bool expected, bool got)
{
    return compared(expected == got, what, word(expected), word(got));
}

bool Report::expect(const QString& what, int expected, int got)
{
    return compared(expected == got, what, QString::number(expected), QString::number(got));
}

bool Report::expect(const QString& what, double expected, double got)
{
    const bool isSame = std::abs(got - expected) <= 1e-9 * std::abs(expected);
    return compared(isSame, what, QString::number(expected, 'g', 12),
                    QString::number(got, 'g', 12));
}

bool Report::expect(const QString& what, const QString& expected, const QString& got)
{
    return compared(expected == got, what, quoted(expected), quoted(got));
}

bool Report::expect(const QString& what, const QStringList& expected, const QStringList& got)
{
    return compared(expected == got, what, quoted(expected), quoted(got));
}

bool Report::compared(bool isSame, const QString& what, const QString& expected, const QString& got)
{
    ++m_tried;
    if (!isSame) {
        ++m_differences;
        print(QStringLiteral("differs: %1: expected %2, got %3").arg(what, expected, got));
    }
    return isSame;
}

void Report::step(const QString& what)
{
    if (m_isVerbose) {
        print(QStringLiteral("trying: ") + what);
    }
}

void Report::untried(const QString& what, const QString& why)
{
    ++m_untried;
    print(QStringLiteral("not tried: %1: %2").arg(what, why));
}

void Report::untriedWithoutJob(const QString& what)
{
    untried(what, QStringLiteral("no --job is given"));
}

void Report::run(const QString& what, const std::function<void()>& action)
{
    step(what);
    QString thrown;
    try {
        action();
    } catch (const std::exception& exception) {
        thrown =
            QStringLiteral("the exception ") + quoted(QString::fromLocal8Bit(exception.what()));
    } catch (const char* text) {
        thrown = QStringLiteral("the thrown text ") + quoted(QString::fromLocal8Bit(text));
    } catch (...) {
        thrown = QStringLiteral("something thrown");
    }
    if (!compared(thrown.isEmpty(), what, QStringLiteral("no exception"), thrown)) {
        untried(QStringLiteral("the rest of ") + what, QStringLiteral("see the line above"));
    }
}

void Report::finish() const
{
    print(QStringLiteral("%1 tried, %2 different, %3 not tried")
              .arg(m_tried)
              .arg(m_differences)
              .arg(m_untried));
}
