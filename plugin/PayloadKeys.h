#pragma once

#include <QString>

/// The keys of what the tool strip is told about jobs and steps; their values are text. Like
/// everything that is sent they outlive the library; see ModuleNames.h.
namespace PayloadKeys {

/// Name of the job, in JobAndStep and JobOpened.
inline const QString jobName(QLatin1String("JobName"));
/// Name of the step in JobAndStep.
inline const QString step(QLatin1String("Step"));
/// Name of the step in JobOpened: the same value under another key.
inline const QString stepName(QLatin1String("StepName"));

}  // namespace PayloadKeys
