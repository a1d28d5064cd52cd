#include "board/Brush.h"

#include "board/Symbol.h"

#include <cmath>
#include <optional>
#include <tuple>

namespace Pcb {
namespace {

constexpr double longestLength = 1e7;  // micrometres

/// A record whose entries are read as text or number, whatever they are.
class Reader {
public:
    explicit Reader(const QMap<QString, QVariant>& record) : m_record(record) {}

    std::optional<double> number(const char* key) const
    {
        bool isNumber = false;
        const double value = m_record.value(QLatin1String(key)).toDouble(&isNumber);
        return isNumber && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
    }

    /// A number from `least` to `most`; else `otherwise`.
    double within(const char* key, double least, double most, double otherwise) const
    {
        const std::optional<double> value = number(key);
        return value && *value >= least && *value <= most ? *value : otherwise;
    }

    double length(const char* key, double otherwise) const
    {
        return within(key, -longestLength, longestLength, otherwise);
    }

    double size(const char* key, double otherwise) const
    {
        const double value = within(key, 0, longestLength, otherwise);
        return value > 0 ? value : otherwise;
    }

    double angle(const char* key) const
    {
        const std::optional<double> value = number(key);
        return value ? std::fmod(*value, 360) : 0;
    }

    int choice(const char* key, int most, int otherwise) const
    {
        const double value = within(key, 1, most, otherwise);
        return value == std::floor(value) ? static_cast<int>(value) : otherwise;
    }

    template <typename Value>
    Value choice(const char* key, Value last, Value otherwise) const
    {
        return static_cast<Value>(choice(key, static_cast<int>(last), static_cast<int>(otherwise)));
    }

    /// Entries that hold "1" for yes and anything else for no, "0" or "2" as it may be.
    bool isOne(const char* key, bool otherwise) const
    {
        const std::optional<double> value = number(key);
        return value ? *value == 1 : otherwise;
    }

    QString text(const char* key) const
    {
        return m_record.value(QLatin1String(key)).toString().trimmed();
    }

private:
    const QMap<QString, QVariant>& m_record;
};

void readFrame(const Reader& record, Brush& brush)
{
    constexpr int kinds = 5;
    brush.kind = static_cast<Kind>(record.choice("Features", kinds, 1) - 1);
    brush.positive = record.isOne("Polarity", brush.positive);
    brush.mirror = record.isOne("Mirror", brush.mirror);
    brush.rotation = record.angle("MirrorRotate");
    const QString symbol = withoutRotation(record.text("SymbolText"));
    if (!symbol.isEmpty()) {
        brush.symbol = symbol;
    }
}

void readLine(const Reader& record, Brush& brush)
{
    constexpr double micrometresOfMillimetre = 1000;
    brush.line = record.choice("Line", LineMode::Slot, brush.line);
    brush.closed = record.isOne("Closed", brush.closed);
    brush.direction = record.choice("AngleGroup", Direction::Fixed, brush.direction);
    brush.fixedAngle = record.angle("Angel(deg)");
    brush.corner = record.choice("CornerType", Corner::Oblong, brush.corner);
    brush.cornerRadius = record.within("CornerRadius", 0, longestLength, brush.cornerRadius);
    brush.slotPlated = record.isOne("SlotPlated", brush.slotPlated);
    brush.slotLength = micrometresOfMillimetre *
                       record.within("SlotLength", 0, longestLength / micrometresOfMillimetre, 0);
    brush.slotAngle = record.angle("SlotAngle");
    brush.slotDecode = record.text("SlotDecode");
}

double scale(const Reader& record, const char* key)
{
    constexpr double largestScale = 100;
    const double value = record.within(key, -largestScale, largestScale, 1);
    return value == 0 ? 1 : value;
}

void readPad(const Reader& record, Brush& brush)
{
    brush.padNx = record.choice("PadNx", mostPads, brush.padNx);
    brush.padNy = record.choice("PadNy", mostPads, brush.padNy);
    brush.padDx = record.length("PadDx", brush.padDx);
    brush.padDy = record.length("PadDy", brush.padDy);
    brush.padXScale = scale(record, "PadXscl");
    brush.padYScale = scale(record, "PadYscl");
}

void readSurfaceAndArc(const Reader& record, Brush& brush)
{
    brush.surface = record.choice("SurfaceShape", SurfaceShape::Circle, brush.surface);
    brush.circle = record.choice("Arc&Circle", 2, 1) == 2;
    brush.arcMethod = record.choice("ArcMode", ArcMethod::StartEndRadius, brush.arcMethod);
    brush.circleMethod = record.choice("CircleMode", CircleMethod::ThreePoints, brush.circleMethod);
    brush.clockwise = record.isOne("ClockWise", brush.clockwise);
}

TextFormat formatOf(const QString& value)
{
    const QMap<QString, TextFormat> formats = {
        {QStringLiteral("BarcodeMode"), TextFormat::Barcode},
        {QStringLiteral("3"), TextFormat::PlotStamp},
        {QStringLiteral("4"), TextFormat::Canned},
    };
    return formats.value(value, TextFormat::String);
}

void readText(const Reader& record, TextSpec& text)
{
    text.format = formatOf(record.text("TextFormat"));
    text.content = record.text("TextContains").left(longestText);
    const QString font = record.text("StringTextFont");
    text.font = font.isEmpty() ? text.font : font;
    text.xSize = record.size("StringXSize", text.xSize);
    text.ySize = record.size("StringYSize", text.ySize);
    text.lineWidth = record.size("StringLineWidth", text.lineWidth);
    text.barcode = record.choice("BarcodeMode", BarcodeType::Matrix, text.barcode);
    text.addString = record.isOne("AddString", text.addString);
    text.addBackground = record.isOne("AddBackground", text.addBackground);
    text.addMarkers = record.isOne("AddMarkers", text.addMarkers);
    text.stringOnTop = record.choice("StringPosition", 2, 2) == 2;
    text.barcodeHeight = record.size("BarcodeHeight", text.barcodeHeight);
    const QString matrix = record.text("BarcodeMatrix");
    text.matrix = matrix.isEmpty() ? text.matrix : matrix;
    text.stampBarcode = record.choice("OrbotechType", 2, 1) == 2;
    text.stampFontSize = record.choice("OrbotechFontSize", 4, text.stampFontSize);
    text.stampZoom = record.choice("OrbotechZoom", 7, text.stampZoom);
    text.cannedColumns = 4 + record.choice("CannedHoleMode", 2, 1);
    text.holeSize = record.size("CannedHoleSize", text.holeSize);
}

auto tiedCommon(const Brush& brush)
{
    return std::tie(brush.kind, brush.positive, brush.mirror, brush.rotation, brush.symbol,
                    brush.attributes, brush.text, brush.surface, brush.circle, brush.arcMethod,
                    brush.circleMethod, brush.clockwise);
}

auto tiedShapes(const Brush& brush)
{
    return std::tie(brush.line, brush.closed, brush.direction, brush.fixedAngle, brush.corner,
                    brush.cornerRadius, brush.slotPlated, brush.slotLength, brush.slotAngle,
                    brush.slotDecode, brush.padNx, brush.padNy, brush.padDx, brush.padDy,
                    brush.padXScale, brush.padYScale);
}

}  // namespace

bool Brush::operator==(const Brush& other) const
{
    return tiedCommon(*this) == tiedCommon(other) && tiedShapes(*this) == tiedShapes(other);
}

Brush readBrush(const QMap<QString, QVariant>& record, const Attributes& attributes)
{
    const Reader reader(record);
    Brush brush;
    readFrame(reader, brush);
    readLine(reader, brush);
    readPad(reader, brush);
    readSurfaceAndArc(reader, brush);
    readText(reader, brush.text);
    if (reader.isOne("Attributes", false)) {
        brush.attributes = attributes;
    }
    return brush;
}

}  // namespace Pcb
