#pragma once

class QWidget;

/// The pages about the workbench, in a window.
namespace Documentation {

/// Shows the first page; the window belongs to `parent`, which has one at most.
void show(QWidget* parent);

}  // namespace Documentation
