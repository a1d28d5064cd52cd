#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Pcb {

/// A square matrix code: rows from top to bottom, true where a module is dark. The finder pattern
/// is part of it, the quiet zone is not.
using Modules = QVector<QVector<bool>>;

/// Encodes `text` with error correction. `wanted` may name a size as "16" or "16x16"; anything
/// else, or one too small for the text, gives the least size that holds it. Characters above 127
/// are left out, and what the largest size (48 x 48) cannot hold is cut off.
Modules dataMatrix(const QString& text, const QString& wanted = {});

}  // namespace Pcb
