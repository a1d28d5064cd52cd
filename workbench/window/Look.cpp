#include "window/Look.h"

#include "window/EdgedStyle.h"
#include "window/Options.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace {

const QColor darkEdge(0x8a, 0x90, 0x99);

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
        style = new EdgedStyle(style, darkEdge);
        QApplication::setPalette(darkPalette());
    }
    QApplication::setStyle(style);
    if (options.fontSize > 0) {
        QFont font = QApplication::font();
        font.setPointSize(options.fontSize);
        QApplication::setFont(font);
    }
}
