#include "addfeature/AttributeRow.h"

#include "addfeature/fields/ButtonField.h"
#include "addfeature/fields/FlagField.h"
#include "plugin/RecordKeys.h"

#include <common_widgets.h>

#include <QHBoxLayout>

AttributeRow::AttributeRow(DialogDoor& door, QWidget* dialog)
    : QWidget(dialog),
      m_door(door),
      m_dialog(dialog),
      m_pAttributesCB(new FlagField(
          door, this,
          {"m_pAttributesCB", Caption::own(QT_TR_NOOP("Attributes")), RecordKeys::attributes,
           SLOT(on_Attribute_CheckState_Changed(int)), Sends::Never},
          false, {HasAttributes::yes, HasAttributes::no})),
      m_pValuesPB(new ButtonField(door, this,
                                  {"m_pValuesPB", Caption::own(QT_TR_NOOP("Values...")), QString(),
                                   SLOT(on_m_pValuesPB_clicked()), Sends::Never})),
      m_pFillPB(new ButtonField(door, this,
                                {"m_pFillPB", Caption::own(QT_TR_NOOP("Fill...")), QString(),
                                 SLOT(on_m_pFillPB_clicked()), Sends::Never}))
{
    setObjectName(QStringLiteral("m_pAttributesWidget"));
    m_pValuesPB->setVisible(false);
    m_pFillPB->setEnabled(false);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pAttributesCB);
    row->addWidget(m_pValuesPB);
    row->addWidget(m_pFillPB);
}

void AttributeRow::retranslate()
{
    for (Field* const field :
         std::initializer_list<Field*>{m_pAttributesCB, m_pValuesPB, m_pFillPB}) {
        field->retranslate();
    }
}

/// "Fill..." as well: what a slot has hidden would otherwise stay hidden.
void AttributeRow::restore()
{
    setShown(m_pAttributesCB, true);
    setShown(m_pFillPB, true);
}

void AttributeRow::hideAll()
{
    for (QWidget* const control :
         std::initializer_list<QWidget*>{m_pAttributesCB, m_pValuesPB, m_pFillPB}) {
        setShown(control, false);
    }
}

/// A row without visible controls would leave a gap.
void AttributeRow::setShown(QWidget* control, bool shown)
{
    control->setVisible(shown);
    setVisible(!m_pAttributesCB->isHidden() || !m_pValuesPB->isHidden());
}

void AttributeRow::setFillEnabled(bool enabled)
{
    m_pFillPB->setEnabled(enabled);
}

void AttributeRow::stateChanged()
{
    const bool checked = m_pAttributesCB->isChecked();
    m_pAttributesCB->storeAs(checked);
    setShown(m_pValuesPB, checked);
    if (!checked) {
        m_attributes.clear();
    } else if (m_window) {
        m_window->getAttributeData(m_attributes);
    }
    m_door.sendAttributes(m_attributes);
}

void AttributeRow::openValues()
{
    if (!m_window) {
        m_window = new Widget_Attributes(m_dialog);
        m_door.connectToSlot(m_window, SIGNAL(change_button_color()), SLOT(set_attribute_color()));
        m_door.connectToSlot(m_window, SIGNAL(remove_button_color()),
                             SLOT(reset_attribute_color()));
        m_door.connectToSlot(m_window, SIGNAL(send_attribute_signal()),
                             SLOT(get_attribute_signal()));
        m_door.connectToSlot(
            m_window, SIGNAL(send_attribute_list(std::vector<std::pair<std::string, std::string>>)),
            SLOT(get_attribute_list(std::vector<std::pair<std::string, std::string>>)));
        m_door.connectSignal(
            SIGNAL(send_attributeinfo_list(std::vector<std::pair<std::string, std::string>>)),
            m_window,
            SLOT(get_attributeinfo_list(std::vector<std::pair<std::string, std::string>>)));
    }
    m_window->show();
}

void AttributeRow::setColor()
{
    m_pValuesPB->setStyleSheet(QStringLiteral("background-color:rgb(255, 0, 0)"));
}

void AttributeRow::resetColor()
{
    m_pValuesPB->setStyleSheet(QStringLiteral("background-color:none"));
}

void AttributeRow::setList(const std::vector<std::pair<std::string, std::string>>& attributes)
{
    if (!m_pAttributesCB->isChecked()) {
        return;
    }
    m_attributes.clear();
    m_attributes.insert(attributes.begin(), attributes.end());
    m_door.sendAttributes(m_attributes);
}

void AttributeRow::closePopups()
{
    if (m_window) {
        m_window->close();
    }
}
