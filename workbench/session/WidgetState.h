#pragma once

#include <QString>

class QWidget;

/// The state of a widget as text, for sessions.
namespace WidgetState {

/// `property` is a property by Qt's name, or one of these, whose meaning follows from the kind of
/// widget: "text", "current" (the item that is chosen), "items" (of a combo box, with commas) and
/// "tip". A StepFault if the widget does not have it, or it has no text form.
QString read(const QWidget* widget, const QString& property);

}  // namespace WidgetState
