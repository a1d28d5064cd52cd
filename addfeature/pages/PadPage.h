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

/// An array of pads: the count, the pitch and a factor along each axis.
class PadPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit PadPage(PageHost& host, QWidget* parent = nullptr);

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    void nxChanged(const QString& text);
    void nyChanged(const QString& text);
    void xsclChanged(const QString& text);
    void ysclChanged(const QString& text);
    void dxEdited();
    void dyEdited();

private:
    /// The rows of one axis.
    struct Axis {
        ZENTRA::UIAPI::ZTLineEdit* count = nullptr;
        ZENTRA::UIAPI::ZTLineEdit* pitch = nullptr;
        ZENTRA::UIAPI::ZTLineEdit* factor = nullptr;
        QLabel* countLabel = nullptr;
        QLabel* pitchLabel = nullptr;
        QLabel* factorLabel = nullptr;
        QLabel* pitchUnit = nullptr;
    };

    /// The arguments are the parts of the object names that tell the rows apart.
    Axis createAxis(const QString& count, const QString& pitch, const QString& factor);
    void addValidators();
    void layOut();
    static QGridLayout* column(const Axis& axis);
    void writeDefaults();
    void connectControls();
    void showUnits();

    bool m_isMetric;
    Axis m_x;
    Axis m_y;
};
