#pragma once

#include "Runner.h"

#include <QString>

#include <vector>

/// The results as one table of text.
QString resultTable(const std::vector<Result>& results);

/// Writes the results, with the least and most that went into them, as JSON. False with a message
/// on stderr when the file cannot be written.
bool writeJson(const std::vector<Result>& results, const Effort& effort, const QString& file);
