#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class QComboBox;

/// The outline of the next surface.
class SurfacePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit SurfacePage(PageHost& host, QWidget* parent = nullptr);

    void retranslate() override;

    void shapeChanged();

private:
    QComboBox* m_shape;
};
