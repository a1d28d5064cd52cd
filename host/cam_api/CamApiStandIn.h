#pragma once

// What only the stand-in of the CAM data API has: the jobs themselves, and faults for tests. For
// programs that know nothing of it, CANVAS_HOST_JOBS in the environment names the job file that is
// loaded at the start.

#include <cam_api.h>

#include <QString>

#include <functional>

namespace CanvasHost {

/// The kind of value that an attribute has.
enum class AttributeKind { Flag, Integer, Decimal, Text, Choice };

struct AttributeDefinition {
    std::string name;
    AttributeKind kind = AttributeKind::Text;
    std::vector<std::string> choices;  ///< of a Choice only
};

struct Job {
    std::string name;
    std::vector<std::string> steps;
    std::vector<std::string> fonts;
    std::vector<std::string> specialSymbols;
    std::vector<std::string> userSymbols;
    std::vector<std::string> specialTexts;  ///< names offered after "$$"
    std::vector<AttributeDefinition> attributes;
};

/// Replaces all jobs by those of a job file (JSON; see workbench/docs/files.md) and makes its first
/// one current. Throws a FileError (host/support/FileError.h), and then changes nothing.
CANVAS_HOST_EXPORT void loadJobs(const QString& file);
/// The whole path of the job file; empty when none was loaded.
CANVAS_HOST_EXPORT QString jobFile();

CANVAS_HOST_EXPORT const std::vector<Job>& jobs();
/// Adds `job`, or replaces the one of the same name. The first job added becomes current.
CANVAS_HOST_EXPORT void addJob(const Job& job);
CANVAS_HOST_EXPORT void clearJobs();

/// The job that the user has open; null until there is one. Valid until the jobs change.
CANVAS_HOST_EXPORT const Job* currentJob();
/// False if there is no such job.
CANVAS_HOST_EXPORT bool setCurrentJob(const std::string& name);
/// Null for an unknown name.
CANVAS_HOST_EXPORT const Job* findJob(const std::string& name);

/// Functions that replace operations of cam_api.h if they are set: they throw, return nonsense or
/// count calls.
struct CamApiOverrides {
    std::function<bool(const std::string&, ZENTRA::API::symbol_type&, int&, int&, bool)>
        identify_symbol;
    std::function<void(const std::string&, std::vector<std::string>&)> get_special_symbol_names;
    std::function<void(const std::string&, std::vector<std::string>&)> get_fonts;
};
CANVAS_HOST_EXPORT CamApiOverrides& camApiOverrides();

}  // namespace CanvasHost
