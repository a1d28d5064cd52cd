#pragma once

#include "Judgement.h"

#include <array>

/// Prints what the checks say, and counts.
class Printer {
public:
    /// `isVerbose`: steps and all differences of a row are printed, not only the first ones.
    explicit Printer(bool isVerbose) : m_isVerbose(isVerbose) {}

    void take(const Judgement& judgement);
    /// Prints what was left out, the rows that nothing judged, and the totals.
    void finish();
    bool isClean() const { return m_differences == 0; }

    /// Prints the table, as a list in Markdown.
    static void printTable();

private:
    struct Fate {
        bool isJudged = false;
        int differences = 0;
        QString whyNot;
    };

    void printDifference(const Judgement& judgement);

    bool m_isVerbose;
    int m_tried = 0;
    int m_differences = 0;
    std::array<Fate, size_t(Row::Count)> m_fates;
};
