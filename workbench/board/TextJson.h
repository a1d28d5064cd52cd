#pragma once

#include "board/JsonNode.h"
#include "board/TextShape.h"

#include <QJsonObject>

namespace Pcb {

QJsonObject toJsonText(const TextSpec& text);

/// Throws a JsonFault. "format" and "content" must be there, the rest has the values of an
/// untouched TextSpec.
TextSpec textFromJson(const JsonNode& node);

}  // namespace Pcb
