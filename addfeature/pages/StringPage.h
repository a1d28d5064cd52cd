#pragma once

#include "addfeature/fields/LengthField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// The box of a character and the width of its strokes.
class StringPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

    // In mil.
    static constexpr double largestSize = 10000.0;
    static constexpr double characterSize = 200.0;
    static constexpr double strokeWidth = 24.0;

public:
    explicit StringPage(DialogDoor& door, QWidget* parent = nullptr);

    LengthField* const m_pXSizeLE =
        addSize({"m_pXSizeLE", Caption::label(QT_TR_NOOP("X Size  : ")), RecordKeys::stringXSize,
                 SLOT(on_m_pXSizeLE_editingFinished()), Sends::Always},
                characterSize);
    LengthField* const m_pYSizeLE =
        addSize({"m_pYSizeLE", Caption::label(QT_TR_NOOP("Y Size  : ")), RecordKeys::stringYSize,
                 SLOT(on_m_pYSizeLE_editingFinished()), Sends::Always},
                characterSize);
    LengthField* const m_pLineWidthLE = addSize(
        {"m_pLineWidthLE", Caption::label(QT_TR_NOOP("Line Width : ")), RecordKeys::stringLineWidth,
         SLOT(on_m_pLineWidthLE_editingFinished()), Sends::Always},
        strokeWidth);

private:
    LengthField* addSize(const Field::Details& details, double mils);
};
