#include "board/IdSet.h"

namespace Pcb {

IdSet::IdSet(const std::vector<int>& ascending)
{
    constexpr double bitsOfNumber = 8 * sizeof(int);
    const int span = ascending.empty() ? 0 : ascending.back() - ascending.front() + 1;
    if (span >= bitsOfNumber * static_cast<double>(ascending.size())) {
        m_listed = QVector<int>(ascending.begin(), ascending.end());
        return;
    }
    m_first = ascending.front();
    m_bits.resize(span);
    for (const int id : ascending) {
        m_bits.setBit(id - m_first);
    }
}

std::vector<int> IdSet::ids() const
{
    std::vector<int> all(m_listed.begin(), m_listed.end());
    for (int i = 0; i < m_bits.size(); ++i) {
        if (m_bits.testBit(i)) {
            all.push_back(m_first + i);
        }
    }
    return all;
}

}  // namespace Pcb
