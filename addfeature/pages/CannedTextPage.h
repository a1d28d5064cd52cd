#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class PlotStampPage;
class QComboBox;
class QLabel;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}  // namespace UIAPI
}  // namespace ZENTRA

/// The settings of text drilled as dots. Its handlers store only: the values travel with the next
/// record that another control sends.
class CannedTextPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    /// `plotStamp` tells the zoom, which is stored along with the mode; it must live as long.
    CannedTextPage(PageHost& host, const PlotStampPage& plotStamp, QWidget* parent = nullptr);

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    void holeModeChanged();
    void holeSizeEdited();

private:
    void layOut();
    void writeDefaults();
    void connectControls();

    const PlotStampPage& m_plotStamp;
    QComboBox* m_holeMode;
    ZENTRA::UIAPI::ZTLineEdit* m_holeSize;
    QLabel* m_typeLabel;
    QLabel* m_holeSizeUnit;
};
