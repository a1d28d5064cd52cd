#pragma once

#include "Row.h"

#include <QString>

#include <functional>
#include <optional>

/// What a check found out, or is about to do.
struct Judgement {
    enum class Kind { Step, Held, Differs, Untried };

    Kind kind = Kind::Step;
    Row row = Row::Count;  ///< of all but a step
    QString done;          ///< what was done; of an untried row: why not
    QString expected;      ///< of a difference
    QString came;

    /// One line, for another process.
    QString toLine() const;
    /// Nothing if the line was written by something else.
    static std::optional<Judgement> fromLine(const QString& line);
};

/// The step that a process announces last, when it has done everything.
inline const QString lastStep(QLatin1String("the program ends"));

using TakeJudgement = std::function<void(const Judgement&)>;
