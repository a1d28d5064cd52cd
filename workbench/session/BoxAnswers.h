#pragma once

#include <QStringList>

#include <deque>
#include <optional>

class QAbstractButton;
class QMessageBox;

enum class BoxAnswer { Accept, Reject, Discard };

/// A message box that a session expects, and how it is answered.
struct BoxExpectation {
    BoxAnswer answer = BoxAnswer::Accept;
    std::optional<QString> title;
    std::optional<QString> text;
    int line = 0;  ///< where the session says so
};

/// Answers message boxes: those that a session expects, and those that it does not.
class BoxAnswers {
public:
    /// The outcome of a box.
    struct Answer {
        bool expected = false;
        int line = 0;   ///< of the expectation
        QString fault;  ///< "expected ..., got ..."; empty when the box was as expected
        QString note;   ///< of an unexpected box: what was answered
    };

    /// The box that waits for the user now; null when none does.
    static QMessageBox* waiting();
    /// The text of a box on one line.
    static QString textOf(const QMessageBox* box);
    /// The words that sessions use for the answers, in their order.
    static const QStringList& words();
    /// What a click on `button` answers; nothing for other buttons.
    static std::optional<BoxAnswer> meaning(const QMessageBox* box, QAbstractButton* button);

    /// Expects the next box, or the one that waits now.
    void expect(const BoxExpectation& box) { m_expected.push_back(box); }
    bool anyExpected() const { return !m_expected.empty(); }
    /// The line of the first expectation.
    int firstLine() const { return m_expected.front().line; }

    /// Answers `box` as expected, or accepts it. The box may be gone afterwards.
    Answer answer(QMessageBox* box);

private:
    std::deque<BoxExpectation> m_expected;
};
