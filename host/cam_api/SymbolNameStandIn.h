#pragma once

// How standard symbol names are built; shared by the stand-ins, not a part of the host's API.

#include <cam_api.h>

#include <QStringList>

#include <optional>

namespace CanvasHost {

/// A standard symbol name taken apart: prefix, sizes joined by "x", rotation suffix.
struct SymbolName {
    ZENTRA::API::symbol_type type = ZENTRA::API::unknown;
    QString prefix;
    QStringList sizes;  ///< unsigned decimals, as they stand in the name
    QString rotation;   ///< "_45", or empty
};

/// Nothing for a name whose prefix is no standard one, or whose sizes are not as many as its shape
/// takes. The values of the sizes are not judged.
CANVAS_HOST_EXPORT std::optional<SymbolName> parseSymbolName(const QString& name);

}  // namespace CanvasHost
