#pragma once

#include <QStringList>

/// The lines of a list in tests/contract/, without notes and empty lines.
QStringList linesOf(const char* name);
