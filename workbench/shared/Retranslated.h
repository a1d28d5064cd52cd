#pragma once

#include <QEvent>

/// A widget that shows its texts anew when the language changes.
template <class Widget>
class Retranslated : public Widget {
public:
    using Widget::Widget;

protected:
    void changeEvent(QEvent* event) override
    {
        Widget::changeEvent(event);
        if (event->type() == QEvent::LanguageChange) {
            retranslate();
        }
    }

    /// Sets all texts; for the constructor as well.
    virtual void retranslate() = 0;
};
