#pragma once

#include <QMap>
#include <QTableWidget>
#include <QVariant>

/// Shows named values as a table of key, value and type. What changed since the values before is
/// marked.
class RecordTable : public QTableWidget {
    Q_OBJECT

public:
    explicit RecordTable(const char* name, QWidget* parent = nullptr);

    void showValues(const QMap<QString, QVariant>& values);
    void retranslate();

private:
    QMap<QString, QVariant> m_values;
};
