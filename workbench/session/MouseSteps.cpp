#include "session/Steps.h"

#include "session/InputEvents.h"
#include "session/Reach.h"

#include <QCursor>
#include <QHash>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Steps {
namespace {

using Reach::Target;

/// What a step says besides its place.
struct Extra {
    Qt::MouseButton button = Qt::LeftButton;
    double notches = 0;
};

/// What the mouse does in a step.
struct MouseStep {
    const char* name;
    const char* boardUsage;
    enum { Nothing, Button, Entry, Notches } extra;
    enum { OrMiddle, Inside, Anywhere } place;  ///< on a widget OrMiddle may be left out
    void (*act)(QWidget* widget, const QPoint& position, const Extra& extra);
};

constexpr MouseStep steps[] = {
    {"click", "X Y", MouseStep::Nothing, MouseStep::OrMiddle,
     [](QWidget* widget, const QPoint& position, const Extra&) {
         InputEvents::click(widget, position);
     }},
    {"doubleclick", "X Y", MouseStep::Nothing, MouseStep::OrMiddle,
     [](QWidget* widget, const QPoint& position, const Extra&) {
         InputEvents::doubleClick(widget, position);
     }},
    {"rightclick", "X Y [ENTRY]", MouseStep::Entry, MouseStep::OrMiddle,
     [](QWidget* widget, const QPoint& position, const Extra&) {
         // A menu opens where the mouse is.
         QCursor::setPos(widget->mapToGlobal(position));
         InputEvents::click(widget, position, Qt::RightButton);
     }},
    {"move", "X Y", MouseStep::Nothing, MouseStep::Anywhere,
     [](QWidget* widget, const QPoint& position, const Extra&) {
         InputEvents::move(widget, position);
     }},
    {"press", "X Y [BUTTON]", MouseStep::Button, MouseStep::Inside,
     [](QWidget* widget, const QPoint& position, const Extra& extra) {
         InputEvents::press(widget, position, extra.button);
     }},
    {"release", "X Y [BUTTON]", MouseStep::Button, MouseStep::Anywhere,
     [](QWidget* widget, const QPoint& position, const Extra& extra) {
         InputEvents::release(widget, position, extra.button);
     }},
    {"wheel", "X Y NOTCHES", MouseStep::Notches, MouseStep::OrMiddle,
     [](QWidget* widget, const QPoint& position, const Extra& extra) {
         InputEvents::wheel(widget, position, extra.notches);
     }},
};

const MouseStep* find(const QString& name)
{
    const auto found = std::find_if(std::begin(steps), std::end(steps), [&](const MouseStep& step) {
        return name == QLatin1String(step.name);
    });
    return found == std::end(steps) ? nullptr : found;
}

Extra readExtra(const MouseStep& step, const QString& word)
{
    static const QHash<QString, Qt::MouseButton> buttons{
        {QString(), Qt::LeftButton},
        {QStringLiteral("left"), Qt::LeftButton},
        {QStringLiteral("middle"), Qt::MiddleButton},
        {QStringLiteral("right"), Qt::RightButton}};
    Extra extra;
    if (step.extra == MouseStep::Button) {
        if (!buttons.contains(word)) {
            malformed(QStringLiteral("\"%1\" is not a button; choose from left, middle, right")
                          .arg(word));
        }
        extra.button = buttons.value(word);
    } else if (step.extra == MouseStep::Notches) {
        bool ok = false;
        extra.notches = word.toDouble(&ok);
        if (!ok || !(std::abs(extra.notches) <= 1000)) {
            malformed(QStringLiteral("\"%1\" is not a number of notches").arg(word));
        }
    }
    return extra;
}

/// `word` is what the step says besides the place, if anything.
StepActionList actionsOf(const MouseStep& step, Target target, const QString& word)
{
    target.mayLeave = step.place == MouseStep::Anywhere;
    StepActionList actions{[act = step.act, target, extra = readExtra(step, word)](StepContext&) {
        const Reach::Place place = Reach::reach(target);
        act(place.widget, place.position, extra);
    }};
    if (step.extra == MouseStep::Entry) {
        // A click on the middle of a widget is for its menu, on a place perhaps for something else.
        actions.push_back(word.isEmpty() ? dismissMenu(target.kind == Target::Centre)
                                         : pickEntry(word));
    }
    return actions;
}

bool takePlace(QStringList* words, QPointF* place)
{
    bool xIsWhole = false;
    bool yIsWhole = false;
    *place = QPointF(words->value(0).toInt(&xIsWhole), words->value(1).toInt(&yIsWhole));
    const bool found = xIsWhole && yIsWhole;
    *words = words->mid(found ? 2 : 0);
    return found;
}

}  // namespace

StepActionList onWidget(const QStringList& words)
{
    const MouseStep& step = *find(words[0]);
    Target target{words[1]};
    const bool notches = step.extra == MouseStep::Notches;
    QStringList rest = words.mid(notches ? 3 : 2);
    if (takePlace(&rest, &target.place)) {
        target.kind = Target::Pixels;
    } else if (step.place != MouseStep::OrMiddle ||
               rest.size() > (step.extra == MouseStep::Entry ? 1 : 0)) {
        malformed(QStringLiteral("a position is two whole numbers: x y"));
    }
    return actionsOf(step, target, notches ? words[2] : rest.value(0));
}

StepActionList onBoard(const QStringList& words)
{
    const MouseStep* const step = find(words[1]);
    if (!step) {
        QStringList names;
        for (const MouseStep& known : steps) {
            names.append(QLatin1String(known.name));
        }
        malformed(QStringLiteral("unknown step \"%1\" of the canvas; choose from %2")
                      .arg(words[1], names.join(QStringLiteral(", "))));
    }
    const QPointF place(Reach::length(words[2]), Reach::length(words[3]));
    const int extras = words.size() - 4;
    if ((step->extra == MouseStep::Nothing && extras > 0) ||
        (step->extra == MouseStep::Notches && extras == 0)) {
        malformed(QStringLiteral("wrong number of words; usage: canvas %1 %2")
                      .arg(QLatin1String(step->name), QLatin1String(step->boardUsage)));
    }
    return actionsOf(*step, {Reach::canvasName, Target::Board, place}, words.value(4));
}

}  // namespace Steps
