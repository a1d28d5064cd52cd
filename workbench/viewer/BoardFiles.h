#pragma once

#include "viewer/Document.h"

#include <QString>

/// A step's board as a file: opened, saved, exported.
namespace BoardFiles {

/// Each throws a FileError. A file that is refused leaves the document as it is; one that cannot be
/// written leaves the file that was there.
void open(Document& document, const QString& file);
void save(const Document& document, const QString& file);

/// The kind follows from the end of the name: ".gbr" Gerber, ".png" or ".svg" a picture, ".json"
/// the board itself.
void exportTo(const Document& document, const QString& file);

}  // namespace BoardFiles
