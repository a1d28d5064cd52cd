#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// The outline of the next surface.
class SurfacePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit SurfacePage(DialogDoor& door, QWidget* parent = nullptr);

    ChoiceField* const m_pSurfShapeCMB = add<ChoiceField>(
        {"m_pSurfShapeCMB", Caption::spoken(QT_TR_NOOP("Surface shape")), RecordKeys::surfaceShape,
         SLOT(on_SurfShape_ComboBox_Changed()), Sends::Always},
        Choices{{QT_TR_NOOP("Rectangle"), SurfaceKind::rectangle},
                {QT_TR_NOOP("Polygon"), SurfaceKind::polygon},
                {QT_TR_NOOP("Circle"), SurfaceKind::circle}},
        ChoiceField::Stores::Text);
};
