#pragma once

#include "addfeature/fields/LengthField.h"
#include "addfeature/pages/Page.h"
#include "addfeature/record/HostUnits.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// The box of a character and the width of its strokes.
class StringPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

    // Fields that start in mil accept plain numbers only.
    const char* const pattern = m_door.units().showsMetric() ? nullptr : "^[0-9]*(\\.[0-9]+)?$";

public:
    explicit StringPage(DialogDoor& door, QWidget* parent = nullptr);

    LengthField* const m_pXSizeLE = add<LengthField>(
        Details{"m_pXSizeLE", Caption::label(QT_TR_NOOP("X Size  : ")), RecordKeys::stringXSize,
                SLOT(on_m_pXSizeLE_editingFinished()), Sends::Always}
            .pattern(pattern)
            .within(0, 10000),
        QStringLiteral("200"), LengthField::Unit::AsShown);
    LengthField* const m_pYSizeLE = add<LengthField>(
        Details{"m_pYSizeLE", Caption::label(QT_TR_NOOP("Y Size  : ")), RecordKeys::stringYSize,
                SLOT(on_m_pYSizeLE_editingFinished()), Sends::Always}
            .pattern(pattern)
            .within(0, 10000),
        QStringLiteral("200"), LengthField::Unit::AsShown);
    LengthField* const m_pLineWidthLE =
        add<LengthField>(Details{"m_pLineWidthLE", Caption::label(QT_TR_NOOP("Line Width : ")),
                                 RecordKeys::stringLineWidth,
                                 SLOT(on_m_pLineWidthLE_editingFinished()), Sends::Always}
                             .pattern(pattern)
                             .within(0, 10000),
                         QStringLiteral("24"), LengthField::Unit::AsShown);
};
