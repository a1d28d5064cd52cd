#pragma once

#include <QHash>
#include <QRectF>

#include <map>
#include <vector>

namespace Pcb {

/// Finds numbered boxes by place, in a time that grows with the number of hits.
class BoxIndex {
public:
    void insert(int number, const QRectF& box);
    /// `box` is the one that it was inserted with.
    void remove(int number, const QRectF& box);

    /// The numbers of the boxes that share a point with `area`, in no particular order.
    std::vector<int> meeting(const QRectF& area) const;

private:
    struct Entry {
        int number;
        QRectF box;
    };
    using Cell = std::pair<qint64, qint64>;
    using Grid = QHash<Cell, std::vector<Entry>>;

    /// By the exponent of their cell size. A box is in the cell of its corner, in a grid whose
    /// cells are no smaller than the box: it reaches no farther than the adjacent ones.
    std::map<int, Grid> m_grids;
};

}  // namespace Pcb
