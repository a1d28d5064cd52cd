#pragma once

#include "addfeature/fields/LineField.h"

#include <functional>
#include <utility>

/// A text, stored as typed. Rejected text is cleared from the field; the record is unchanged.
class TextField final : public LineField {
public:
    TextField(DialogDoor& door, QWidget* page, const Details& details, Pattern pattern,
              const QString& text);

    /// Accepts only text for which `accepts` returns true; by default everything.
    void acceptOnly(std::function<bool(const QString&)> accepts) { m_accepts = std::move(accepts); }
    /// Shows, stores and sends a text that was chosen elsewhere, and is not checked.
    void enter(const QString& text);

protected:
    void take() override;

private:
    void storeAndSend();

    std::function<bool(const QString&)> m_accepts;
};
