#pragma once

#include <QColor>
#include <QProxyStyle>

/// Draws edges around fields and boxes, which are dark on dark in a dark palette otherwise: the
/// style below makes them of the window's colour, and darker.
class EdgedStyle : public QProxyStyle {
public:
    /// Takes `style`.
    EdgedStyle(QStyle* style, const QColor& edge) : QProxyStyle(style), m_edge(edge) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

private:
    void drawEdge(const QStyleOption* option, QPainter* painter, bool isRound) const;

    QColor m_edge;
};
