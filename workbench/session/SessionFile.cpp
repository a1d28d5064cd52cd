#include "session/SessionFile.h"

#include <Files.h>

namespace {

bool isPlain(const QString& word)
{
    for (const QChar c : word) {
        if (c.isSpace() || c == QLatin1Char('"') || c == QLatin1Char('\'') ||
            c == QLatin1Char('\\')) {
            return false;
        }
    }
    return !word.isEmpty() && !word.startsWith(QLatin1Char('#'));
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

}  // namespace

void SessionFile::open(const QString& file)
{
    m_file.close();
    m_file.setFileName(file);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        throw CanvasHost::fileError(m_file);
    }
}

void SessionFile::close()
{
    m_file.close();
    m_last.clear();
}

void SessionFile::append(const QStringList& words)
{
    m_lastBegin = m_file.pos();
    m_last = words;
    write(lineOf(words));
}

void SessionFile::comment(const QString& text)
{
    m_lastBegin = m_file.pos();
    m_last.clear();
    write(QStringLiteral("# ") + text);
}

void SessionFile::amend(const QStringList& words)
{
    m_file.seek(m_lastBegin);
    m_last = words;
    write(lineOf(words));
    m_file.resize(m_file.pos());
}

void SessionFile::drop()
{
    m_file.resize(m_lastBegin);
    m_file.seek(m_lastBegin);
    m_last.clear();
}

QString SessionFile::lineOf(const QStringList& words)
{
    QStringList written;
    for (const QString& word : words) {
        written.append(isPlain(word) ? word : quoted(word));
    }
    return written.join(QLatin1Char(' '));
}

void SessionFile::write(const QString& line)
{
    m_file.write(line.toUtf8() + '\n');
    m_file.flush();
}
