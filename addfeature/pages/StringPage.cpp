#include "addfeature/pages/StringPage.h"

#include "addfeature/record/Units.h"
#include "plugin/RecordKeys.h"

#include <QGridLayout>

namespace {

// In mil.
constexpr double largestSize = 10000.0;
constexpr double characterSize = 200.0;
constexpr double strokeWidth = 24.0;

}  // namespace

StringPage::StringPage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pStringPage", parent),
      m_pXSizeLE(
          addSize({"m_pXSizeLE", Caption::label(QT_TR_NOOP("X Size  : ")), RecordKeys::stringXSize,
                   SLOT(on_m_pXSizeLE_editingFinished()), Sends::Always},
                  characterSize)),
      m_pYSizeLE(
          addSize({"m_pYSizeLE", Caption::label(QT_TR_NOOP("Y Size  : ")), RecordKeys::stringYSize,
                   SLOT(on_m_pYSizeLE_editingFinished()), Sends::Always},
                  characterSize)),
      m_pLineWidthLE(addSize(
          {"m_pLineWidthLE", Caption::label(QT_TR_NOOP("Line Width : ")),
           RecordKeys::stringLineWidth, SLOT(on_m_pLineWidthLE_editingFinished()), Sends::Always},
          strokeWidth))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    for (Field* const field : {m_pXSizeLE, m_pYSizeLE, m_pLineWidthLE}) {
        field->addRow(grid);
    }
}

/// Starts in the unit that the host shows; a field that starts in mil takes plain numbers only.
LengthField* StringPage::addSize(const Field::Details& details, double mils)
{
    const bool isMetric = isShownMetric(m_door);
    auto* const field =
        add<LengthField>(details, Units::format(isMetric ? mils * Units::factor : mils),
                         largestSize, LengthField::Unit::Mil, isMetric);
    if (!isMetric) {
        field->setPattern("^[0-9]*(\\.[0-9]+)?$");
    }
    return field;
}
