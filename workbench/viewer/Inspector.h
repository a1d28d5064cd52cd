#pragma once

#include <PluginMetaData.h>

#include <QSplitter>

#include <optional>

class QLabel;
class RecordTable;

/// Beside the board: the record and the attributes that the tool strip sent last.
class Inspector : public QSplitter {
    Q_OBJECT

public:
    explicit Inspector(QWidget* parent = nullptr);

    void showRecord(const PluginMetaData& message);
    void showAttributes(const QMap<QString, QVariant>& attributes);
    void retranslate();

private:
    RecordTable* addTable(QLabel*& label, const char* labelName, const char* tableName);

    QLabel* m_pRecordLB = nullptr;
    QLabel* m_pAttributesLB = nullptr;
    RecordTable* m_record = nullptr;
    RecordTable* m_attributes = nullptr;
    std::optional<int> m_recordCode;
};
