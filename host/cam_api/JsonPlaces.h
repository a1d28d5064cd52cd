#pragma once

#include <HostExport.h>

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace CanvasHost {

/// Where a JSON value stands in its file, and where its parts do: a tree of the shape of the
/// document, as Qt's own JSON values do not know their lines.
struct JsonPlace {
    int line = 0;
    QStringList keys;              ///< of an object; in the order of `parts`
    std::vector<JsonPlace> parts;  ///< the members of an object or the entries of an array
    int repeatedKey = -1;          ///< index of the first key that stood before, or -1
};

/// `text` must be a JSON document that Qt has already parsed without an error.
CANVAS_HOST_EXPORT JsonPlace findJsonPlaces(const QByteArray& text);

/// The line, counted from 1, of a byte offset.
CANVAS_HOST_EXPORT int lineOfOffset(const QByteArray& text, int offset);

}  // namespace CanvasHost
