#pragma once

#include "Runner.h"

#include <QString>

#include <vector>

/// The results as one table, in Markdown; below it, on what they were measured.
QString markdownTable(const std::vector<Result>& results, const Effort& effort);

/// Replaces the section "Table" of the page `file`. False with a message on stderr if there is no
/// such section, or the file cannot be written.
bool putInto(const QString& file, const QString& table);
