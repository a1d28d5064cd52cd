#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class QCheckBox;
class QComboBox;

/// Arc or circle, the points that the user will click for it, and the direction.
class ArcPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit ArcPage(PageHost& host, QWidget* parent = nullptr);

    void retranslate() override;

    void arcOrCircleChanged();
    void arcMethodChanged();
    void circleMethodChanged();
    void clockWiseChanged();

private:
    void layOut();
    void writeDefaults();
    void connectControls();

    QComboBox* m_arcOrCircle;
    QCheckBox* m_clockWise;
    QComboBox* m_arcMethod;
    QComboBox* m_circleMethod;
};
