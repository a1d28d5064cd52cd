#include "Report.h"

#include <exception>

namespace {

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

/// What leaves `action` as an exception; empty: nothing.
QString thrownBy(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::exception& exception) {
        return QStringLiteral("the exception ") + quoted(QString::fromLocal8Bit(exception.what()));
    } catch (const char* text) {
        return QStringLiteral("the thrown text ") + quoted(QString::fromLocal8Bit(text));
    } catch (...) {
        return QStringLiteral("something thrown");
    }
    return QString();
}

}  // namespace

bool Report::judge(Row row, const QString& done, bool holds, const QString& expected,
                   const QString& came)
{
    m_take({holds ? Judgement::Kind::Held : Judgement::Kind::Differs, row, done, expected, came});
    return holds;
}

bool Report::expect(Row row, const QString& done, bool expected, bool came)
{
    return judge(row, done, expected == came, word(expected), word(came));
}

bool Report::expect(Row row, const QString& done, int expected, int came)
{
    return judge(row, done, expected == came, QString::number(expected), QString::number(came));
}

bool Report::expect(Row row, const QString& done, const QString& expected, const QString& came)
{
    return judge(row, done, expected == came, quoted(expected), quoted(came));
}

bool Report::expect(Row row, const QString& done, const QStringList& expected,
                    const QStringList& came)
{
    return judge(row, done, expected == came, quoted(expected), quoted(came));
}

void Report::step(const QString& what)
{
    m_take({Judgement::Kind::Step, Row::Count, what, QString(), QString()});
}

void Report::untried(Row row, const QString& why)
{
    m_take({Judgement::Kind::Untried, row, why, QString(), QString()});
}

void Report::run(Row row, const QString& what, const std::function<void()>& action)
{
    step(what);
    const QString thrown = thrownBy(action);
    if (!thrown.isEmpty()) {
        expectNothing(row, what, thrown);
    }
}

void Report::expectReturn(Row row, const QString& what, const std::function<void()>& action)
{
    step(what);
    expectNothing(row, what, thrownBy(action));
}

void Report::expectNothing(Row row, const QString& what, const QString& thrown)
{
    judge(row, what, thrown.isEmpty(), QStringLiteral("no exception"), thrown);
}
