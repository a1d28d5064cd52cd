#pragma once

class QMessageBox;
class QString;

/// Answers message boxes: those that a session expects, and those that it does not.
class BoxAnswers {
public:
    /// The box that waits for the user now; null when none does.
    static QMessageBox* waiting();

    /// The next box is expected, or the one that waits now.
    void expect() { ++m_expected; }
    int expected() const { return m_expected; }

    /// Accepts `box`. False when nobody expected it; `note` then says what was answered.
    bool answer(QMessageBox* box, QString* note);

private:
    int m_expected = 0;
};
