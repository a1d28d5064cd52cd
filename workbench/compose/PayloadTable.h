#pragma once

#include <QMap>
#include <QTableWidget>
#include <QVariant>

class QComboBox;
class QLineEdit;

/// Marks `field` as invalid, with `fault` as its tool tip; an empty one removes the mark.
void markFault(QWidget* field, const QString& fault);

/// Edits the entries of a payload: a row each with key, type and value. The fields of row n
/// are called m_pComposeKeyLEn, m_pComposeTypeCMBn and m_pComposeValueLEn.
class PayloadTable : public QTableWidget {
    Q_OBJECT

public:
    explicit PayloadTable(const char* name, QWidget* parent = nullptr);

    void addEntry();
    /// Removes the row of the field that has the focus, or the last one.
    void removeEntry();

    /// The entries as typed. Invalid fields are marked, and the first is thrown as a WordError.
    QMap<QString, QVariant> read();

    void retranslate();

private:
    QLineEdit* field(int row, int column) const;
    QComboBox* type(int row) const;
    void nameFields();
    /// Empty for a valid row, which is added to `payload`.
    QString readRow(int row, QMap<QString, QVariant>* payload);
};
