#pragma once

#include <QString>

/// The keys of the feature parameter record. A receiver reads every value as text or integer; where
/// the type is not named it is text. Lengths are micrometres unless said otherwise.
namespace FeatureKeys {

// The frame
inline const QString features =
    QStringLiteral("Features");  ///< 1 Line … 5 Text; integer once chosen
inline const QString attributes =
    QStringLiteral("Attributes");                            ///< "1" with attributes, "0" without
inline const QString polarity = QStringLiteral("Polarity");  ///< "1" positive, "0" negative
inline const QString mirror = QStringLiteral("Mirror");      ///< "1" mirrored, "2" not
inline const QString mirrorRotate = QStringLiteral("MirrorRotate");  ///< rotation, whole degrees
inline const QString symbolText = QStringLiteral("SymbolText");      ///< symbol name, sizes in mil

// Line
inline const QString line = QStringLiteral("Line");      ///< "1" single … "4" slot
inline const QString closed = QStringLiteral("Closed");  ///< "1" closed polyline, "0" open
inline const QString angleGroup =
    QStringLiteral("AngleGroup");  ///< 1 free … 6 fixed; integer once chosen
inline const QString angle = QStringLiteral("Angel(deg)");  ///< degrees, spelled so deliberately
inline const QString cornerType =
    QStringLiteral("CornerType");  ///< 1 straight … 4 oblong; integer once chosen
inline const QString cornerRadius = QStringLiteral("CornerRadius");
inline const QString slotPlated = QStringLiteral("SlotPlated");  ///< "1" plated, "2" not
inline const QString slotLength = QStringLiteral("SlotLength");  ///< millimetre
inline const QString slotAngle = QStringLiteral("SlotAngle");    ///< degrees, as typed
inline const QString slotDecode = QStringLiteral("SlotDecode");  ///< as typed

// Pad
inline const QString padNx = QStringLiteral("PadNx");  ///< count, as typed
inline const QString padNy = QStringLiteral("PadNy");
inline const QString padDx = QStringLiteral("PadDx");  ///< pitch
inline const QString padDy = QStringLiteral("PadDy");
inline const QString padXscl = QStringLiteral("PadXscl");  ///< scale factor, as typed
inline const QString padYscl = QStringLiteral("PadYscl");

// Surface
inline const QString surfaceShape =
    QStringLiteral("SurfaceShape");  ///< "1" rectangle, "2" polygon, "3" circle

// Arc
inline const QString arcAndCircle = QStringLiteral("Arc&Circle");  ///< "1" arc, "2" circle
inline const QString arcMode = QStringLiteral("ArcMode");          ///< "1" to "7"
inline const QString circleMode = QStringLiteral("CircleMode");    ///< "1" to "4"
inline const QString clockWise = QStringLiteral("ClockWise");      ///< "1" clockwise, "2" not

// Text
inline const QString textFormat = QStringLiteral("TextFormat");  ///< "1", "BarcodeMode", "3", "4"
inline const QString stringTextFont = QStringLiteral("StringTextFont");
inline const QString textContains = QStringLiteral("TextContains");  ///< the text to place
inline const QString stringXSize = QStringLiteral("StringXSize");
inline const QString stringYSize = QStringLiteral("StringYSize");
inline const QString stringLineWidth = QStringLiteral("StringLineWidth");

// Barcode
inline const QString barcodeMode = QStringLiteral("BarcodeMode");  ///< 1 to 5; integer once chosen
inline const QString addString = QStringLiteral("AddString");  ///< "1" on, "2" off; so the next two
inline const QString addBackground = QStringLiteral("AddBackground");
inline const QString addMarkers = QStringLiteral("AddMarkers");
inline const QString stringPosition = QStringLiteral("StringPosition");  ///< "2" top, "1" bottom
inline const QString barcodeHeight = QStringLiteral("BarcodeHeight");
inline const QString barcodeMatrix = QStringLiteral("BarcodeMatrix");

// Plot stamp and canned text
inline const QString orbotechType = QStringLiteral("OrbotechType");  ///< "1" string, "2" barcode
inline const QString orbotechFontSize = QStringLiteral("OrbotechFontSize");  ///< 1 to 4, integer
inline const QString orbotechZoom = QStringLiteral("OrbotechZoom");          ///< 1 to 7, integer
inline const QString cannedHoleMode = QStringLiteral("CannedHoleMode");  ///< "1" 5 x 7, "2" 6 x 7
inline const QString cannedHoleSize = QStringLiteral("CannedHoleSize");

}  // namespace FeatureKeys

/// The enumerated values that the handlers write.
namespace FeatureValues {

inline const QString zero = QStringLiteral("0");
inline const QString one = QStringLiteral("1");
inline const QString two = QStringLiteral("2");
inline const QString three = QStringLiteral("3");
inline const QString four = QStringLiteral("4");
inline const QString five = QStringLiteral("5");
inline const QString six = QStringLiteral("6");
inline const QString seven = QStringLiteral("7");
inline const QString degrees90 = QStringLiteral("90");
inline const QString degrees180 = QStringLiteral("180");
inline const QString degrees270 = QStringLiteral("270");

}  // namespace FeatureValues

/// The version of the module. It is not part of the record.
inline const QString moduleVersion = QStringLiteral("2.28.054");
