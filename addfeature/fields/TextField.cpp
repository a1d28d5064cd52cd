#include "addfeature/fields/TextField.h"

TextField::TextField(DialogDoor& door, QWidget* page, const Details& details, Pattern pattern,
                     const QString& text)
    : LineField(door, page, pattern, details)
{
    setText(text);
    store(text);
    retranslate();
    connectSignal(SIGNAL(editingFinished()));
}

void TextField::enter(const QString& text)
{
    setText(text);
    storeAndSend();
}

void TextField::take()
{
    setModified(false);
    if (m_accepts && !m_accepts(text())) {
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
