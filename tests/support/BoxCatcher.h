#pragma once

#include "BoxText.h"

#include <QMessageBox>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>

/// Answers each message box with Ok while it lives, and keeps what the box said. A box that the
/// test does not take fails it.
class BoxCatcher : public QObject {
public:
    struct Box {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QStringList buttons;
        QWidget* parent;
    };

    BoxCatcher();
    ~BoxCatcher() override;

    /// The boxes since the last call, each as kind, title and text.
    QVector<Box> take();
    /// The same, title and text only.
    BoxTextList takeTexts();

    /// Called while a box is open, before it is answered.
    void setOnBox(std::function<void()> onBox) { m_onBox = std::move(onBox); }

    /// How long a box stays open, in milliseconds, or atOnce: until the first turn of its event
    /// loop. Without it: until the catcher's next look, which comes each millisecond.
    void closeAfter(int milliseconds);
    static constexpr int atOnce = -1;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void answer();

    QTimer m_timer;
    QVector<Box> m_boxes;
    std::function<void()> m_onBox;
    int m_delay = 0;
};
