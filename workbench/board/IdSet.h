#pragma once

#include <QBitArray>
#include <QVector>

#include <vector>

namespace Pcb {

/// Numbers that are kept for long, in little room: listed, or where that is less, as a bit for each
/// number from the least to the greatest. Copies share them.
class IdSet {
public:
    IdSet() = default;
    explicit IdSet(const std::vector<int>& ascending);

    bool isEmpty() const { return m_listed.isEmpty() && m_bits.isEmpty(); }
    std::vector<int> ids() const;  ///< ascending

private:
    QVector<int> m_listed;
    QBitArray m_bits;
    int m_first = 0;  ///< what the first bit stands for
};

}  // namespace Pcb
