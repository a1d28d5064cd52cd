#pragma once

#include "Runner.h"

#include <QString>

#include <vector>

/// The results as one table of text.
QString resultTable(const std::vector<Result>& results);

/// Writes the results, with the minimum and maximum that went into them, as JSON. False with a
/// message on stderr if the file cannot be written.
bool writeJson(const std::vector<Result>& results, const Effort& effort, const QString& file);

/// Replaces the section "Table" of the page `file` with the results. False as above, or if the
/// page has no such section.
bool writeMarkdown(const std::vector<Result>& results, const Effort& effort, const QString& file);
