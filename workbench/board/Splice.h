#pragma once

#include <algorithm>
#include <iterator>
#include <vector>

namespace Pcb {

/// What changes at one place of a list: `count` entries from `index` on are replaced by others.
template <class T>
struct Splice {
    int index;
    int count;
    std::vector<T> entries;
};

/// What changes of a list: in ascending order, none touching another's entries. Indexes are those
/// of the list as it was before.
template <class T>
using Splices = std::vector<Splice<T>>;

template <class T>
void substitute(const Splices<T>& splices, std::vector<T>& list)
{
    const bool keepsPlaces =
        std::all_of(splices.begin(), splices.end(), [](const Splice<T>& splice) {
            return splice.count == static_cast<int>(splice.entries.size());
        });
    if (keepsPlaces) {
        for (const Splice<T>& splice : splices) {
            std::copy(splice.entries.begin(), splice.entries.end(), list.begin() + splice.index);
        }
        return;
    }
    const int first = splices.front().index;
    std::vector<T> rest(std::make_move_iterator(list.begin() + first),
                        std::make_move_iterator(list.end()));
    list.erase(list.begin() + first, list.end());
    auto next = std::make_move_iterator(rest.begin());
    for (const Splice<T>& splice : splices) {
        const auto place = std::make_move_iterator(rest.begin() + (splice.index - first));
        list.insert(list.end(), next, place);
        list.insert(list.end(), splice.entries.begin(), splice.entries.end());
        next = place + splice.count;
    }
    list.insert(list.end(), next, std::make_move_iterator(rest.end()));
}

/// What restores `list` as it is now, once `splices` have been applied to it.
template <class T>
Splices<T> inverse(const Splices<T>& splices, const std::vector<T>& list)
{
    Splices<T> back;
    int moved = 0;
    for (const Splice<T>& splice : splices) {
        const auto first = list.begin() + splice.index;
        const int count = static_cast<int>(splice.entries.size());
        back.push_back({splice.index + moved, count, {first, first + splice.count}});
        moved += count - splice.count;
    }
    return back;
}

}  // namespace Pcb
