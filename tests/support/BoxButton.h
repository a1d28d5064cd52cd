#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

/// Clicks that button of every box while it lives, and keeps what was said: title|text.
class BoxButton {
public:
    explicit BoxButton(QMessageBox::StandardButton button)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, button] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                texts.append(box->windowTitle() + "|" + box->text());
                box->button(button)->click();
            }
        });
        m_timer.start(10);
    }
    QStringList texts;

private:
    QTimer m_timer;
};
