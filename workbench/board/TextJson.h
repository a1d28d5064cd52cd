#pragma once

#include "board/TextShape.h"

#include <Json.h>

#include <QJsonObject>

namespace Pcb {

QJsonObject toJsonText(const TextSpec& text);

/// Throws a FileError. "format" and "content" must be present, the rest has the values of a
/// default TextSpec.
TextSpec textFromJson(const CanvasHost::JsonNode& node);

}  // namespace Pcb
