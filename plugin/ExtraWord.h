#pragma once

#include <QtGlobal>

/// An object that is passed by its address in the extra word of a message. The sender owns it; it
/// is valid only during the call. MessageCodes.h says which code carries which type.
namespace ExtraWord {

/// The word that carries `object`.
template <class T>
qint64 pointingAt(const T& object)
{
    return static_cast<qint64>(reinterpret_cast<quintptr>(&object));
}

/// The object that `word` carries; null for 0. Sender and receiver must mean the same type.
template <class T>
const T* object(qint64 word)
{
    return reinterpret_cast<const T*>(static_cast<quintptr>(word));
}

}  // namespace ExtraWord
