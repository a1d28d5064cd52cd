#pragma once

#include <QMap>
#include <QTableWidget>
#include <QVariant>

class QComboBox;
class QLineEdit;

/// The entries of a payload, to be written: a row each of key, type and value. The fields of row n
/// are called m_pComposeKeyLEn, m_pComposeTypeCMBn and m_pComposeValueLEn.
class PayloadTable : public QTableWidget {
    Q_OBJECT

public:
    explicit PayloadTable(const char* name, QWidget* parent = nullptr);

    void addEntry();
    /// Removes the row of the field that has the focus, or the last one.
    void removeEntry();

    /// The entries as they stand. A field that is wrong is marked, and the first one thrown as a
    /// FileError, in which the row stands in the place of a file.
    QMap<QString, QVariant> read();

    void retranslate();

private:
    QLineEdit* field(int row, int column) const;
    QComboBox* type(int row) const;
    void nameFields();
    /// Empty for a row that is right, which is added to `payload`.
    QString readRow(int row, QMap<QString, QVariant>* payload);
};
