#pragma once

#include <QWidget>

/// Floor of the Add Feature dialog: the same number and kinds of plain widgets in the same layouts,
/// with the same texts, pictures, validators and states. Nothing is connected or named, and there
/// is no record.
class PlainDialog : public QWidget {
public:
    explicit PlainDialog(QWidget* parent);

private:
    QLayout* typeRow();
    QWidget* attributeRow();
    QWidget* symbolRow();
};
