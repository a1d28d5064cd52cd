#include "messages/MessageNames.h"

#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "shared/CodeTexts.h"

#include <PluginManagerStandIn.h>

#include <QCoreApplication>
#include <QHash>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace MessageNames {
namespace {

/// Canvas and job tree are told of the open step as the tool strip is; a sibling may also ask the
/// host to open it.
bool isAccepted(const QString& receiver, int code)
{
    const bool isSibling = receiver == ModuleNames::viewer || receiver == ModuleNames::jobTree;
    return receiver == ModuleNames::toolStrip || (isSibling && code == Accepted::JobOpened);
}

}  // namespace

Extra extraOf(const QString& receiver, int code)
{
    static const QHash<int, Extra> taken{{Accepted::JobName, Extra::String},
                                         {Accepted::SymbolsPicked, Extra::Symbols},
                                         {Accepted::AttributesPicked, Extra::Attributes}};
    if (receiver == ModuleNames::toolStrip) {
        return taken.value(code, Extra::Number);
    }
    return code == Sent::AttributeMap ? Extra::Attributes : Extra::Number;
}

QString name(const QString& receiver, int code)
{
    if (receiver == CanvasHost::hostName) {
        return code == Accepted::JobOpened ? QString::fromLatin1(Accepted::nameOf(code))
                                           : QString();
    }
    return QString::fromLatin1(isAccepted(receiver, code) ? Accepted::nameOf(code)
                                                          : Sent::nameOf(code));
}

QString text(const QString& receiver, int code)
{
    if (receiver == CanvasHost::hostName) {
        return code == Accepted::JobOpened
                   ? QCoreApplication::translate("MessageNames", "Open Job and Step")
                   : QString();
    }
    return isAccepted(receiver, code) ? CodeTexts::accepted(code) : CodeTexts::sent(code);
}

const QVector<QVector<int>>& accepted()
{
    static const QVector<QVector<int>> groups{
        {Accepted::JobOpened, Accepted::JobAndStep, Accepted::JobName, Accepted::UnitChanged,
         Accepted::LanguageChanged, Accepted::SymbolsPicked, Accepted::AttributesPicked,
         Accepted::UserSymbolsChanged, Accepted::ReleaseAll},
        {Accepted::AreaZoom, Accepted::FeatureSelection, Accepted::RectangleSelection,
         Accepted::PolygonSelection, Accepted::SelectPolyline, Accepted::SelectLayerNet,
         Accepted::SelectBoardNet, Accepted::CheckAndMeasure, Accepted::Measure,
         Accepted::AddFeatureActive, Accepted::AddFeature, Accepted::DeleteFeature,
         Accepted::MoveFeature},
        {Accepted::CloseDialogs}};
    return groups;
}

}  // namespace MessageNames
