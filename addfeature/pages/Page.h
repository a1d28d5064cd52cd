#pragma once

#include "addfeature/fields/Field.h"

#include <QWidget>

#include <utility>
#include <vector>

/// A page of the dialog, or one of the text page's pages: its fields, their layout, and the rules
/// between them, each a method that a named slot of the dialog calls.
class Page : public QWidget {
public:
    /// `door` must outlive the page.
    Page(DialogDoor& door, const char* name, QWidget* parent);

    /// Sets every visible text in the current language. Changes no value and sends nothing.
    virtual void retranslate();
    /// Shows lengths and their labels in the other system of units. Changes no value of the record.
    virtual void changeUnit(bool isMetric);

protected:
    using Details = Field::Details;

    /// A new field of the page, owned by it.
    template <class FieldType, class... Arguments>
    FieldType* add(const Details& details, Arguments&&... arguments)
    {
        auto* const field =
            new FieldType(m_door, this, details, std::forward<Arguments>(arguments)...);
        m_fields.push_back(field);
        return field;
    }

    DialogDoor& m_door;

private:
    std::vector<Field*> m_fields;
};
