#pragma once

#include "addfeature/fields/LineField.h"

#include <functional>
#include <utility>

/// A text, stored as typed. One that is not accepted is cleared in the field, and nothing else.
class TextField final : public LineField {
public:
    TextField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details,
              const QString& text, Sends sends);

    /// Lets the user enter only what `accepts` holds of; without it, everything.
    void accept(std::function<bool(const QString&)> accepts) { m_accepts = std::move(accepts); }
    /// Shows, stores and sends a text that was chosen elsewhere, and is not checked.
    void enter(const QString& text);

protected:
    void take() override;

private:
    void storeAndSend();

    const Sends m_sends;
    std::function<bool(const QString&)> m_accepts;
};
