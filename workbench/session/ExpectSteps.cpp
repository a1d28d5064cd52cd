#include "session/Steps.h"

#include "session/BoxAnswers.h"
#include "session/MessageExpectation.h"
#include "session/Reach.h"
#include "session/SentMessages.h"
#include "session/WidgetState.h"

namespace Steps {
namespace {

constexpr int settleTime = 60;  // milliseconds in which a late message would have arrived

QString fault(const QString& wanted, const QString& got)
{
    return QStringLiteral("expected %1, got %2").arg(wanted, got);
}

StepActionList expectMessage(const QStringList& words)
{
    return {[expectation = MessageExpectation::read(words)](StepContext& context) {
        if (!context.sent->take(expectation)) {
            notYet(fault(expectation.text(), context.sent->insteadOf(expectation)));
        }
    }};
}

StepActionList expectNothing(const QStringList& words)
{
    if (!words.isEmpty()) {
        malformed(QStringLiteral("nothing follows \"nothing\""));
    }
    return {[](StepContext& context) { context.pause = settleTime; },
            [](StepContext& context) {
                if (!context.sent->isEmpty()) {
                    never(fault(QStringLiteral("no further message"), context.sent->text()));
                }
            }};
}

StepAction expectProperty(const QString& name, const QString& property, const QString& value)
{
    return [=](StepContext&) {
        const QString wanted = QStringLiteral("%1=\"%2\" of \"%3\"").arg(property, value, name);
        const QWidget* widget = nullptr;
        try {
            widget = Reach::widget(name);
        } catch (const StepFault& absent) {
            notYet(fault(wanted, absent.reason));
        }
        const QString got = WidgetState::read(widget, property);
        if (got != value) {
            notYet(fault(wanted, QStringLiteral("\"%1\"").arg(got)));
        }
    };
}

StepActionList expectState(const QStringList& words)
{
    if (words.size() < 2) {
        malformed(QStringLiteral("usage: expect state NAME PROPERTY=VALUE ..."));
    }
    StepActionList actions;
    for (const QString& word : words.mid(1)) {
        const int equals = word.indexOf(QLatin1Char('='));
        if (equals < 1) {
            malformed(QStringLiteral("\"%1\" is not a state PROPERTY=VALUE").arg(word));
        }
        actions.push_back(expectProperty(words[0], word.left(equals), word.mid(equals + 1)));
    }
    return actions;
}

}  // namespace

StepActionList expect(const QStringList& words)
{
    const QStringList rest = words.mid(2);
    if (words[1] == QLatin1String("message")) {
        return expectMessage(rest);
    }
    if (words[1] == QLatin1String("nothing")) {
        return expectNothing(rest);
    }
    if (words[1] == QLatin1String("state")) {
        return expectState(rest);
    }
    malformed(QStringLiteral("\"%1\" cannot be expected; choose from message, nothing, state")
                  .arg(words[1]));
}

StepActionList box(const QStringList& words)
{
    BoxExpectation box;
    const int answer = BoxAnswers::words().indexOf(words[1]);
    if (answer < 0) {
        malformed(QStringLiteral("\"%1\" is not an answer; choose from %2")
                      .arg(words[1], BoxAnswers::words().join(QStringLiteral(", "))));
    }
    box.answer = static_cast<BoxAnswer>(answer);
    for (const QString& word : words.mid(2)) {
        const QString value = word.section(QLatin1Char('='), 1);
        if (word.startsWith(QLatin1String("title="))) {
            box.title = value;
        } else if (word.startsWith(QLatin1String("text="))) {
            box.text = value;
        } else {
            malformed(QStringLiteral("\"%1\" is neither title=... nor text=...").arg(word));
        }
    }
    return {[box](StepContext& context) mutable {
        box.line = context.line;
        context.boxes->expect(box);
    }};
}

}  // namespace Steps
