#pragma once

#include <QLineEdit>
#include <QMessageBox>
#include <QWidget>

/// When a box may appear: an own, simple judgement of what may stand in the dialog's fields.
namespace Refusals {

/// Whether `text` in the field of that name is one that nobody refuses. False means "not sure".
bool isSurelyLegal(const QString& field, const QString& text, const QString& type, bool isMetric);

/// The field of `dialog` whose text may be refused; empty: there is none.
QString doubtfulField(const QWidget& dialog, bool isMetric);

/// The object name of the chosen feature type's button.
QString chosenType(const QWidget& dialog);

/// Whether it is one of the refusals that a user can meet.
bool isKnown(const QString& title, const QString& text);

}  // namespace Refusals
