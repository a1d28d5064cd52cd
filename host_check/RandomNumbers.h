#pragma once

#include <QRandomGenerator>
#include <QString>

/// Numbers as a user types them, the same in each run.
class RandomNumbers {
public:
    /// Up to `mostDigits` digits with the point anywhere, without needless zeros.
    QString next(int mostDigits);

private:
    QRandomGenerator m_random{20261121};
};
