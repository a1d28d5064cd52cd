#include "session/SessionParser.h"

#include "session/Steps.h"

#include <FileKind.h>
#include <Files.h>

#include <QTextCodec>

namespace {

/// Splits a line, character by character.
class Splitter {
public:
    explicit Splitter(const QString& line) : m_line(line) {}

    QStringList run()
    {
        for (; m_at < m_line.size(); ++m_at) {
            const QChar c = m_line[m_at];
            if (!m_quote.isNull()) {
                quoted(c);
            } else if (c.isSpace()) {
                endWord();
            } else if (c == QLatin1Char('#') && !m_inWord) {
                break;
            } else {
                unquoted(c);
            }
        }
        if (!m_quote.isNull()) {
            malformed(QStringLiteral("the quote %1 is not closed").arg(m_quote));
        }
        endWord();
        return m_words;
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

    void endWord()
    {
        if (m_inWord) {
            m_words.append(m_word);
        }
        m_word.clear();
        m_inWord = false;
    }

    QString m_line;
    QStringList m_words;
    int m_at = 0;
    QString m_word;
    bool m_inWord = false;
    QChar m_quote;
};

QString decoded(const QByteArray& bytes, const QString& file)
{
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        const QString good = text.left(text.indexOf(QChar::ReplacementCharacter));
        throw CanvasHost::FileError{file, good.count(QLatin1Char('\n')) + 1,
                                    QStringLiteral("the text is not UTF-8")};
    }
    return text;
}

}  // namespace

// Qt's own splitting of commands knows neither comments nor unclosed quotes.
QStringList SessionParser::split(const QString& line)
{
    return Splitter(line).run();
}

Session SessionParser::read(const QByteArray& bytes, const QString& file)
{
    Session session{file, {}};
    int number = 0;
    for (const QString& line : decoded(bytes, file).split(QLatin1Char('\n'))) {
        ++number;
        try {
            const QStringList words = split(line);
            if (!words.isEmpty()) {
                session.steps.push_back(Steps::parse(words));
                session.steps.back().line = number;
            }
        } catch (const WordError& error) {
            throw CanvasHost::FileError{file, number, error.text()};
        }
    }
    return session;
}

Session SessionParser::readFile(const QString& file)
{
    const QByteArray text = CanvasHost::readWhole(file);
    return CanvasHost::readAs(CanvasHost::FileKind::Session, text,
                              [&] { return read(text, file); });
}
