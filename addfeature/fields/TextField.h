#pragma once

#include "addfeature/fields/LineField.h"

#include <functional>

/// A text, stored as typed. Rejected text is cleared from the field; the record is unchanged.
class TextField final : public LineField {
public:
    using Accepts = std::function<bool(const QString&)>;

    /// Accepts only text for which `accepts` returns true; without it everything.
    TextField(DialogDoor& door, QWidget* page, const Details& details, Pattern pattern,
              const QString& text, Accepts accepts = {});

    /// Shows, stores and sends a text that was chosen elsewhere, and is not checked.
    void enter(const QString& text);

private:
    void takeText(const QString& text) override;
    void storeAndSend();

    const Accepts m_accepts;
};
