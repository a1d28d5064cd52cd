#include "compose/FaultMark.h"

#include <QPalette>
#include <QWidget>

void FaultMark::set(QWidget* field, const QString& fault)
{
    QPalette palette;
    if (!fault.isEmpty()) {
        palette.setColor(QPalette::Base, QColor(0xff, 0xd6, 0xd6));
        palette.setColor(QPalette::Button, QColor(0xff, 0xd6, 0xd6));
        palette.setColor(QPalette::Text, QColor(0x5a, 0x00, 0x00));
    }
    field->setPalette(palette);
    field->setToolTip(fault);
}
