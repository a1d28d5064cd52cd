#pragma once

#include <QRandomGenerator>
#include <QString>

/// Sizes and lengths as a user types them, the same in each run.
class RandomNumbers {
public:
    /// Above 0, up to six digits, at most four of them behind the point, without needless zeros.
    QString next();

private:
    QRandomGenerator m_random{20261121};
};
