#include "window/Look.h"

#include "window/Options.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace {

const QColor darkEdge(0x8a, 0x90, 0x99);
constexpr double cornerRadius = 2;

/// The style below marks the focus by an edge of its own.
bool showsFocus(const QStyleOption* option)
{
    return option->state & QStyle::State_HasFocus;
}

void drawEdge(const QStyleOption* option, QPainter* painter, bool isRound = false)
{
    QColor edge = darkEdge;
    if (!(option->state & QStyle::State_Enabled)) {
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

/// Draws edges around fields and boxes, which are dark on dark in a dark palette otherwise: the
/// style below makes them of the window's colour, and darker.
class EdgedStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isField = element == PE_FrameLineEdit || element == PE_PanelButtonCommand;
        if (element == PE_Frame || element == PE_FrameGroupBox || element == PE_IndicatorCheckBox ||
            (isField && !showsFocus(option))) {
            drawEdge(option, painter);
        } else if (element == PE_IndicatorRadioButton) {
            drawEdge(option, painter, true);
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if ((control == CC_ComboBox || control == CC_SpinBox) && !showsFocus(option)) {
            drawEdge(option, painter);
        }
    }
};

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x38, 0x3d), QColor(0x2d, 0x30, 0x34));
    palette.setColor(QPalette::Base, QColor(0x22, 0x24, 0x28));
    palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2d, 0x31));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x7d, 0xd1));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0xa0, 0xa8));
    return palette;
}

}  // namespace

void Look::dress(const Options& options)
{
    // Takes the style, as the application then takes this one.
    QStyle* style = QStyleFactory::create(QStringLiteral("Fusion"));
    if (options.isDark) {
        style = new EdgedStyle(style);
        QApplication::setPalette(darkPalette());
    }
    QApplication::setStyle(style);
    if (options.fontSize > 0) {
        QFont font = QApplication::font();
        font.setPointSize(options.fontSize);
        QApplication::setFont(font);
    }
}
