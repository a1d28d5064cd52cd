#include "board/Brush.h"

#include "board/Symbol.h"
#include "plugin/RecordKeys.h"

#include <cmath>
#include <optional>
#include <tuple>

namespace Pcb {
namespace {

constexpr double longestLength = 1e7;  // micrometres

/// A record whose entries are read as text or number, whatever their type.
class Reader {
public:
    explicit Reader(const QMap<QString, QVariant>& record) : m_record(record) {}

    std::optional<double> number(const QString& key) const
    {
        bool isNumber = false;
        const double value = m_record.value(key).toDouble(&isNumber);
        return isNumber && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
    }

    /// A number from `least` to `most`; else `otherwise`.
    double within(const QString& key, double least, double most, double otherwise) const
    {
        const std::optional<double> value = number(key);
        return value && *value >= least && *value <= most ? *value : otherwise;
    }

    double length(const QString& key, double otherwise) const
    {
        return within(key, -longestLength, longestLength, otherwise);
    }

    double size(const QString& key, double otherwise) const
    {
        const double value = within(key, 0, longestLength, otherwise);
        return value > 0 ? value : otherwise;
    }

    double angle(const QString& key) const
    {
        const std::optional<double> value = number(key);
        return value ? std::fmod(*value, 360) : 0;
    }

    int choice(const QString& key, int most, int otherwise) const
    {
        const double value = within(key, 1, most, otherwise);
        return value == std::floor(value) ? static_cast<int>(value) : otherwise;
    }

    template <typename Value>
    Value choice(const QString& key, Value last, Value otherwise) const
    {
        return static_cast<Value>(choice(key, static_cast<int>(last), static_cast<int>(otherwise)));
    }

    /// Whether the entry holds `named`, in whichever form; `otherwise` if it is not a number.
    bool is(const QString& key, const QString& named, bool otherwise) const
    {
        const std::optional<double> value = number(key);
        return value ? *value == named.toDouble() : otherwise;
    }

    QString text(const QString& key) const { return m_record.value(key).toString().trimmed(); }

private:
    const QMap<QString, QVariant>& m_record;
};

void readFrame(const Reader& record, Brush& brush)
{
    constexpr int kinds = 5;
    brush.kind = static_cast<Kind>(record.choice(RecordKeys::features, kinds, 1) - 1);
    brush.positive = record.is(RecordKeys::polarity, Polarity::positive, brush.positive);
    brush.mirror = record.is(RecordKeys::mirror, Mirror::yes, brush.mirror);
    brush.rotation = record.angle(RecordKeys::mirrorRotate);
    const QString symbol = withoutRotation(record.text(RecordKeys::symbolText));
    brush.symbolNamed = !symbol.isEmpty();
    if (brush.symbolNamed) {
        brush.symbol = symbol;
    }
}

void readLine(const Reader& record, Brush& brush)
{
    constexpr double micrometresOfMillimetre = 1000;
    brush.line = record.choice(RecordKeys::line, LineMode::Slot, brush.line);
    brush.closed = record.is(RecordKeys::closed, Closed::yes, brush.closed);
    brush.direction = record.choice(RecordKeys::angleGroup, Direction::Fixed, brush.direction);
    brush.fixedAngle = record.angle(RecordKeys::angle);
    brush.corner = record.choice(RecordKeys::cornerType, Corner::Oblong, brush.corner);
    brush.cornerRadius =
        record.within(RecordKeys::cornerRadius, 0, longestLength, brush.cornerRadius);
    brush.slotPlated = record.is(RecordKeys::slotPlated, SlotPlated::yes, brush.slotPlated);
    brush.slotLength =
        micrometresOfMillimetre *
        record.within(RecordKeys::slotLength, 0, longestLength / micrometresOfMillimetre, 0);
    brush.slotAngle = record.angle(RecordKeys::slotAngle);
    brush.slotDecode = record.text(RecordKeys::slotDecode);
}

double scale(const Reader& record, const QString& key)
{
    constexpr double largestScale = 100;
    const double value = record.within(key, -largestScale, largestScale, 1);
    return value == 0 ? 1 : value;
}

void readPad(const Reader& record, Brush& brush)
{
    brush.padNx = record.choice(RecordKeys::padNx, mostPads, brush.padNx);
    brush.padNy = record.choice(RecordKeys::padNy, mostPads, brush.padNy);
    brush.padDx = record.length(RecordKeys::padDx, brush.padDx);
    brush.padDy = record.length(RecordKeys::padDy, brush.padDy);
    brush.padXScale = scale(record, RecordKeys::padXscl);
    brush.padYScale = scale(record, RecordKeys::padYscl);
}

void readSurfaceAndArc(const Reader& record, Brush& brush)
{
    brush.surface = record.choice(RecordKeys::surfaceShape, SurfaceShape::Circle, brush.surface);
    brush.circle = record.is(RecordKeys::arcAndCircle, ArcOrCircle::circle, brush.circle);
    brush.arcMethod =
        record.choice(RecordKeys::arcMode, ArcMethod::StartEndRadius, brush.arcMethod);
    brush.circleMethod =
        record.choice(RecordKeys::circleMode, CircleMethod::ThreePoints, brush.circleMethod);
    brush.clockwise = record.is(RecordKeys::clockWise, ClockWise::yes, brush.clockwise);
}

TextFormat formatOf(const QString& value)
{
    const QMap<QString, TextFormat> formats = {
        {TextKind::barcode, TextFormat::Barcode},
        {TextKind::plotStamp, TextFormat::PlotStamp},
        {TextKind::cannedText, TextFormat::Canned},
    };
    return formats.value(value, TextFormat::String);
}

void readText(const Reader& record, TextSpec& text)
{
    text.format = formatOf(record.text(RecordKeys::textFormat));
    text.content = record.text(RecordKeys::textContains).left(longestText);
    const QString font = record.text(RecordKeys::stringTextFont);
    text.font = font.isEmpty() ? text.font : font;
    text.xSize = record.size(RecordKeys::stringXSize, text.xSize);
    text.ySize = record.size(RecordKeys::stringYSize, text.ySize);
    text.lineWidth = record.size(RecordKeys::stringLineWidth, text.lineWidth);
    text.barcode = record.choice(RecordKeys::barcodeMode, BarcodeType::Matrix, text.barcode);
    text.addString = record.is(RecordKeys::addString, Added::yes, text.addString);
    text.addBackground = record.is(RecordKeys::addBackground, Added::yes, text.addBackground);
    text.addMarkers = record.is(RecordKeys::addMarkers, Added::yes, text.addMarkers);
    text.stringOnTop =
        !record.is(RecordKeys::stringPosition, StringPosition::bottom, !text.stringOnTop);
    text.barcodeHeight = record.size(RecordKeys::barcodeHeight, text.barcodeHeight);
    const QString matrix = record.text(RecordKeys::barcodeMatrix);
    text.matrix = matrix.isEmpty() ? text.matrix : matrix;
    text.stampBarcode =
        record.is(RecordKeys::orbotechType, PlotStampType::barcode, text.stampBarcode);
    text.stampFontSize = record.choice(RecordKeys::orbotechFontSize, 4, text.stampFontSize);
    text.stampZoom = record.choice(RecordKeys::orbotechZoom, 7, text.stampZoom);
    text.cannedColumns =
        record.is(RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven, false) ? 6 : 5;
    text.holeSize = record.size(RecordKeys::cannedHoleSize, text.holeSize);
}

auto tiedCommon(const Brush& brush)
{
    return std::tie(brush.kind, brush.positive, brush.mirror, brush.rotation, brush.symbol,
                    brush.symbolNamed, brush.attributes, brush.text, brush.surface, brush.circle,
                    brush.arcMethod, brush.circleMethod, brush.clockwise);
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
    if (reader.is(RecordKeys::attributes, HasAttributes::yes, false)) {
        brush.attributes = attributes;
    }
    return brush;
}

}  // namespace Pcb
