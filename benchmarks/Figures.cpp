#include "Figures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// What allocator and platform may keep for themselves, which counts as held. A leak of the smallest
// block per click or send would be several times as much, even in a quick run.
constexpr double allocatorCaches = 65536;

}  // namespace

const std::vector<Figure>& figures()
{
    // clang-format off
    static const std::vector<Figure> all = {
        {"strip",           "strip: construct, destroy",                          Kind::Ratio, 1.05, "connections by signature"},
        {"strip-shown",     "strip: construct, place, show, first paint",         Kind::Ratio, 1.05, "connections by signature"},
        {"click",           "click to message received",                          Kind::Ratio, 1.10},
        {"click-actions",   "click, against an exclusive action group",           Kind::Ratio, 0.50},
        {"incoming",        "incoming message",                                   Kind::Ratio, 1.20},
        {"record",          "record sent, log category off",                      Kind::Ratio, 1.15, "the guard of typed entries is asked"},
        {"record-log",      "record sent, log category on, null handler",         Kind::Ratio, 0.80, "a line for each entry, as in the floor"},
        {"dialog",          "dialog: construct, show, first paint, destroy",      Kind::Ratio, 1.15},
        {"key-symbol",      "Return in the symbol field to message received",     Kind::Ratio, 1.20},
        {"key-count",       "key in a pad count field to message received",       Kind::Ratio, 1.20},
        {"process",         "fresh process: library opened, strip constructed",   Kind::Ratio, 1.10, "the log's library is loaded along"},
        {"grow-51",         "attributes in one 51",                               Kind::Exponent, 1.1},
        {"grow-20001807",   "attributes in one 20001807",                         Kind::Exponent, 1.1},
        {"grow-20001811",   "symbols in one 20001811",                            Kind::Exponent, 1.1},
        {"grow-special",    "special symbols of the job at send",                 Kind::Exponent, 1.1},
        {"grow-strips",     "strips in one process",                              Kind::Exponent, 1.1},
        {"memory",          "heap after all clicks and sends",                    Kind::Bytes, allocatorCaches},
        {"board-wheel",     "board: a notch of the wheel, painted",               Kind::Ratio, 100},
        {"board-pan",       "board: a step of a pan, painted",                    Kind::Ratio, 100},
        {"board-hover",     "board: the mouse over another feature",              Kind::Ratio, 3},
        {"board-delete",    "board: one feature deleted, painted",                Kind::Ratio, 3},
        {"board-undo",      "board: the same undone",                             Kind::Ratio, 3},
    };
    // clang-format on
    return all;
}

const Figure& figure(const char* id)
{
    const auto& all = figures();
    const auto found = std::find_if(all.begin(), all.end(), [id](const Figure& candidate) {
        return std::strcmp(candidate.id, id) == 0;
    });
    if (found == all.end()) {
        std::fprintf(stderr, "no figure \"%s\"\n", id);
        std::exit(EXIT_FAILURE);
    }
    return *found;
}
