#pragma once

#include <QLatin1String>

/// The object, by which sessions, style sheets and accessibility tools find it.
template <typename Object>
Object* named(Object* object, const char* name)
{
    object->setObjectName(QLatin1String(name));
    return object;
}
