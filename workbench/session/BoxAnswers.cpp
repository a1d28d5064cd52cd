#include "session/BoxAnswers.h"

#include "session/InputEvents.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QAbstractButton* acceptButton(const QMessageBox* box)
{
    for (QAbstractButton* const button : box->buttons()) {
        const QMessageBox::ButtonRole role = box->buttonRole(button);
        if (role == QMessageBox::AcceptRole || role == QMessageBox::YesRole) {
            return button;
        }
    }
    return box->buttons().value(0);
}

}  // namespace

QMessageBox* BoxAnswers::waiting()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box && box->isVisible() ? box : nullptr;
}

bool BoxAnswers::answer(QMessageBox* box, QString* note)
{
    const bool expected = m_expected > 0;
    m_expected -= expected ? 1 : 0;
    QAbstractButton* const button = acceptButton(box);
    if (!expected) {
        *note = QStringLiteral("answered the box \"%1\": %2")
                    .arg(box->windowTitle(), box->text().simplified());
    }
    if (button) {
        InputEvents::click(button, button->rect().center());
    } else {
        box->accept();
    }
    return expected;
}
