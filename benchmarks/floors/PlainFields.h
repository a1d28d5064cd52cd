#pragma once

#include "Panel.h"
#include "PlainRecord.h"

#include <QLineEdit>

/// Floor of a symbol field: Return stores, checks and sends the symbol, and once more when Qt says
/// that editing has finished.
class PlainSymbolWindow : public Panel {
public:
    PlainSymbolWindow(PlainRecord& record, const QString& symbol);
    /// A window that is deleted takes the focus from its field, which reports that.
    ~PlainSymbolWindow() override { m_field->disconnect(); }
    QLineEdit* field() const { return m_field; }

private:
    void returnPressed();
    void editingFinished();
    QString stored(const QString& name);

    PlainRecord& m_record;
    QLineEdit* m_field;
};

/// Floor of a count field beside a symbol: each change is checked, stored and sent.
class PlainCountWindow : public Panel {
public:
    PlainCountWindow(PlainRecord& record, const QString& symbol);
    QLineEdit* field() const { return m_field; }

private:
    void textChanged(const QString& text);

    PlainRecord& m_record;
    QLineEdit* m_symbol;
    QLineEdit* m_field;
};
