// A canvas that looks up what the tool strip sends.

#include <PluginMetaData.h>

#include <plugin/ExtraWord.h>
#include <plugin/MessageCodes.h>
#include <plugin/RecordKeys.h>

#include <map>
#include <string>

namespace Sent = MessageCodes::Sent;

extern "C" Q_DECL_EXPORT const char* nameOfMessage(const PluginMetaData& message)
{
    return Sent::nameOf(message.code);
}

extern "C" Q_DECL_EXPORT bool isPositive(const PluginMetaData& message)
{
    return message.payload.value(RecordKeys::polarity).toString() == Polarity::positive;
}

extern "C" Q_DECL_EXPORT size_t attributeCount(const PluginMetaData& message)
{
    using Attributes = std::map<std::string, std::string>;
    const auto* const attributes = ExtraWord::object<Attributes>(message.extra);
    return attributes ? attributes->size() : 0;
}
