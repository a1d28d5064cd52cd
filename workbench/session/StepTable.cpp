#include "session/StepTable.h"

#include "session/BoxAnswers.h"
#include "session/InputEvents.h"
#include "session/MessageWords.h"
#include "session/StepActions.h"
#include "window/HostState.h"

#include <QFileInfo>
#include <QImageWriter>

#include <algorithm>
#include <climits>

namespace {

using Actions = std::vector<StepAction>;

QString checkPosition(const QStringList& arguments)
{
    if (arguments.size() == 1) {
        return {};
    }
    bool x = false;
    bool y = false;
    arguments[1].toInt(&x);
    arguments.value(2).toInt(&y);
    return x && y ? QString() : QStringLiteral("a position is two whole numbers: x y");
}

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
    const QByteArray suffix = QFileInfo(arguments[0]).suffix().toLower().toLatin1();
    return QImageWriter::supportedImageFormats().contains(suffix)
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

QString checkBox(const QStringList& arguments)
{
    return arguments[0] == QLatin1String("accept")
               ? QString()
               : QStringLiteral("\"%1\" is no answer; known is accept").arg(arguments[0]);
}

Actions clickActions(const QStringList& arguments)
{
    return {StepActions::click(StepActions::target(arguments))};
}

Actions doubleClickActions(const QStringList& arguments)
{
    return {StepActions::doubleClick(StepActions::target(arguments))};
}

Actions rightClickActions(const QStringList& arguments)
{
    const StepAction open = StepActions::rightClick(StepActions::target(arguments.mid(0, 1)));
    return {open, arguments.size() > 1 ? StepActions::pickEntry(arguments[1])
                                       : StepActions::dismissMenu()};
}

Actions typeActions(const QStringList& arguments)
{
    return {StepActions::type(arguments[0], arguments[1])};
}

Actions keyActions(const QStringList& arguments)
{
    return {StepActions::key(arguments[0], InputEvents::keyOfName(arguments[1]))};
}

Actions chooseActions(const QStringList& arguments)
{
    return {StepActions::openList(arguments[0], arguments[1]),
            StepActions::pickItem(arguments[0], arguments[1])};
}

Actions sendActions(const QStringList& arguments)
{
    HostMessage message;
    QString reason;
    MessageWords::read(arguments, &message, &reason);
    return {[message](const StepContext& context) {
        context.host->send(message);
        return StepResult{};
    }};
}

Actions pictureActions(const QStringList& arguments)
{
    return {StepActions::picture(arguments[0], arguments.value(1))};
}

Actions waitActions(const QStringList& arguments)
{
    return {[pause = arguments[0].toInt()](const StepContext&) {
        return StepResult{StepResult::Done, {}, pause};
    }};
}

Actions boxActions(const QStringList&)
{
    return {[](const StepContext& context) {
        context.boxes->expect();
        return StepResult{};
    }};
}

const std::vector<StepKind>& kinds()
{
    static const std::vector<StepKind> all{
        {"click", "click NAME [x y]", 1, 3, checkPosition, clickActions},
        {"doubleclick", "doubleclick NAME [x y]", 1, 3, checkPosition, doubleClickActions},
        {"rightclick", "rightclick NAME [ENTRY]", 1, 2, nullptr, rightClickActions},
        {"type", "type NAME TEXT", 2, 2, nullptr, typeActions},
        {"key", "key NAME KEY", 2, 2, checkKey, keyActions},
        {"choose", "choose NAME ITEM", 2, 2, nullptr, chooseActions},
        {"send", "send CODE [key=value ...] [extra=N]", 1, INT_MAX, checkMessage, sendActions},
        {"picture", "picture FILE [NAME]", 1, 2, checkPicture, pictureActions},
        {"wait", "wait MILLISECONDS", 1, 1, checkWait, waitActions},
        {"box", "box accept", 1, 1, checkBox, boxActions, true},
    };
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
