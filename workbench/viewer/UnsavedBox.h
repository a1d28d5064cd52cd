#pragma once

#include <vector>

class QWidget;
struct OpenStep;

/// Asks whether changes are to be saved before they are lost.
namespace UnsavedBox {

/// QMessageBox::Save, Discard or Cancel.
int ask(const OpenStep& step, QWidget* parent);
/// One question for all of them: QMessageBox::SaveAll, Discard or Cancel.
int ask(const std::vector<OpenStep*>& steps, QWidget* parent);

}  // namespace UnsavedBox
