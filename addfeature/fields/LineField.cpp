#include "addfeature/fields/LineField.h"

#include <QRegExpValidator>

using ZENTRA::UIAPI::ZTERegExp;

LineField::LineField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details)
    : ZTLineEdit(static_cast<ZTERegExp>(pattern), static_cast<QWidget*>(door.ownerContext())),
      Field(door, this, page, details)
{
    // At once, not only by the page's layout: the tab order follows the order of parenting.
    setParent(page);
    if (details.pattern) {
        setPattern(details.pattern);
    }
}

void LineField::setPattern(const char* expression)
{
    // No literal: Qt keeps the patterns of QRegExp beyond the life of the library.
    setValidator(new QRegExpValidator(QRegExp(QString::fromLatin1(expression)), this));
}
