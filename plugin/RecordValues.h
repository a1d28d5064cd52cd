#pragma once

#include <QString>

/// The enumerated values as the record holds them. Read and write them by the names below, which
/// say what each means under which key. Like everything that is sent they outlive the library; see
/// ModuleNames.h.
namespace RecordValues {

inline const QString zero(QLatin1String("0"));
inline const QString one(QLatin1String("1"));
inline const QString two(QLatin1String("2"));
inline const QString three(QLatin1String("3"));
inline const QString four(QLatin1String("4"));
inline const QString five(QLatin1String("5"));
inline const QString six(QLatin1String("6"));
inline const QString seven(QLatin1String("7"));
inline const QString degrees90(QLatin1String("90"));
inline const QString degrees180(QLatin1String("180"));
inline const QString degrees270(QLatin1String("270"));

}  // namespace RecordValues

/// The version of the module; not part of the record.
inline const QString moduleVersion(QLatin1String("2.28.054"));

/// Of "Features".
namespace FeatureKind {
inline const QString line = RecordValues::one;
inline const QString pad = RecordValues::two;
inline const QString surface = RecordValues::three;
inline const QString arc = RecordValues::four;
inline const QString text = RecordValues::five;
}  // namespace FeatureKind

/// Of "Attributes".
namespace HasAttributes {
inline const QString yes = RecordValues::one;
inline const QString no = RecordValues::zero;
}  // namespace HasAttributes

/// Of "Polarity".
namespace Polarity {
inline const QString positive = RecordValues::one;
inline const QString negative = RecordValues::zero;
}  // namespace Polarity

/// Of "Mirror".
namespace Mirror {
inline const QString yes = RecordValues::one;
inline const QString no = RecordValues::two;
}  // namespace Mirror

/// Of "Line".
namespace LineKind {
inline const QString single = RecordValues::one;
inline const QString polyline = RecordValues::two;
inline const QString rectangle = RecordValues::three;
inline const QString slot = RecordValues::four;
}  // namespace LineKind

/// Of "Closed".
namespace Closed {
inline const QString yes = RecordValues::one;
inline const QString no = RecordValues::zero;
}  // namespace Closed

/// Of "AngleGroup".
namespace LineDirection {
inline const QString free = RecordValues::one;
inline const QString vertical = RecordValues::two;
inline const QString horizontal = RecordValues::three;
inline const QString verticalThenHorizontal = RecordValues::four;
inline const QString eightDirections = RecordValues::five;
inline const QString fixed = RecordValues::six;
}  // namespace LineDirection

/// Of "CornerType".
namespace CornerType {
inline const QString straight = RecordValues::one;
inline const QString round = RecordValues::two;
inline const QString chamfer = RecordValues::three;
inline const QString oblong = RecordValues::four;
}  // namespace CornerType

/// Of "SlotPlated".
namespace SlotPlated {
inline const QString yes = RecordValues::one;
inline const QString no = RecordValues::two;
}  // namespace SlotPlated

/// Of "SurfaceShape".
namespace SurfaceKind {
inline const QString rectangle = RecordValues::one;
inline const QString polygon = RecordValues::two;
inline const QString circle = RecordValues::three;
}  // namespace SurfaceKind

/// Of "Arc&Circle".
namespace ArcOrCircle {
inline const QString arc = RecordValues::one;
inline const QString circle = RecordValues::two;
}  // namespace ArcOrCircle

/// Of "ArcMode".
namespace ArcMode {
inline const QString startCenterEnd = RecordValues::one;
inline const QString startEndEdge = RecordValues::two;
inline const QString startEndCenter = RecordValues::three;
inline const QString startCenterAngle = RecordValues::four;
inline const QString startCenterLength = RecordValues::five;
inline const QString startEndAngle = RecordValues::six;
inline const QString startEndRadius = RecordValues::seven;
}  // namespace ArcMode

/// Of "CircleMode".
namespace CircleMode {
inline const QString centerRadius = RecordValues::one;
inline const QString centerPoint = RecordValues::two;
inline const QString pointCenter = RecordValues::three;
inline const QString threePoints = RecordValues::four;
}  // namespace CircleMode

/// Of "ClockWise".
namespace ClockWise {
inline const QString yes = RecordValues::one;
inline const QString no = RecordValues::two;
}  // namespace ClockWise

/// Of "TextFormat".
namespace TextKind {
inline const QString string = RecordValues::one;
inline const QString barcode(QLatin1String("BarcodeMode"));  // not "2": deliberate
inline const QString plotStamp = RecordValues::three;
inline const QString cannedText = RecordValues::four;
}  // namespace TextKind

/// Of "BarcodeMode".
namespace Symbology {
inline const QString upc39 = RecordValues::one;
inline const QString upc39Ascii = RecordValues::two;
inline const QString code128B = RecordValues::three;
inline const QString code128C = RecordValues::four;
inline const QString ecc200 = RecordValues::five;
}  // namespace Symbology

/// Of "AddString", "AddBackground" and "AddMarkers".
namespace Added {
inline const QString yes = RecordValues::one;
inline const QString no = RecordValues::two;
}  // namespace Added

/// Of "StringPosition".
namespace StringPosition {
inline const QString top = RecordValues::two;
inline const QString bottom = RecordValues::one;
}  // namespace StringPosition

/// Of "OrbotechType".
namespace PlotStampType {
inline const QString string = RecordValues::one;
inline const QString barcode = RecordValues::two;
}  // namespace PlotStampType

/// Of "CannedHoleMode".
namespace CannedHoleMode {
inline const QString fiveBySeven = RecordValues::one;
inline const QString sixBySeven = RecordValues::two;
}  // namespace CannedHoleMode
