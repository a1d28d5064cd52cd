#pragma once

#include <QMap>
#include <QStringList>
#include <QTableWidget>
#include <QVariant>
#include <QVector>

/// Rows that are read and chosen, and look alike in all tables.
void dressRows(QTableView* table);

/// Shows named values as a table of key, value and type. Changes are marked.
class RecordTable : public QTableWidget {
    Q_OBJECT

public:
    struct Row {
        QString key;
        QString value;
        QString type;
        bool changed = false;
    };

    explicit RecordTable(const char* name, QWidget* parent = nullptr);

    void showRows(const QVector<Row>& rows);
    /// Marks what changed since the previous values. The same values again leave the marks alone:
    /// an entry that is sent twice still shows what it changed.
    void showValues(const QMap<QString, QVariant>& values);
    /// The rows of `values`, those of the `changed` keys marked.
    static QVector<Row> rowsOf(const QMap<QString, QVariant>& values, const QStringList& changed);

    void retranslate();

private:
    QMap<QString, QVariant> m_values;
};
