#pragma once

#include "DialogFixture.h"

#include <QVector>

/// What a user enters in a field of the dialog, and what results.
class Entry {
public:
    /// `typeButton` is the one of the field's page.
    Entry(const QString& field, const QString& typeButton)
        : m_field(field), m_type(typeButton), m_reach({Click(typeButton)})
    {
    }

    /// What shows the field on its page.
    Entry& reachedBy(const Steps& steps) { return m_reach = steps, *this; }
    Entry& typed(const QString& text) { return m_typed = text, *this; }
    Entry& pressed(Qt::Key key) { return m_key = key, *this; }
    Entry& chosen(const QString& item) { return m_item = item, *this; }
    Entry& stores(const QString& key, const QString& value)
    {
        return m_recordKey = key, m_stored = value, *this;
    }
    Entry& refusedBy(const BoxText& box) { return m_boxes.append(box), *this; }

    QString field() const { return m_field; }
    QString type() const { return m_type; }
    QString recordKey() const { return m_recordKey; }
    QString stored() const { return m_stored; }
    /// The one that refuses it, if it is refused.
    BoxTextList boxes() const { return m_boxes; }
    bool isRefused() const { return !m_boxes.isEmpty(); }
    bool isTyped() const { return !m_typed.isEmpty(); }
    /// Field, what is entered, and page.
    QString words() const;

    void reachField(const DialogFixture& fixture) const;
    /// Leaves the focus in the field.
    void enter(const DialogFixture& fixture) const;

private:
    QString m_field;
    QString m_type;
    Steps m_reach;
    QString m_typed;
    QString m_item;
    Qt::Key m_key = Qt::Key_unknown;
    QString m_recordKey;
    QString m_stored;
    BoxTextList m_boxes;
};

/// All editable controls; those that refuse something appear again with that.
const QVector<Entry>& allEntries();
