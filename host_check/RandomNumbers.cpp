#include "RandomNumbers.h"

QString RandomNumbers::next(int mostDigits)
{
    const int digits = m_random.bounded(1, mostDigits + 1);
    QString text;
    for (int i = 0; i < digits; ++i) {
        const int least = i == 0 || i == digits - 1 ? 1 : 0;
        text += QString::number(m_random.bounded(least, 10));
    }
    const int place = m_random.bounded(-4, digits + 5);
    if (place <= 0) {
        return QStringLiteral("0.") + QString(-place, '0') + text;
    }
    return place < digits ? text.insert(place, '.') : text.leftJustified(place, '0');
}
