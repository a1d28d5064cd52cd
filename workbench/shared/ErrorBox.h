#pragma once

#include <FileError.h>

class QWidget;

/// Tells the user why something failed, and in which file; `title` says what failed.
void showError(QWidget* parent, const QString& title, const CanvasHost::FileError& error);
