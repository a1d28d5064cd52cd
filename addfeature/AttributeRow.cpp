#include "addfeature/AttributeRow.h"

#include "addfeature/record/DialogDoor.h"
#include "addfeature/record/FeatureRecord.h"
#include "plugin/RecordKeys.h"

#include <common_widgets.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

AttributeRow::AttributeRow(DialogDoor& door, QWidget* dialog)
    : QWidget(dialog),
      m_door(door),
      m_dialog(dialog),
      m_pAttributesCB(new QCheckBox(this)),
      m_pValuesPB(new QPushButton(this)),
      m_pFillPB(new QPushButton(this))
{
    setObjectName(QStringLiteral("m_pAttributesWidget"));
    m_pAttributesCB->setObjectName(QStringLiteral("m_pAttributesCB"));
    m_pValuesPB->setObjectName(QStringLiteral("m_pValuesPB"));
    m_pFillPB->setObjectName(QStringLiteral("m_pFillPB"));
    m_pValuesPB->setVisible(false);
    m_pFillPB->setEnabled(false);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pAttributesCB);
    row->addWidget(m_pValuesPB);
    row->addWidget(m_pFillPB);
    retranslate();
    m_door.record().set(RecordKeys::attributes, HasAttributes::no);

    door.connectToSlot(m_pAttributesCB, SIGNAL(stateChanged(int)),
                       SLOT(on_Attribute_CheckState_Changed(int)));
    door.connectToSlot(m_pValuesPB, SIGNAL(clicked()), SLOT(on_m_pValuesPB_clicked()));
    door.connectToSlot(m_pFillPB, SIGNAL(clicked()), SLOT(on_m_pFillPB_clicked()));
}

void AttributeRow::retranslate()
{
    m_pAttributesCB->setText(tr("Attributes"));
    m_pValuesPB->setText(tr("Values..."));
    m_pFillPB->setText(tr("Fill..."));
}

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
    m_door.record().set(RecordKeys::attributes, checked ? HasAttributes::yes : HasAttributes::no);
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
