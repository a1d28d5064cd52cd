#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}  // namespace UIAPI
}  // namespace ZENTRA

/// The settings of a barcode. Its handlers store only: the values travel with the next record that
/// another control sends.
class BarcodePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    /// `type` is an empty combo box beside the page, not owned; the page fills it.
    BarcodePage(PageHost& host, QComboBox* type, QWidget* parent = nullptr);

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    void barcodeTypeChanged();
    void addStringChanged();
    void positionChanged();
    void backgroundChanged();
    void addMarkersChanged();
    void heightEdited();
    void matrixEdited();

private:
    void createControls();
    void layOut();
    void writeDefaults();
    void connectControls();
    void enableMatrix(bool enabled);

    QComboBox* m_type = nullptr;
    QCheckBox* m_addString = nullptr;
    QComboBox* m_position = nullptr;
    QCheckBox* m_background = nullptr;
    QCheckBox* m_addMarkers = nullptr;
    ZENTRA::UIAPI::ZTLineEdit* m_height = nullptr;
    QLabel* m_heightLabel = nullptr;
    QLabel* m_heightUnit = nullptr;
    QPushButton* m_matrixButton = nullptr;
    ZENTRA::UIAPI::ZTLineEdit* m_matrix = nullptr;
};
