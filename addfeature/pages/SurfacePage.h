#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

/// The outline of the next surface.
class SurfacePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit SurfacePage(DialogDoor& door, QWidget* parent = nullptr);

    ChoiceField* const m_pSurfShapeCMB;
};
