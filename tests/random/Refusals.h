#pragma once

#include <QLineEdit>
#include <QMessageBox>
#include <QWidget>

/// When a box may appear: a separate, simple judgement of what the dialog's fields may contain.
namespace Refusals {

/// Whether nobody refuses `text` in the field of that name. False means "not sure".
bool isSurelyLegal(const QString& field, const QString& text, const QString& type, bool isMetric);

/// The field of `dialog` whose text may be refused; empty: none.
QString doubtfulField(const QWidget& dialog, bool isMetric);

/// The object name of the chosen feature type's button.
QString chosenType(const QWidget& dialog);

/// Whether it is one of the refusals that a user can meet.
bool isKnown(const QString& title, const QString& text);

}  // namespace Refusals
