#include "session/SessionParser.h"

#include "session/StepTable.h"

#include <QFile>
#include <QTextCodec>

namespace {

/// Takes a line apart, character by character.
class Splitter {
public:
    explicit Splitter(const QString& line) : m_line(line) {}

    bool run(QStringList* words, QString* reason)
    {
        for (; m_at < m_line.size(); ++m_at) {
            const QChar c = m_line[m_at];
            if (!m_quote.isNull()) {
                quoted(c);
            } else if (c.isSpace()) {
                endWord(words);
            } else if (c == QLatin1Char('#') && !m_inWord) {
                break;
            } else {
                unquoted(c);
            }
        }
        if (!m_quote.isNull()) {
            *reason = QStringLiteral("the quote %1 is not closed").arg(m_quote);
            return false;
        }
        endWord(words);
        return true;
    }

private:
    void quoted(QChar c)
    {
        if (c == m_quote) {
            m_quote = QChar();
        } else if (c == QLatin1Char('\\') && m_quote == QLatin1Char('"')) {
            escaped();
        } else {
            m_word.append(c);
        }
    }

    void unquoted(QChar c)
    {
        m_inWord = true;
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            m_quote = c;
        } else if (c == QLatin1Char('\\')) {
            escaped();
        } else {
            m_word.append(c);
        }
    }

    void escaped()
    {
        // A backslash at the very end stands for itself.
        m_at = qMin(m_at + 1, m_line.size() - 1);
        m_word.append(m_line.at(m_at));
    }

    void endWord(QStringList* words)
    {
        if (m_inWord) {
            words->append(m_word);
        }
        m_word.clear();
        m_inWord = false;
    }

    QString m_line;
    int m_at = 0;
    QString m_word;
    bool m_inWord = false;
    QChar m_quote;
};

/// Why a step is malformed; empty when it is not.
QString faultOf(const SessionStep& step)
{
    const StepKind* const kind = StepTable::find(step.command);
    if (!kind) {
        return QStringLiteral("unknown step \"%1\"; known are %2")
            .arg(step.command, StepTable::names().join(QStringLiteral(", ")));
    }
    const int count = step.arguments.size();
    if (count < kind->least || count > kind->most) {
        return QStringLiteral("wrong number of words; usage: %1").arg(QLatin1String(kind->usage));
    }
    return kind->check ? kind->check(step.arguments) : QString();
}

}  // namespace

bool SessionParser::split(const QString& line, QStringList* words, QString* reason)
{
    return Splitter(line).run(words, reason);
}

bool SessionParser::read(const QString& text, Session* session, QString* error)
{
    int number = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        ++number;
        QStringList words;
        QString reason;
        if (split(line, &words, &reason)) {
            if (words.isEmpty()) {
                continue;
            }
            const SessionStep step{number, words.takeFirst(), words};
            reason = faultOf(step);
            session->steps.push_back(step);
        }
        if (!reason.isEmpty()) {
            *error = QStringLiteral("%1:%2: %3").arg(session->file).arg(number).arg(reason);
            return false;
        }
    }
    return true;
}

bool SessionParser::readFile(const QString& file, Session* session, QString* error)
{
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(file, in.errorString());
        return false;
    }
    const QByteArray bytes = in.readAll();
    if (in.error() != QFileDevice::NoError) {
        *error = QStringLiteral("%1: %2").arg(file, in.errorString());
        return false;
    }
    session->file = file;
    return readBytes(bytes, session, error);
}

bool SessionParser::readBytes(const QByteArray& bytes, Session* session, QString* error)
{
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        *error =
            QStringLiteral("%1:%2: the text is not UTF-8")
                .arg(session->file)
                .arg(text.left(text.indexOf(QChar::ReplacementCharacter)).count(QLatin1Char('\n')) +
                     1);
        return false;
    }
    return read(text, session, error);
}
