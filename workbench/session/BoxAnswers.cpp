#include "session/BoxAnswers.h"

#include "session/InputEvents.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QAbstractButton* buttonFor(const QMessageBox* box, BoxAnswer answer)
{
    for (QAbstractButton* const button : box->buttons()) {
        if (BoxAnswers::meaning(box, button) == answer) {
            return button;
        }
    }
    return answer == BoxAnswer::Accept ? box->buttons().value(0) : nullptr;
}

QString faultOf(const BoxExpectation& expected, const QMessageBox* box)
{
    const auto fault = [](const char* part, const std::optional<QString>& wanted,
                          const QString& got) {
        return !wanted || wanted->simplified() == got
                   ? QString()
                   : QStringLiteral("expected a box of the %1 \"%2\", got \"%3\"")
                         .arg(QLatin1String(part), wanted->simplified(), got);
    };
    const QString title = fault("title", expected.title, box->windowTitle().simplified());
    return title.isEmpty() ? fault("text", expected.text, BoxAnswers::textOf(box)) : title;
}

}  // namespace

QMessageBox* BoxAnswers::waiting()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box && box->isVisible() ? box : nullptr;
}

QString BoxAnswers::textOf(const QMessageBox* box)
{
    return box->text().simplified();
}

const QStringList& BoxAnswers::words()
{
    static const QStringList all{QStringLiteral("accept"), QStringLiteral("reject"),
                                 QStringLiteral("discard")};
    return all;
}

std::optional<BoxAnswer> BoxAnswers::meaning(const QMessageBox* box, QAbstractButton* button)
{
    switch (box->buttonRole(button)) {
        case QMessageBox::AcceptRole:
        case QMessageBox::YesRole:
            return BoxAnswer::Accept;
        case QMessageBox::RejectRole:
        case QMessageBox::NoRole:
            return BoxAnswer::Reject;
        case QMessageBox::DestructiveRole:
            return BoxAnswer::Discard;
        default:
            return {};
    }
}

BoxAnswers::Answer BoxAnswers::answer(QMessageBox* box)
{
    Answer answer;
    BoxAnswer wanted = BoxAnswer::Accept;
    if (m_expected.empty()) {
        answer.note =
            QStringLiteral("answered the box \"%1\": %2").arg(box->windowTitle(), textOf(box));
    } else {
        const BoxExpectation expected = m_expected.front();
        m_expected.pop_front();
        wanted = expected.answer;
        answer.expected = true;
        answer.line = expected.line;
        answer.fault = faultOf(expected, box);
    }
    if (QAbstractButton* const button = buttonFor(box, wanted)) {
        InputEvents::click(button, button->rect().center());
    } else {
        box->done(wanted == BoxAnswer::Accept ? QDialog::Accepted : QDialog::Rejected);
    }
    return answer;
}
