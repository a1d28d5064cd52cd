#pragma once

#include <QObject>

/// Tells when the user goes on to something else, by a key or a button of the mouse, in any window
/// of the program. Modifiers alone are no action yet.
class ActionWatch : public QObject {
    Q_OBJECT

public:
    explicit ActionWatch(QObject* parent);

Q_SIGNALS:
    void begun();  ///< before anything comes of it

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
