#include "session/StepTable.h"

#include "messages/HostState.h"
#include "messages/MessageWords.h"
#include "session/ExpectSteps.h"
#include "session/InputEvents.h"
#include "session/MouseSteps.h"
#include "session/StepActions.h"

#include <QFileInfo>
#include <QImageWriter>

#include <algorithm>
#include <climits>

namespace {

QString checkKey(const QStringList& arguments)
{
    return InputEvents::keyOfName(arguments[1]).isEmpty()
               ? QStringLiteral("\"%1\" is no key").arg(arguments[1])
               : QString();
}

QString checkMessage(const QStringList& arguments)
{
    HostMessage message;
    QString reason;
    MessageWords::read(arguments, &message, &reason);
    return reason;
}

QString checkPicture(const QStringList& arguments)
{
    static const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    const QByteArray suffix = QFileInfo(arguments[0]).suffix().toLower().toLatin1();
    return formats.contains(suffix)
               ? QString()
               : QStringLiteral("\"%1\" does not end like a picture (.png)").arg(arguments[0]);
}

QString checkWait(const QStringList& arguments)
{
    bool ok = false;
    const int milliseconds = arguments[0].toInt(&ok);
    return ok && milliseconds >= 0
               ? QString()
               : QStringLiteral("\"%1\" is no time in milliseconds").arg(arguments[0]);
}

StepActionList typeActions(const QStringList& arguments)
{
    return {StepActions::type(arguments[0], arguments[1])};
}

StepActionList keyActions(const QStringList& arguments)
{
    return {StepActions::key(arguments[0], InputEvents::keyOfName(arguments[1]))};
}

StepActionList chooseActions(const QStringList& arguments)
{
    return {StepActions::openList(arguments[0], arguments[1]),
            StepActions::pickItem(arguments[0], arguments[1])};
}

StepActionList sendActions(const QStringList& arguments)
{
    HostMessage message;
    QString reason;
    MessageWords::read(arguments, &message, &reason);
    return {[message](const StepContext& context) {
        context.host->send(message);
        return StepResult{};
    }};
}

StepActionList pictureActions(const QStringList& arguments)
{
    return {StepActions::picture(arguments[0], arguments.value(1))};
}

StepActionList waitActions(const QStringList& arguments)
{
    return {[pause = arguments[0].toInt()](const StepContext&) {
        return StepResult{StepResult::Done, {}, pause};
    }};
}

StepActionList setActions(const QStringList& arguments)
{
    return {StepActions::setItem(arguments[0], arguments[1])};
}

StepActionList menuActions(const QStringList& arguments)
{
    return {StepActions::openBarMenu(arguments[0]), StepActions::pickEntry(arguments[1])};
}

StepActionList closeActions(const QStringList& arguments)
{
    return {StepActions::closeWindow(arguments[0])};
}

const std::vector<StepKind>& kinds()
{
    // clang-format off
    static const std::vector<StepKind> all{
        {"click", "click NAME [x y]", 1, 3, MouseSteps::checkClick, MouseSteps::click},
        {"doubleclick", "doubleclick NAME [x y]", 1, 3, MouseSteps::checkClick, MouseSteps::doubleClick},
        {"rightclick", "rightclick NAME [x y] [ENTRY]", 1, 4, MouseSteps::checkRightClick, MouseSteps::rightClick},
        {"press", "press NAME x y [BUTTON]", 3, 4, MouseSteps::checkPress, MouseSteps::press},
        {"move", "move NAME x y", 3, 3, MouseSteps::checkMove, MouseSteps::move},
        {"release", "release NAME x y [BUTTON]", 3, 4, MouseSteps::checkPress, MouseSteps::release},
        {"wheel", "wheel NAME NOTCHES [x y]", 2, 4, MouseSteps::checkWheel, MouseSteps::wheel},
        {"canvas", "canvas STEP X Y [...]", 3, 4, MouseSteps::checkCanvas, MouseSteps::canvas},
        {"type", "type NAME TEXT", 2, 2, nullptr, typeActions},
        {"key", "key NAME KEY", 2, 2, checkKey, keyActions},
        {"choose", "choose NAME ITEM", 2, 2, nullptr, chooseActions},
        {"set", "set NAME ITEM", 2, 2, nullptr, setActions},
        {"menu", "menu NAME ENTRY", 2, 2, nullptr, menuActions},
        {"close", "close NAME", 1, 1, nullptr, closeActions},
        {"send", "send CODE [key=value ...] [extra=N]", 1, INT_MAX, checkMessage, sendActions},
        {"picture", "picture FILE [NAME]", 1, 2, checkPicture, pictureActions},
        {"wait", "wait MILLISECONDS", 1, 1, checkWait, waitActions},
        {"box", "box accept|reject [title=TEXT] [text=TEXT]", 1, 3, ExpectSteps::checkBox, ExpectSteps::box, true},
        {"expect", "expect message|nothing|state ...", 1, INT_MAX, ExpectSteps::checkExpect, ExpectSteps::expect},
    };
    // clang-format on
    return all;
}

}  // namespace

namespace StepTable {

const StepKind* find(const QString& name)
{
    const auto& all = kinds();
    const auto found = std::find_if(all.begin(), all.end(), [&](const StepKind& kind) {
        return name == QLatin1String(kind.name);
    });
    return found == all.end() ? nullptr : &*found;
}

QStringList names()
{
    QStringList list;
    for (const StepKind& kind : kinds()) {
        list.append(QLatin1String(kind.name));
    }
    return list;
}

}  // namespace StepTable
