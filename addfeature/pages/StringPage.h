#pragma once

#include "addfeature/fields/LengthField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

/// The box of a character and the width of its strokes.
class StringPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit StringPage(DialogDoor& door, QWidget* parent = nullptr);

    LengthField* const m_pXSizeLE;
    LengthField* const m_pYSizeLE;
    LengthField* const m_pLineWidthLE;

private:
    LengthField* addSize(const Field::Details& details, double mils);
};
