#include "addfeature/pages/PlotStampPage.h"

#include "plugin/RecordKeys.h"

#include <QGridLayout>

PlotStampPage::PlotStampPage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pPlotStampPage", parent),
      m_pOrbotechTypeCMB(add<ChoiceField>(
          Field::Details{"m_pOrbotechTypeCMB", Caption::label(QT_TR_NOOP("Type\t\t:")),
                         RecordKeys::orbotechType, SLOT(on_m_pOrbotechTypeCMB_ComboBox_Changed()),
                         Sends::Never},
          Choices{{QT_TR_NOOP("String"), PlotStampType::string},
                  {QT_TR_NOOP("Barcode"), PlotStampType::barcode}},
          ChoiceField::Stores::TextElseNumber)),
      m_pOrbotechFontSizeCMB(add<ChoiceField>(
          Field::Details{"m_pOrbotechFontSizeCMB", Caption::label(QT_TR_NOOP("Font Size\t:")),
                         RecordKeys::orbotechFontSize,
                         SLOT(on_m_pOrbotechFontSizeCMB_ComboBox_Changed()), Sends::Never},
          Choices{{QT_TR_NOOP("1"), RecordValues::one},
                  {QT_TR_NOOP("2"), RecordValues::two},
                  {QT_TR_NOOP("3"), RecordValues::three},
                  {QT_TR_NOOP("4"), RecordValues::four}},
          ChoiceField::Stores::Number)),
      m_pOrbotechZoomCMB(add<ChoiceField>(
          Field::Details{"m_pOrbotechZoomCMB", Caption::label(QT_TR_NOOP("Zoom Factor\t:")),
                         RecordKeys::orbotechZoom, SLOT(on_m_pOrbotechZoomCMB_ComboBox_Changed()),
                         Sends::Never},
          Choices{{QT_TR_NOOP("1"), RecordValues::one},
                  {QT_TR_NOOP("2"), RecordValues::two},
                  {QT_TR_NOOP("3"), RecordValues::three},
                  {QT_TR_NOOP("4"), RecordValues::four},
                  {QT_TR_NOOP("5"), RecordValues::five},
                  {QT_TR_NOOP("6"), RecordValues::six},
                  {QT_TR_NOOP("7"), RecordValues::seven}},
          ChoiceField::Stores::Number))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (Field* const field : {m_pOrbotechTypeCMB, m_pOrbotechFontSizeCMB, m_pOrbotechZoomCMB}) {
        field->addRow(grid);
    }
}
