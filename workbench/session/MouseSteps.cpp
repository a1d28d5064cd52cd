#include "session/MouseSteps.h"

#include "session/BoardPlaces.h"
#include "session/StepActions.h"

#include <QHash>

#include <cmath>

namespace MouseSteps {
namespace {

using StepReach::Target;

bool isWhole(const QString& word)
{
    bool ok = false;
    word.toInt(&ok);
    return ok;
}

/// Whether a position begins at that word.
bool hasPosition(const QStringList& words, int at)
{
    return words.size() > at + 1 && isWhole(words[at]) && isWhole(words[at + 1]);
}

QString positionFault()
{
    return QStringLiteral("a position is two whole numbers: x y");
}

/// Of the words "NAME [x y]".
Target target(const QStringList& words)
{
    if (!hasPosition(words, 1)) {
        return {words[0], Target::Centre};
    }
    return {words[0], Target::Pixels, QPointF(words[1].toInt(), words[2].toInt())};
}

Target leaving(Target target)
{
    target.mayLeave = true;
    return target;
}

bool buttonOf(const QString& name, Qt::MouseButton* button)
{
    static const QHash<QString, Qt::MouseButton> buttons{
        {QStringLiteral("left"), Qt::LeftButton},
        {QStringLiteral("middle"), Qt::MiddleButton},
        {QStringLiteral("right"), Qt::RightButton}};
    *button = buttons.value(name, Qt::LeftButton);
    return buttons.contains(name);
}

Qt::MouseButton buttonOf(const QString& name)
{
    Qt::MouseButton button = Qt::LeftButton;
    buttonOf(name, &button);
    return button;
}

QString buttonFault(const QString& name)
{
    Qt::MouseButton button = Qt::LeftButton;
    return name.isEmpty() || buttonOf(name, &button)
               ? QString()
               : QStringLiteral("\"%1\" is no button; known are left, middle, right").arg(name);
}

QString notchesFault(const QString& word)
{
    bool ok = false;
    const double notches = word.toDouble(&ok);
    return ok && std::abs(notches) <= 1000
               ? QString()
               : QStringLiteral("\"%1\" is no number of notches").arg(word);
}

using CanvasActions = StepActionList (*)(const Target& target, const QString& last);

/// A step of the canvas: what follows the place, if anything may, and the actions.
struct CanvasStep {
    const char* name;
    const char* usage;
    enum { Nothing, Button, Entry, Notches } last;
    CanvasActions actions;
};

StepActionList rightClickAt(const Target& target, const QString& entry)
{
    return {StepActions::rightClick(target),
            entry.isEmpty() ? StepActions::dismissMenuIfAny() : StepActions::pickEntry(entry)};
}

const std::vector<CanvasStep>& canvasSteps()
{
    static const std::vector<CanvasStep> all{
        {"click", "X Y", CanvasStep::Nothing,
         [](const Target& target, const QString&) -> StepActionList {
             return {StepActions::click(target)};
         }},
        {"doubleclick", "X Y", CanvasStep::Nothing,
         [](const Target& target, const QString&) -> StepActionList {
             return {StepActions::doubleClick(target)};
         }},
        {"rightclick", "X Y [ENTRY]", CanvasStep::Entry, rightClickAt},
        {"move", "X Y", CanvasStep::Nothing,
         [](const Target& target, const QString&) -> StepActionList {
             return {StepActions::move(leaving(target))};
         }},
        {"press", "X Y [BUTTON]", CanvasStep::Button,
         [](const Target& target, const QString& button) -> StepActionList {
             return {StepActions::press(target, buttonOf(button))};
         }},
        {"release", "X Y [BUTTON]", CanvasStep::Button,
         [](const Target& target, const QString& button) -> StepActionList {
             return {StepActions::release(leaving(target), buttonOf(button))};
         }},
        {"wheel", "X Y NOTCHES", CanvasStep::Notches,
         [](const Target& target, const QString& notches) -> StepActionList {
             return {StepActions::wheel(target, notches.toDouble())};
         }},
    };
    return all;
}

const CanvasStep* canvasStep(const QString& name)
{
    for (const CanvasStep& step : canvasSteps()) {
        if (name == QLatin1String(step.name)) {
            return &step;
        }
    }
    return nullptr;
}

QString canvasStepNames()
{
    QStringList names;
    for (const CanvasStep& step : canvasSteps()) {
        names.append(QLatin1String(step.name));
    }
    return names.join(QStringLiteral(", "));
}

}  // namespace

QString checkClick(const QStringList& arguments)
{
    const bool right =
        arguments.size() == 1 || (arguments.size() == 3 && hasPosition(arguments, 1));
    return right ? QString() : positionFault();
}

QString checkRightClick(const QStringList& arguments)
{
    return arguments.size() < 3 || hasPosition(arguments, 1) ? QString() : positionFault();
}

QString checkPress(const QStringList& arguments)
{
    return hasPosition(arguments, 1) ? buttonFault(arguments.value(3)) : positionFault();
}

QString checkMove(const QStringList& arguments)
{
    return hasPosition(arguments, 1) ? QString() : positionFault();
}

QString checkWheel(const QStringList& arguments)
{
    QString fault = notchesFault(arguments[1]);
    if (!fault.isEmpty()) {
        return fault;
    }
    return arguments.size() == 2 || hasPosition(arguments, 2) ? QString() : positionFault();
}

QString checkCanvas(const QStringList& arguments)
{
    const CanvasStep* const step = canvasStep(arguments[0]);
    if (!step) {
        return QStringLiteral("unknown step \"%1\" of the canvas; known are %2")
            .arg(arguments[0], canvasStepNames());
    }
    for (const QString& word : arguments.mid(1, 2)) {
        double length = 0;
        if (!BoardPlaces::readLength(word, &length)) {
            return QStringLiteral("\"%1\" is no length (a number, and um, mm, mil or inch)")
                .arg(word);
        }
    }
    const QString last = arguments.value(3);
    const bool missing = step->last == CanvasStep::Notches && arguments.size() < 4;
    if (missing || (step->last == CanvasStep::Nothing && arguments.size() > 3)) {
        return QStringLiteral("wrong number of words; usage: canvas %1 %2")
            .arg(QLatin1String(step->name), QLatin1String(step->usage));
    }
    if (step->last == CanvasStep::Notches) {
        return notchesFault(last);
    }
    return step->last == CanvasStep::Button ? buttonFault(last) : QString();
}

StepActionList click(const QStringList& arguments)
{
    return {StepActions::click(target(arguments))};
}

StepActionList doubleClick(const QStringList& arguments)
{
    return {StepActions::doubleClick(target(arguments))};
}

StepActionList rightClick(const QStringList& arguments)
{
    if (hasPosition(arguments, 1)) {
        return rightClickAt(target(arguments), arguments.value(3));
    }
    return {StepActions::rightClick(target(arguments)), arguments.size() > 1
                                                            ? StepActions::pickEntry(arguments[1])
                                                            : StepActions::dismissMenu()};
}

StepActionList press(const QStringList& arguments)
{
    return {StepActions::press(target(arguments), buttonOf(arguments.value(3)))};
}

StepActionList move(const QStringList& arguments)
{
    return {StepActions::move(leaving(target(arguments)))};
}

StepActionList release(const QStringList& arguments)
{
    return {StepActions::release(leaving(target(arguments)), buttonOf(arguments.value(3)))};
}

StepActionList wheel(const QStringList& arguments)
{
    QStringList place = arguments;
    place.removeAt(1);
    return {StepActions::wheel(target(place), arguments[1].toDouble())};
}

StepActionList canvas(const QStringList& arguments)
{
    QPointF place;
    BoardPlaces::readLength(arguments[1], &place.rx());
    BoardPlaces::readLength(arguments[2], &place.ry());
    return canvasStep(arguments[0])
        ->actions({BoardPlaces::canvasName, Target::Board, place}, arguments.value(3));
}

}  // namespace MouseSteps
