#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class QComboBox;
class QLabel;

/// The settings of a plot stamp. Its handlers store only: the values travel with the next record
/// that another control sends.
class PlotStampPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit PlotStampPage(PageHost& host, QWidget* parent = nullptr);

    void retranslate() override;

    void typeChanged();
    void fontSizeChanged();
    void zoomChanged();

    /// The zoom factor that is chosen, 1 to 7.
    int zoom() const;

private:
    void layOut();
    void writeDefaults();
    void connectControls();
    int fontSize() const;

    QComboBox* m_type;
    QComboBox* m_fontSize;
    QComboBox* m_zoom;
    QLabel* m_typeLabel;
    QLabel* m_fontSizeLabel;
    QLabel* m_zoomLabel;
};
