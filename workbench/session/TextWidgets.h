#pragma once

class QWidget;

/// The widgets into which text is typed.
namespace TextWidgets {

/// Whether everything typed into `widget` becomes its text.
bool hasText(const QWidget* widget);

}  // namespace TextWidgets
