#include "addfeature/fields/TextField.h"

#include <utility>

TextField::TextField(DialogDoor& door, QWidget* page, const Details& details, Pattern pattern,
                     const QString& text, Accepts accepts)
    : LineField(door, page, pattern, details), m_accepts(std::move(accepts))
{
    setText(text);
    store(text);
    retranslate();
    complete(SIGNAL(editingFinished()));
}

void TextField::enter(const QString& text)
{
    setText(text);
    storeAndSend();
}

void TextField::takeText(const QString& text)
{
    if (m_accepts && !m_accepts(text)) {
        clear();
        return;
    }
    storeAndSend();
}

void TextField::storeAndSend()
{
    store(text());
    send();
}
