#pragma once

#include "board/TextShape.h"

#include <Json.h>

#include <QJsonObject>

namespace Pcb {

QJsonObject toJsonText(const TextSpec& text);

/// Throws a FileError. "format" and "content" must be there, the rest has the values of an
/// untouched TextSpec.
TextSpec textFromJson(const CanvasHost::JsonNode& node);

}  // namespace Pcb
