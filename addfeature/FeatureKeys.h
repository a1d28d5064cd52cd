#pragma once

#include <QString>

/// The keys of the feature parameter record. A receiver reads every value as text or integer; where
/// the type is not named it is text. Lengths are micrometres unless said otherwise. Like all that
/// is sent they outlive the library; see ModuleNames.h.
namespace FeatureKeys {

// The frame
inline const QString features =
    QString::fromLatin1("Features");  ///< 1 Line … 5 Text; integer once chosen
inline const QString attributes =
    QString::fromLatin1("Attributes");  ///< "1" with attributes, "0" without
inline const QString polarity = QString::fromLatin1("Polarity");  ///< "1" positive, "0" negative
inline const QString mirror = QString::fromLatin1("Mirror");      ///< "1" mirrored, "2" not
inline const QString mirrorRotate =
    QString::fromLatin1("MirrorRotate");                              ///< rotation, whole degrees
inline const QString symbolText = QString::fromLatin1("SymbolText");  ///< symbol name, sizes in mil

// Line
inline const QString line = QString::fromLatin1("Line");      ///< "1" single … "4" slot
inline const QString closed = QString::fromLatin1("Closed");  ///< "1" closed polyline, "0" open
inline const QString angleGroup =
    QString::fromLatin1("AngleGroup");  ///< 1 free … 6 fixed; integer once chosen
inline const QString angle =
    QString::fromLatin1("Angel(deg)");  ///< degrees, spelled so deliberately
inline const QString cornerType =
    QString::fromLatin1("CornerType");  ///< 1 straight … 4 oblong; integer once chosen
inline const QString cornerRadius = QString::fromLatin1("CornerRadius");
inline const QString slotPlated = QString::fromLatin1("SlotPlated");  ///< "1" plated, "2" not
inline const QString slotLength = QString::fromLatin1("SlotLength");  ///< millimetre
inline const QString slotAngle = QString::fromLatin1("SlotAngle");    ///< degrees, as typed
inline const QString slotDecode = QString::fromLatin1("SlotDecode");  ///< as typed

// Pad
inline const QString padNx = QString::fromLatin1("PadNx");  ///< count, as typed
inline const QString padNy = QString::fromLatin1("PadNy");
inline const QString padDx = QString::fromLatin1("PadDx");  ///< pitch
inline const QString padDy = QString::fromLatin1("PadDy");
inline const QString padXscl = QString::fromLatin1("PadXscl");  ///< scale factor, as typed
inline const QString padYscl = QString::fromLatin1("PadYscl");

// Surface
inline const QString surfaceShape =
    QString::fromLatin1("SurfaceShape");  ///< "1" rectangle, "2" polygon, "3" circle

// Arc
inline const QString arcAndCircle = QString::fromLatin1("Arc&Circle");  ///< "1" arc, "2" circle
inline const QString arcMode = QString::fromLatin1("ArcMode");          ///< "1" to "7"
inline const QString circleMode = QString::fromLatin1("CircleMode");    ///< "1" to "4"
inline const QString clockWise = QString::fromLatin1("ClockWise");      ///< "1" clockwise, "2" not

// Text
inline const QString textFormat =
    QString::fromLatin1("TextFormat");  ///< "1", "BarcodeMode", "3", "4"
inline const QString stringTextFont = QString::fromLatin1("StringTextFont");
inline const QString textContains = QString::fromLatin1("TextContains");  ///< the text to place
inline const QString stringXSize = QString::fromLatin1("StringXSize");
inline const QString stringYSize = QString::fromLatin1("StringYSize");
inline const QString stringLineWidth = QString::fromLatin1("StringLineWidth");

// Barcode
inline const QString barcodeMode =
    QString::fromLatin1("BarcodeMode");  ///< 1 to 5; integer once chosen
inline const QString addString =
    QString::fromLatin1("AddString");  ///< "1" on, "2" off; so the next two
inline const QString addBackground = QString::fromLatin1("AddBackground");
inline const QString addMarkers = QString::fromLatin1("AddMarkers");
inline const QString stringPosition =
    QString::fromLatin1("StringPosition");  ///< "2" top, "1" bottom
inline const QString barcodeHeight = QString::fromLatin1("BarcodeHeight");
inline const QString barcodeMatrix = QString::fromLatin1("BarcodeMatrix");

// Plot stamp and canned text
inline const QString orbotechType =
    QString::fromLatin1("OrbotechType");  ///< "1" string, "2" barcode
inline const QString orbotechFontSize =
    QString::fromLatin1("OrbotechFontSize");                              ///< 1 to 4, integer
inline const QString orbotechZoom = QString::fromLatin1("OrbotechZoom");  ///< 1 to 7, integer
inline const QString cannedHoleMode =
    QString::fromLatin1("CannedHoleMode");  ///< "1" 5 x 7, "2" 6 x 7
inline const QString cannedHoleSize = QString::fromLatin1("CannedHoleSize");

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
