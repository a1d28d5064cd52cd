#pragma once

#include "board/TextShape.h"

#include <QString>
#include <QVector>

namespace Pcb {

/// A text as dark and light modules. The quiet zone is not part of it.
struct Code {
    QVector<QVector<bool>> rows;  ///< from top to bottom, true: dark; one for bars, none if empty
    QString leftOut;              ///< the characters that the code cannot carry
};

/// Bars, or a square matrix. Plain Code 39 reads lower case as upper case, Code 128 C puts a 0
/// before an odd number of digits. `size` may be that of a matrix, "16" or "16x16"; anything else,
/// or one too small for the text, gives the smallest that holds it.
Code encode(BarcodeType type, const QString& text, const QString& size = {});

}  // namespace Pcb
