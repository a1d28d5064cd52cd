#include "BoxCatcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>

BoxCatcher::BoxCatcher()
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
    m_timer.start(1);
}

BoxCatcher::~BoxCatcher()
{
    for (const BoxText& box : takeTexts()) {
        QTest::qFail(qPrintable("unexpected box: " + box.words()), __FILE__, __LINE__);
    }
}

void BoxCatcher::closeAfter(int milliseconds)
{
    m_delay = milliseconds;
    m_timer.stop();
    qApp->installEventFilter(this);
}

bool BoxCatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && qobject_cast<QMessageBox*>(watched)) {
        if (m_delay == atOnce) {
            QMetaObject::invokeMethod(
                this, [this] { answer(); }, Qt::QueuedConnection);
        } else {
            QTimer::singleShot(m_delay, this, [this] { answer(); });
        }
    }
    return QObject::eventFilter(watched, event);
}

void BoxCatcher::answer()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) {
        return;
    }
    QStringList buttons;
    for (QAbstractButton* const button : box->buttons()) {
        buttons.append(button->text());
    }
    m_boxes.append({box->icon(), box->windowTitle(), box->text(), buttons, box->parentWidget()});
    if (m_onBox) {
        m_onBox();
    }
    if (QAbstractButton* const ok = box->button(QMessageBox::Ok)) {
        QTest::mouseClick(ok, Qt::LeftButton);
    } else {
        box->reject();
    }
}

QVector<BoxCatcher::Box> BoxCatcher::take()
{
    return std::exchange(m_boxes, {});
}

BoxTextList BoxCatcher::takeTexts()
{
    BoxTextList texts;
    for (const Box& box : take()) {
        texts.append({box.title, box.text});
    }
    return texts;
}
