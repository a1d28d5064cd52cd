#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

/// Clicks that button of every box while it lives, or the first of a box that lacks it, and keeps
/// what was said: title|text.
class BoxButton {
public:
    explicit BoxButton(QMessageBox::StandardButton button)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, button] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                texts.append(box->windowTitle() + "|" + box->text());
                QAbstractButton* const wanted = box->button(button);
                (wanted ? wanted : box->buttons().first())->click();
            }
        });
        m_timer.start(10);
    }
    QStringList texts;

private:
    QTimer m_timer;
};
