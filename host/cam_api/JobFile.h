#pragma once

#include "CamApiStandIn.h"

namespace CanvasHost {

/// The jobs of a job file; throws a FileError.
std::vector<Job> readJobFile(const QString& file);

}  // namespace CanvasHost
