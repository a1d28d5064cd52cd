#include "addfeature/pages/PlotStampPage.h"

#include "plugin/RecordKeys.h"

#include <QGridLayout>

PlotStampPage::PlotStampPage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pPlotStampPage", parent),
      m_pOrbotechTypeCMB(add<ChoiceField>(
          Field::Details{"m_pOrbotechTypeCMB", Caption::label(QT_TR_NOOP("Type\t\t:")),
                         RecordKeys::orbotechType, SLOT(on_m_pOrbotechTypeCMB_ComboBox_Changed())},
          Choices{{QT_TR_NOOP("String"), PlotStampType::string},
                  {QT_TR_NOOP("Barcode"), PlotStampType::barcode}},
          ChoiceField::Stores::TextElseNumber, Sends::Never)),
      m_pOrbotechFontSizeCMB(add<ChoiceField>(
          Field::Details{"m_pOrbotechFontSizeCMB", Caption::label(QT_TR_NOOP("Font Size\t:")),
                         RecordKeys::orbotechFontSize,
                         SLOT(on_m_pOrbotechFontSizeCMB_ComboBox_Changed())},
          Choices{{QT_TR_NOOP("1")}, {QT_TR_NOOP("2")}, {QT_TR_NOOP("3")}, {QT_TR_NOOP("4")}},
          ChoiceField::Stores::Number, Sends::Never)),
      m_pOrbotechZoomCMB(add<ChoiceField>(
          Field::Details{"m_pOrbotechZoomCMB", Caption::label(QT_TR_NOOP("Zoom Factor\t:")),
                         RecordKeys::orbotechZoom, SLOT(on_m_pOrbotechZoomCMB_ComboBox_Changed())},
          Choices{{QT_TR_NOOP("1")},
                  {QT_TR_NOOP("2")},
                  {QT_TR_NOOP("3")},
                  {QT_TR_NOOP("4")},
                  {QT_TR_NOOP("5")},
                  {QT_TR_NOOP("6")},
                  {QT_TR_NOOP("7")}},
          ChoiceField::Stores::Number, Sends::Never))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (Field* const field : {m_pOrbotechTypeCMB, m_pOrbotechFontSizeCMB, m_pOrbotechZoomCMB}) {
        field->addRow(grid);
    }
}
