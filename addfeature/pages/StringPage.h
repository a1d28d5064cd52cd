#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class QGridLayout;
class QLabel;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}  // namespace UIAPI
}  // namespace ZENTRA

/// The box of a character and the width of its strokes.
class StringPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit StringPage(PageHost& host, QWidget* parent = nullptr);

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    void xSizeEdited();
    void ySizeEdited();
    void lineWidthEdited();

private:
    struct Size {
        ZENTRA::UIAPI::ZTLineEdit* field = nullptr;
        QLabel* label = nullptr;
        QLabel* unit = nullptr;
    };

    /// `name` is the part of the object names that tells the rows apart.
    Size addSize(QGridLayout* grid, const QString& name, double mils);
    void writeDefaults();
    void connectControls();
    void showUnits();
    void finish(const Size& size, const QString& key);

    bool m_isMetric;
    Size m_xSize;
    Size m_ySize;
    Size m_lineWidth;
};
