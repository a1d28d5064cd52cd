#pragma once

#include "addfeature/fields/Field.h"

#include <QButtonGroup>

#include <vector>

class QHBoxLayout;

/// One button of a group.
struct RadioChoice {
    const char* name;    ///< of the object
    const char* icon;    ///< file name in the resource tree
    const char* spoken;  ///< marked for translation in the context "AddFeature"
    QString value;       ///< what the record holds while it is chosen, as text
};

/// A choice among buttons with pictures, initially the first. The record holds its value, the
/// number from 1: as text at first, as an integer once it is chosen.
class RadioField final : public QButtonGroup, public Field {
public:
    enum class Look { Radio, Tool };

    RadioField(DialogDoor& door, QWidget* page, const Details& details, Look look,
               const std::vector<RadioChoice>& choices);

    void retranslate() override;
    bool is(const QString& value) const override;

    /// The buttons side by side. The caller owns the layout.
    QHBoxLayout* createRow() const;
    /// Stores the choice and sends nothing.
    void storeChoice();

protected:
    void take() override;

private:
    const std::vector<RadioChoice> m_choices;
};
