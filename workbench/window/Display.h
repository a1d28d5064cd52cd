#pragma once

#include <QApplication>

#include <memory>

/// The application object. Where there is no display Qt ends the program from within its
/// constructor; then one line says so, and the exit status is `withoutDisplay`.
std::unique_ptr<QApplication> openApplication(int& argc, char** argv, int withoutDisplay);
