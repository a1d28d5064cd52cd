#pragma once

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

/// Whether everything typed into `widget` becomes its text.
inline bool takesText(const QWidget* widget)
{
    const auto* const combo = qobject_cast<const QComboBox*>(widget);
    return (combo && combo->isEditable()) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}
