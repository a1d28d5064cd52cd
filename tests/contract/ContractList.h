#pragma once

#include <QStringList>

/// The lines of a list in this folder, without notes and empty lines.
QStringList linesOf(const char* name);
