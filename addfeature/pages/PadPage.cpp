#include "addfeature/pages/PadPage.h"

#include <QDoubleValidator>
#include <QFrame>
#include <QGridLayout>
#include <QIntValidator>
#include <QLocale>

namespace {

// A lone "0" does not match, though the field itself writes it.
constexpr char pitchPattern[] =
    "[-]?[1-9][0-9]{0,14}|[-]?[0][.][0-9]{0,5}|[-]?[1-9][0-9]{0,}[.][0-9]{1,5}|^$";

/// Numbers are read with a decimal point and without group separators, whatever the user's locale.
void setCLocaleValidator(QLineEdit* field, QValidator* validator)
{
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    validator->setLocale(plain);
    field->setValidator(validator);
}

QGridLayout* createColumn(const std::initializer_list<Field*>& fields)
{
    auto* const grid = new QGridLayout;
    for (Field* const field : fields) {
        field->addRow(grid);
        if (!field->unitLabel()) {
            grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), grid->rowCount() - 1, 2);
        }
    }
    grid->setColumnStretch(1, 1);
    return grid;
}

}  // namespace

PadPage::PadPage(DialogDoor& door, QWidget* parent) : Page(door, "m_pPadPage", parent)
{
    m_pDrilDxLE->setPattern(pitchPattern);
    m_pDrilDyLE->setValidator(m_pDrilDxLE->validator());

    auto* const line = new QFrame(this);
    line->setObjectName(QStringLiteral("m_pPadColumnsFrame"));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(createColumn({m_pDrilNxLE, m_pDrilDxLE, m_pDrilXsclLE}), 1);
    columns->addWidget(line);
    columns->addLayout(createColumn({m_pDrilNyLE, m_pDrilDyLE, m_pDrilYsclLE}), 1);
}

NumberField* PadPage::addCount(const Field::Details& details)
{
    auto* const field = addNumber(details, {0.0, 50.0});
    setCLocaleValidator(field, new QIntValidator(field));
    return field;
}

NumberField* PadPage::addFactor(const Field::Details& details)
{
    auto* const field = addNumber(details, {-100.0, 100.0});
    setCLocaleValidator(field, new QDoubleValidator(field));
    return field;
}

NumberField* PadPage::addNumber(const Field::Details& details, NumberField::Bounds bounds)
{
    return add<NumberField>(details, RecordValues::one, bounds, NumberField::Checked::AtEachChange);
}

PitchField* PadPage::addPitch(const Field::Details& details)
{
    return add<PitchField>(details, isShownMetric(m_door));
}
