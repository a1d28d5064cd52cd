#pragma once

#include "BoxText.h"

#include <QMessageBox>
#include <QTimer>
#include <QVector>

#include <functional>

/// Answers each message box with Ok while it lives, and keeps what the box said. A box that the
/// test does not take fails it.
class BoxCatcher {
public:
    struct Box {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QStringList buttons;
        QWidget* parent;
    };

    BoxCatcher();
    ~BoxCatcher();
    BoxCatcher(const BoxCatcher&) = delete;
    BoxCatcher& operator=(const BoxCatcher&) = delete;

    /// The boxes since the last call, each as kind, title and text.
    QVector<Box> take();
    /// The same, title and text only.
    BoxTextList takeTexts();

    /// Called while a box is open, before it is answered.
    void setOnBox(std::function<void()> onBox) { m_onBox = std::move(onBox); }

private:
    void answer();

    QTimer m_timer;
    QVector<Box> m_boxes;
    std::function<void()> m_onBox;
};
