#pragma once

#include "board/TextShape.h"

#include <QString>
#include <QVector>

namespace Pcb {

/// A bar code of one dimension as widths in narrow bars: a bar, a gap, a bar, ... Characters that
/// the code does not know are left out: see encodable().
QVector<int> linearBarcode(BarcodeType type, const QString& text);

/// The part of a text that a code can carry: small letters become capitals in plain Code 39, an
/// odd number of digits gets a leading 0 in Code 128 C, what is unknown is dropped.
QString encodable(BarcodeType type, const QString& text);

}  // namespace Pcb
