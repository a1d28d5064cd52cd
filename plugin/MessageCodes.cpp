#include "plugin/MessageCodes.h"

#include <QMetaEnum>

namespace MessageCodes {

const char* Sent::nameOf(int code)
{
    return QMetaEnum::fromType<Code>().valueToKey(code);
}

const char* Accepted::nameOf(int code)
{
    return QMetaEnum::fromType<Code>().valueToKey(code);
}

}  // namespace MessageCodes
