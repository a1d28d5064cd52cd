#include "addfeature/fields/LineField.h"

#include "addfeature/record/RefusalGuard.h"

#include <QRegExpValidator>

using ZENTRA::UIAPI::ZTERegExp;

LineField::LineField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details)
    : ZTLineEdit(static_cast<ZTERegExp>(pattern), static_cast<QWidget*>(door.ownerContext())),
      Field(door, this, page, details)
{
    // Now, not by the page's layout later: the tab order follows the order of parenting.
    setParent(page);
    if (details.pattern) {
        setPattern(details.pattern);
    }
}

void LineField::finish()
{
    // A box that a receiver opens while it handles an entry makes Qt report the entry again.
    if (!isModified() && m_door.refusals().isHandling(this)) {
        return;
    }
    m_door.refusals().report(this, [this] { take(); });
}

void LineField::setPattern(const char* expression)
{
    // Not a literal: Qt keeps the patterns of QRegExp beyond the life of the library.
    setValidator(new QRegExpValidator(QRegExp(QString::fromLatin1(expression)), this));
}
