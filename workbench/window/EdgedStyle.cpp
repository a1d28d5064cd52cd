#include "window/EdgedStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double cornerRadius = 2;

/// The style below marks the focus by an edge of its own.
bool showsFocus(const QStyleOption* option)
{
    return option->state & QStyle::State_HasFocus;
}

}  // namespace

void EdgedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
        case PE_FrameLineEdit:
        case PE_PanelButtonCommand:
            if (!showsFocus(option)) {
                drawEdge(option, painter, false);
            }
            break;
        case PE_Frame:
        case PE_FrameGroupBox:
        case PE_IndicatorCheckBox:
            drawEdge(option, painter, false);
            break;
        case PE_IndicatorRadioButton:
            drawEdge(option, painter, true);
            break;
        default:
            break;
    }
}

void EdgedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control == CC_ComboBox || control == CC_SpinBox) && !showsFocus(option)) {
        drawEdge(option, painter, false);
    }
}

void EdgedStyle::drawEdge(const QStyleOption* option, QPainter* painter, bool isRound) const
{
    QColor edge = m_edge;
    if (!(option->state & State_Enabled)) {
        edge.setAlphaF(0.5);
    }
    const QRectF line = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(Qt::NoBrush);
    if (isRound) {
        painter->drawEllipse(line);
    } else {
        painter->drawRoundedRect(line, cornerRadius, cornerRadius);
    }
    painter->restore();
}
