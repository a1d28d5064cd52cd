#pragma once

#include <QEvent>
#include <QObject>

/// Counts how often the windows that it filters are raised.
class RaiseCounter : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};
