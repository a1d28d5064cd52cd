#pragma once

#include <QGridLayout>
#include <QVector>

class QToolButton;
class Receiver;

/// Floor of the tool strip: a button per tool with the same sheets, tips, names, sizes and
/// connections, made in the same order. A click checks only the clicked one and sends its code.
class PlainStrip : public QGridLayout {
public:
    PlainStrip(QWidget* parent, Receiver& receiver);

    const QVector<QToolButton*>& buttons() const { return m_buttons; }
    void checkOnly(const QToolButton* button);
    void send(int code, qint64 extra = 0);
    void retranslate();

private:
    void showMenu() {}

    Receiver& m_receiver;
    QVector<QToolButton*> m_buttons;
};
