#pragma once

#include <QString>

class QWidget;

/// The state of a widget as text, for sessions.
namespace WidgetState {

/// `property` is a property by Qt's name, or one of these, whose meaning follows from the kind of
/// widget: "text", "current" (the item that is chosen), "items" (of a combo box, with commas) and
/// "tip". False, with a reason, when the widget has none such, or it has no form as a text.
bool read(const QWidget* widget, const QString& property, QString* value, QString* reason);

}  // namespace WidgetState
