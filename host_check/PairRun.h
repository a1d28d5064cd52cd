#pragma once

#include "Judgement.h"

#include <QStringList>

/// Tries the module in this host: in a process of its own, which opens the module and uses it.
class PairRun {
public:
    /// `options` are those of the other program. What it says is passed to `take`.
    PairRun(const QStringList& options, TakeJudgement take)
        : m_options(options), m_take(std::move(take))
    {
    }

    void run();

private:
    void readLine(const QByteArray& line);

    QStringList m_options;
    TakeJudgement m_take;
    QString m_step;
    bool m_isFinished = false;
};
