#pragma once

#include <HostExport.h>

#include <string>
#include <vector>

/// The host's CAM data: symbols, and the data of a job.
namespace ZENTRA {
namespace API {

/// The shape of a symbol. A standard name is a prefix and its sizes in mil, joined by "x".
enum symbol_type : int {
    unknown = 0,
    round,        ///< r10: diameter
    square,       ///< s10: side
    rectangle,    ///< rect20x40: width and height, as for all shapes below
    oval,         ///< oval20x40
    diamond,      ///< diamond20x40
    octagon,      ///< octagon20x40, or octagon20x40x5 with a corner size
    hexagon,      ///< hexagon20x40, or hexagon20x40x5 with a corner size
    triangle,     ///< triangle20x40
    ellipse,      ///< ellipse20x40
    round_ring,   ///< ring_r60x30: outer and inner diameter
    square_ring,  ///< ring_s60x30: outer and inner side
    user,         ///< a symbol that the job itself defines
};

/// How values are shown to the user.
struct show_param {
    bool metric = false;  ///< true: micrometre and millimetre; false: mil and inch
};

/// Whether `name` is a standard symbol with valid sizes, or one that the current job defines.
///
/// Sizes are in mil, each above 0, decimals allowed ("r10.5"); the inner size of a ring is smaller
/// than the outer one. Names are case-sensitive, and a rotation suffix ("r10_45") is not part of a
/// name. On success `type` is the shape and `a`, `b` the first two sizes in hundredths of a mil,
/// rounded (`b` equals `a` for a shape with one size; both are 0 for a user symbol). With `arc`
/// true only round symbols are accepted. On failure the out values are unknown, 0 and 0.
CANVAS_HOST_EXPORT bool identify_symbol(const std::string& name, symbol_type& type, int& a, int& b,
                                        bool arc);

/// Replaces `names` by the special symbols of `job`; empty for an unknown job.
CANVAS_HOST_EXPORT void get_special_symbol_names(const std::string& job,
                                                 std::vector<std::string>& names);

/// Replaces `names` by the fonts of `job`; empty for an unknown job.
CANVAS_HOST_EXPORT void get_fonts(const std::string& job, std::vector<std::string>& names);

}  // namespace API
}  // namespace ZENTRA
