#include "plugin/MessageCodes.h"

#include <QMetaEnum>

namespace MessageCodes {
namespace {

template <class Code>
QVector<int> allOf()
{
    const QMetaEnum codes = QMetaEnum::fromType<Code>();
    QVector<int> all;
    for (int i = 0; i < codes.keyCount(); ++i) {
        all.append(codes.value(i));
    }
    return all;
}

}  // namespace

const char* Sent::nameOf(int code)
{
    return QMetaEnum::fromType<Code>().valueToKey(code);
}

QVector<int> Sent::all()
{
    return allOf<Code>();
}

const char* Accepted::nameOf(int code)
{
    return QMetaEnum::fromType<Code>().valueToKey(code);
}

QVector<int> Accepted::all()
{
    return allOf<Code>();
}

}  // namespace MessageCodes
