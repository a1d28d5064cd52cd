#pragma once

#include <HostExport.h>

#include <string>
#include <vector>

/// The host's CAM data: symbols, and what belongs to a job.
namespace ZENTRA {
namespace API {

/// The shape of a symbol.
enum symbol_type : int {
    unknown = 0,
    round,        ///< r10
    square,       ///< s10
    rectangle,    ///< rect20x40
    oval,         ///< oval20x40
    diamond,      ///< di20x40
    octagon,      ///< oct20x40x5
    hexagon,      ///< hex20x40x5
    triangle,     ///< tri20x40
    ellipse,      ///< el20x40
    round_ring,   ///< ring_r60x30: outer and inner diameter
    square_ring,  ///< ring_s60x30: outer and inner side
    user,         ///< a symbol that the job itself defines
};

/// How values are shown to the user.
struct show_param {
    bool metric = false;  ///< true: micrometre and millimetre; false: mil and inch
};

/// Tells whether `name` is a standard symbol with valid sizes, or one that the current job defines.
///
/// Sizes are in mil, each above 0, decimals allowed. On success `type` is the shape and `a`, `b`
/// the first two sizes in hundredths of a mil, rounded (`b` equals `a` for a shape with one size;
/// both 0 for a user symbol). With `arc` true only round symbols are accepted. On failure the out
/// values are unknown, 0 and 0.
CANVAS_HOST_EXPORT bool identify_symbol(const std::string& name, symbol_type& type, int& a, int& b,
                                        bool arc);

/// Replaces `names` by the special symbols of `job`; empty for a job that is not known.
CANVAS_HOST_EXPORT void get_special_symbol_names(const std::string& job,
                                                 std::vector<std::string>& names);

/// Replaces `names` by the fonts of `job`; empty for a job that is not known.
CANVAS_HOST_EXPORT void get_fonts(const std::string& job, std::vector<std::string>& names);

}  // namespace API
}  // namespace ZENTRA
