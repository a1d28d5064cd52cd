#pragma once

#include "addfeature/fields/Field.h"

#include <QCheckBox>

/// A choice between two values.
class FlagField final : public QCheckBox, public Field {
public:
    struct Values {
        QString on;
        QString off;
    };

    FlagField(DialogDoor& door, QWidget* page, const Details& details, bool isOn,
              const Values& values);

    bool is(const QString& value) const override;

    /// Stores on or off, whatever the box shows. Sends nothing.
    void storeAs(bool isOn);

protected:
    void take() override;

private:
    const Values m_values;
};
