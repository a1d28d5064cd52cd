#pragma once

#include "addfeature/pages/Page.h"
#include "addfeature/pages/PlainLength.h"

#include <QCoreApplication>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}  // namespace UIAPI
}  // namespace ZENTRA

/// The kind of line, and what belongs to it: the direction of drawing, the corners of a rectangle,
/// the measures of a slot.
class LinePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit LinePage(PageHost& host, QWidget* parent = nullptr);

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    void lineKindChanged();
    void closedChanged();
    void directionChosen();
    void angleEdited();
    void cornerTypeChanged();
    void cornerRadiusEdited();
    void slotLengthEdited();
    void slotAngleEdited();
    void slotDecodeEdited();
    void slotPlatedChanged();

private:
    using ZTLineEdit = ZENTRA::UIAPI::ZTLineEdit;

    ZTLineEdit* createNumber(const QString& name, QWidget* group);
    QLayout* createKindRow();
    void createDirectionGroup();
    QLayout* createDirectionRow();
    void createCornerGroup();
    void createSlotGroup();
    void writeDefaults();
    void connectControls();
    void retranslateDirections();
    void showKind(int kind);
    void enableRadius(bool enabled);
    void showUnits();

    QComboBox* m_kind = nullptr;
    QCheckBox* m_closed = nullptr;

    QWidget* m_directionGroup = nullptr;
    QButtonGroup* m_directions = nullptr;
    ZTLineEdit* m_angle = nullptr;
    QLabel* m_angleLabel = nullptr;

    QWidget* m_cornerGroup = nullptr;
    QComboBox* m_cornerType = nullptr;
    ZTLineEdit* m_cornerRadius = nullptr;
    QLabel* m_cornerTypeLabel = nullptr;
    QLabel* m_cornerRadiusLabel = nullptr;
    QLabel* m_cornerRadiusUnit = nullptr;

    QWidget* m_slotGroup = nullptr;
    ZTLineEdit* m_slotLength = nullptr;
    ZTLineEdit* m_slotAngle = nullptr;
    ZTLineEdit* m_slotDecode = nullptr;
    QComboBox* m_slotPlated = nullptr;
    QLabel* m_slotLengthLabel = nullptr;
    QLabel* m_slotLengthUnit = nullptr;
    QLabel* m_slotAngleLabel = nullptr;
    QLabel* m_slotDecodeLabel = nullptr;

    PlainLength m_plainSlotLength;
    bool m_isMetric = false;
};
