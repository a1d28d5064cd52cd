#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Another language while it lives: every text of one context in angle quotes.
class QuotingTranslator : public QTranslator {
public:
    explicit QuotingTranslator(const char* context) : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~QuotingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        return m_context == context ? '<' + QString::fromUtf8(text) + '>' : QString();
    }

private:
    QByteArray m_context;
};
