#pragma once

#include "Recorder.h"

#include <QVariantMap>

/// What is true of every record and message of the module, whatever was done before. Each function
/// says what is wrong; an empty text if nothing is.
namespace Invariants {

/// 45 keys, each of its type, the numbers within their metric bounds.
QString faultOf(const QVariantMap& record);

/// A code that the module sends, with its sender, receiver, extra word and payload.
QString faultOf(const Recorder::Entry& entry);

}  // namespace Invariants
