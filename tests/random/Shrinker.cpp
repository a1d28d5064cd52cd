#include "Shrinker.h"

QVector<quint32> shrunk(QVector<quint32> numbers,
                        const std::function<bool(const QVector<quint32>&)>& fails)
{
    int length = numbers.size();
    while (length > 0) {
        bool hasShrunk = false;
        // From the end: the last steps are least often needed.
        for (int start = numbers.size() - length; start > -length; start -= length) {
            QVector<quint32> shorter = numbers;
            const int first = qMax(0, start);
            shorter.remove(first, qMin(length + qMin(0, start), shorter.size() - first));
            if (shorter.size() < numbers.size() && fails(shorter)) {
                numbers = shorter;
                hasShrunk = true;
            }
        }
        length = hasShrunk && length == 1 ? 1 : length / 2;
    }
    return numbers;
}
