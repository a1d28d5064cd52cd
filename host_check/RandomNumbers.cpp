#include "RandomNumbers.h"

#include <QLocale>

QString RandomNumbers::next()
{
    const int decimals = m_random.bounded(0, 5);
    const int digits = m_random.bounded(qMax(decimals, 1), 7);
    int most = 1;
    int scale = 1;
    for (int i = 0; i < digits; ++i) {
        most *= 10;
        scale *= i < decimals ? 10 : 1;
    }
    // The shortest form has no needless zeros.
    return QString::number(double(m_random.bounded(1, most)) / scale, 'f',
                           QLocale::FloatingPointShortest);
}
