#pragma once

#include "addfeature/fields/LineField.h"

#include <QTest>

// What the tests of single fields have in common.

const QString anyKey("Key");
const char* const finishSlot = SLOT(on_m_pAnyLE_editingFinished());

inline Field::Details line(Sends sends)
{
    return {"m_pAnyLE", Caption::label("Any : "), anyKey, finishSlot, sends};
}
inline Field::Details upTo50000(Sends sends)
{
    return line(sends).within(0, 50000);
}

inline Field::Details other(Sends sends)
{
    return {"m_pOtherLE", Caption::label("Other"), "Other", finishSlot, sends};
}

/// Replaces the text by typing.
inline void type(QLineEdit& field, const QString& text)
{
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}
