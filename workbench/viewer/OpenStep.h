#pragma once

#include <QString>

class Document;

/// A step that the user works on.
struct OpenStep {
    /// "job / step".
    static QString nameOf(const QString& job, const QString& step);

    Document* document;
    QString jobFile;
    QString job;
    QString step;
    QString file;  ///< empty: it was never saved
};
