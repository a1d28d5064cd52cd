#include "addfeature/fields/LineField.h"

#include <QRegExpValidator>

using ZENTRA::UIAPI::ZTERegExp;

LineField::LineField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details)
    : ZTLineEdit(static_cast<ZTERegExp>(pattern), static_cast<QWidget*>(door.ownerContext())),
      // Into the page at once, not only by its layout: the tab order is that of arrival.
      Field(door, (setParent(page), this), details)
{
}

void LineField::setPattern(const char* expression)
{
    // No literal: Qt keeps the patterns of QRegExp beyond the life of the library.
    setValidator(new QRegExpValidator(QRegExp(QString::fromLatin1(expression)), this));
}
