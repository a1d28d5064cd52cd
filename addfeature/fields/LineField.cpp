#include "addfeature/fields/LineField.h"

#include "addfeature/record/RefusalGuard.h"

#include <QRegExpValidator>

using ZENTRA::UIAPI::ZTERegExp;

LineField::LineField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details)
    : ZTLineEdit(static_cast<ZTERegExp>(pattern), door.hostWidget()),
      Field(door, this, page, details)
{
    // Now, not by the page's layout later: the tab order follows the order of parenting.
    setParent(page);
    setReadOnly(details.m_isReadOnly);
    if (details.m_pattern) {
        setValidator(createValidator(details.m_pattern));
    }
}

QValidator* LineField::createValidator(const char* expression)
{
    // Not a literal: Qt keeps the patterns of QRegExp beyond the life of the library.
    return new QRegExpValidator(QRegExp(QString::fromLatin1(expression)), this);
}

void LineField::finish()
{
    // Nothing was typed: Qt reports because a box takes the focus, perhaps one that a receiver of
    // this field's own entry opens. A field that cannot be typed in has no other reports.
    RefusalGuard& refusals = m_door.refusals();
    if (!isModified() &&
        (refusals.isHandling(this) || (!isReadOnly() && refusals.isBoxOver(*this)))) {
        return;
    }
    refusals.report(this, [this] { take(); });
}

void LineField::change(const QString& text)
{
    m_door.refusals().run(this, [this, &text] { apply(text); });
}

void LineField::take()
{
    apply(text());
}

/// From here on the entry is pending no longer.
void LineField::apply(const QString& text)
{
    setModified(false);
    takeText(text);
}
