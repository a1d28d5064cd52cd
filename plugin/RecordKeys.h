#pragma once

#include "plugin/RecordValues.h"

#include <QString>

/// The keys of the feature parameter record. A receiver reads every value as text or integer. Where
/// values have names, they are in RecordValues.h under the name that is given here.
///
/// Like everything that is sent the keys outlive the library; see ModuleNames.h.
namespace RecordKeys {

// The frame

/// The feature type, FeatureKind. Text until a type is chosen, then an integer.
inline const QString features(QLatin1String("Features"));
/// Whether the feature has attributes, HasAttributes. Text.
inline const QString attributes(QLatin1String("Attributes"));
/// Polarity. Text.
inline const QString polarity(QLatin1String("Polarity"));
/// Whether pads and texts are mirrored, Mirror. Text.
inline const QString mirror(QLatin1String("Mirror"));
/// Rotation of pads and texts. Text: whole degrees.
inline const QString mirrorRotate(QLatin1String("MirrorRotate"));
/// Name of the symbol, sizes in mil; as shown if it was picked. Text.
inline const QString symbolText(QLatin1String("SymbolText"));

// Line

/// What is drawn, LineKind. Text.
inline const QString line(QLatin1String("Line"));
/// Whether the polyline is closed, Closed. Text.
inline const QString closed(QLatin1String("Closed"));
/// Directions that a line can take, LineDirection. Text until chosen, then an integer.
inline const QString angleGroup(QLatin1String("AngleGroup"));
/// The fixed direction. Text: degrees, as typed. The spelling is deliberate.
inline const QString angle(QLatin1String("Angel(deg)"));
/// Corners of the rectangle, CornerType. Text until chosen, then an integer.
inline const QString cornerType(QLatin1String("CornerType"));
/// Radius of the rectangle's corners. Text: micrometres.
inline const QString cornerRadius(QLatin1String("CornerRadius"));
/// Whether the slot is plated, SlotPlated. Text.
inline const QString slotPlated(QLatin1String("SlotPlated"));
/// Length of the slot. Text: millimetres.
inline const QString slotLength(QLatin1String("SlotLength"));
/// Direction of the slot. Text: degrees, as typed.
inline const QString slotAngle(QLatin1String("SlotAngle"));
/// Decode value of the slot. Text, as typed.
inline const QString slotDecode(QLatin1String("SlotDecode"));

// Pad

/// Number of pads in X. Text: a count, as typed.
inline const QString padNx(QLatin1String("PadNx"));
/// Number of pads in Y. Text: a count, as typed.
inline const QString padNy(QLatin1String("PadNy"));
/// Pitch of the pads in X. Text: micrometres.
inline const QString padDx(QLatin1String("PadDx"));
/// Pitch of the pads in Y. Text: micrometres.
inline const QString padDy(QLatin1String("PadDy"));
/// Scale in X. Text: a factor, as typed.
inline const QString padXscl(QLatin1String("PadXscl"));
/// Scale in Y. Text: a factor, as typed.
inline const QString padYscl(QLatin1String("PadYscl"));

// Surface

/// Outline of the surface, SurfaceKind. Text.
inline const QString surfaceShape(QLatin1String("SurfaceShape"));

// Arc

/// Whether an arc or a circle is drawn, ArcOrCircle. Text.
inline const QString arcAndCircle(QLatin1String("Arc&Circle"));
/// How an arc is defined, ArcMode. Text.
inline const QString arcMode(QLatin1String("ArcMode"));
/// How a circle is defined, CircleMode. Text.
inline const QString circleMode(QLatin1String("CircleMode"));
/// Direction of an arc, ClockWise. Text.
inline const QString clockWise(QLatin1String("ClockWise"));

// Text

/// The kind of text, TextKind. Text.
inline const QString textFormat(QLatin1String("TextFormat"));
/// Name of a font of the job. Text.
inline const QString stringTextFont(QLatin1String("StringTextFont"));
/// The text to place; "$$" followed by a name stands for a special text. Text.
inline const QString textContains(QLatin1String("TextContains"));
/// Width of a character. Text: micrometres.
inline const QString stringXSize(QLatin1String("StringXSize"));
/// Height of a character. Text: micrometres.
inline const QString stringYSize(QLatin1String("StringYSize"));
/// Width of the strokes. Text: micrometres.
inline const QString stringLineWidth(QLatin1String("StringLineWidth"));

// Barcode

/// Type of the code, Symbology. Text until chosen, then an integer.
inline const QString barcodeMode(QLatin1String("BarcodeMode"));
/// Whether a readable string is added, Added. Text.
inline const QString addString(QLatin1String("AddString"));
/// Whether a background is added, Added. Text.
inline const QString addBackground(QLatin1String("AddBackground"));
/// Whether markers are added, Added. Text.
inline const QString addMarkers(QLatin1String("AddMarkers"));
/// Place of the readable string, StringPosition. Text.
inline const QString stringPosition(QLatin1String("StringPosition"));
/// Height of the bars. Text: micrometres.
inline const QString barcodeHeight(QLatin1String("BarcodeHeight"));
/// Size of the matrix. Text, as typed.
inline const QString barcodeMatrix(QLatin1String("BarcodeMatrix"));

// Plot stamp and canned text

/// What a plot stamp shows, PlotStampType. Text.
inline const QString orbotechType(QLatin1String("OrbotechType"));
/// Font size of a plot stamp. Integer: 1 to 4.
inline const QString orbotechFontSize(QLatin1String("OrbotechFontSize"));
/// Zoom factor of a plot stamp. Integer: 1 to 7.
inline const QString orbotechZoom(QLatin1String("OrbotechZoom"));
/// Grid of a canned character, CannedHoleMode. Text.
inline const QString cannedHoleMode(QLatin1String("CannedHoleMode"));
/// Diameter of the holes of a canned text. Text: micrometres.
inline const QString cannedHoleSize(QLatin1String("CannedHoleSize"));

}  // namespace RecordKeys
