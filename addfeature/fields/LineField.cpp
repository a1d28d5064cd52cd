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
    // Nothing was typed: Qt reports because a box takes the focus, perhaps one that a receiver of
    // this field's own entry opens. A field that cannot be typed in has no other reports.
    const RefusalGuard& refusals = m_door.refusals();
    if (!isModified() &&
        (refusals.isHandling(this) || (!isReadOnly() && refusals.isBoxOver(*this)))) {
        return;
    }
    m_door.refusals().report(this, [this] { take(); });
}

void LineField::setPattern(const char* expression)
{
    // Not a literal: Qt keeps the patterns of QRegExp beyond the life of the library.
    setValidator(new QRegExpValidator(QRegExp(QString::fromLatin1(expression)), this));
}
