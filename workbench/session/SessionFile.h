#pragma once

#include <QFile>
#include <QStringList>

/// A session that is being written. Each line is written to the file at once; the last one can
/// still be amended, so that what is typed becomes one step and yet survives a crash.
class SessionFile {
public:
    /// Empties `file`, or creates it. Throws a CanvasHost::FileError when it cannot be written.
    void open(const QString& file);

    bool isOpen() const { return m_file.isOpen(); }
    void close();

    void append(const QStringList& words);
    /// A line that players skip.
    void comment(const QString& text);
    /// Writes `words` in place of the last line.
    void amend(const QStringList& words);
    /// Removes the last line.
    void drop();
    /// The words of the last line; empty after a comment or a drop.
    const QStringList& last() const { return m_last; }

    /// The words as one line of a session, quoted where they must be.
    static QString lineOf(const QStringList& words);

private:
    void write(const QString& line);

    QFile m_file;
    qint64 m_lastBegin = 0;
    QStringList m_last;
};
