#pragma once

#include <QMap>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>
#include <QVector>

namespace Pcb {

enum class TextFormat { String, Barcode, PlotStamp, Canned };

enum class BarcodeType { Code39 = 1, Code39Ascii, Code128B, Code128C, Matrix };

/// A text and how it is drawn. Lengths are micrometres.
struct TextSpec {
    TextFormat format = TextFormat::String;
    QString content;
    QString font = QStringLiteral("standard");
    double xSize = 5080;
    double ySize = 5080;
    double lineWidth = 609.6;

    BarcodeType barcode = BarcodeType::Code39;
    bool addString = false;
    bool addBackground = false;
    bool addMarkers = false;
    bool stringOnTop = true;
    double barcodeHeight = 6350;
    QString matrix = QStringLiteral("Minimal");

    bool stampBarcode = false;
    int stampFontSize = 1;  ///< 1 to 4
    int stampZoom = 1;      ///< 1 to 7

    int cannedColumns = 5;  ///< 5 or 6
    double holeSize = 508;

    bool operator==(const TextSpec& other) const;
};

/// A text as it is drawn, its lower left corner at the origin: either pen strokes or areas.
struct TextDrawing {
    QVector<QPolygonF> strokes;  ///< drawn with a round pen of `lineWidth`
    double lineWidth = 0;
    QPainterPath areas;    ///< what is filled: bars, modules, dots
    QPainterPath unknown;  ///< outlines in place of letters that the font lacks
    QString lacking;       ///< those letters, each once
};

/// The longest text that is drawn; the rest is left out.
constexpr int longestText = 256;

TextDrawing drawText(const TextSpec& text);

/// The characters that the text's code cannot carry; empty for a text that is not a code.
QString leftOut(const TextSpec& text);

/// The area of a drawing: its strokes and its areas, not what is unknown.
QPainterPath coveredBy(const TextDrawing& drawing);

/// What is drawn for "$$NAME": the value of NAME, or NAME itself if it has none. Other text is
/// returned as it is. Names are case-insensitive.
QString resolveSpecialText(const QString& content, const QMap<QString, QString>& values);

}  // namespace Pcb
