#pragma once

#include "CamApiStandIn.h"

#include <optional>

namespace CanvasHost {

/// The jobs of a job file, or nothing and an `error` that reads "<file>:<line>: <reason>". Line 0
/// stands for a file that cannot be read at all.
std::optional<std::vector<Job>> readJobFile(const QString& file, QString* error);

}  // namespace CanvasHost
