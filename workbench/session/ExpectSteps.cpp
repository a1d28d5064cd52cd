#include "session/ExpectSteps.h"

#include "session/BoxAnswers.h"
#include "session/MessageExpectation.h"
#include "session/SentMessages.h"
#include "session/StepReach.h"
#include "session/WidgetState.h"

namespace ExpectSteps {
namespace {

constexpr int settleTime = 60;  // milliseconds in which a late message would have come

/// "key=value" apart; false without a key.
bool takePair(const QString& word, QString* key, QString* value)
{
    const int equals = word.indexOf(QLatin1Char('='));
    *key = word.left(equals);
    *value = word.mid(equals + 1);
    return equals > 0;
}

StepResult expected(StepResult::Kind kind, const QString& wanted, const QString& got)
{
    return {kind, QStringLiteral("expected %1, got %2").arg(wanted, got)};
}

QString checkMessage(const QStringList& words)
{
    MessageExpectation expectation;
    QString reason;
    MessageExpectation::read(words, &expectation, &reason);
    return reason;
}

QString checkNothing(const QStringList& words)
{
    return words.isEmpty() ? QString() : QStringLiteral("nothing follows \"nothing\"");
}

QString checkState(const QStringList& words)
{
    if (words.size() < 2) {
        return QStringLiteral("usage: expect state NAME PROPERTY=VALUE ...");
    }
    for (const QString& word : words.mid(1)) {
        QString property;
        QString value;
        if (!takePair(word, &property, &value)) {
            return QStringLiteral("\"%1\" is no state PROPERTY=VALUE").arg(word);
        }
    }
    return {};
}

StepActionList expectMessage(const QStringList& words)
{
    MessageExpectation expectation;
    QString reason;
    MessageExpectation::read(words, &expectation, &reason);
    return {[expectation](const StepContext& context) -> StepResult {
        if (context.sent->take(expectation)) {
            return {};
        }
        return expected(StepResult::Again, expectation.text(),
                        context.sent->insteadOf(expectation));
    }};
}

StepActionList expectNothing(const QStringList&)
{
    return {[](const StepContext&) {
                return StepResult{StepResult::Done, {}, settleTime};
            },
            [](const StepContext& context) -> StepResult {
                if (context.sent->isEmpty()) {
                    return {};
                }
                return expected(StepResult::Failed, QStringLiteral("no further message"),
                                context.sent->text());
            }};
}

StepAction expectProperty(const QString& name, const QString& property, const QString& value)
{
    return [=](const StepContext&) -> StepResult {
        StepResult result;
        const QString wanted = QStringLiteral("%1=\"%2\" of \"%3\"").arg(property, value, name);
        const QWidget* const widget = StepReach::find(name, &result);
        if (!widget) {
            return expected(StepResult::Again, wanted, result.reason);
        }
        QString got;
        QString reason;
        if (!WidgetState::read(widget, property, &got, &reason)) {
            return StepReach::failed(reason);
        }
        return got == value
                   ? StepResult{}
                   : expected(StepResult::Again, wanted, QStringLiteral("\"%1\"").arg(got));
    };
}

StepActionList expectState(const QStringList& words)
{
    StepActionList actions;
    for (const QString& word : words.mid(1)) {
        QString property;
        QString value;
        takePair(word, &property, &value);
        actions.push_back(expectProperty(words[0], property, value));
    }
    return actions;
}

/// What can be expected.
struct Kind {
    const char* name;
    QString (*check)(const QStringList& words);
    StepActionList (*actions)(const QStringList& words);
};
constexpr Kind kinds[] = {{"message", checkMessage, expectMessage},
                          {"nothing", checkNothing, expectNothing},
                          {"state", checkState, expectState}};

const Kind* kindOf(const QString& name)
{
    for (const Kind& kind : kinds) {
        if (name == QLatin1String(kind.name)) {
            return &kind;
        }
    }
    return nullptr;
}

/// False, with a reason, for words that are no expectation of a box.
bool readBox(const QStringList& words, BoxExpectation* box, QString* reason)
{
    box->accept = words[0] == QLatin1String("accept");
    if (!box->accept && words[0] != QLatin1String("reject")) {
        *reason = QStringLiteral("\"%1\" is no answer; known are accept, reject").arg(words[0]);
        return false;
    }
    for (const QString& word : words.mid(1)) {
        QString key;
        QString value;
        takePair(word, &key, &value);
        if (key == QLatin1String("title")) {
            box->title = value;
        } else if (key == QLatin1String("text")) {
            box->text = value;
        } else {
            *reason = QStringLiteral("\"%1\" is neither title=... nor text=...").arg(word);
            return false;
        }
    }
    return true;
}

}  // namespace

QString checkExpect(const QStringList& arguments)
{
    const Kind* const kind = kindOf(arguments[0]);
    return kind ? kind->check(arguments.mid(1))
                : QStringLiteral("\"%1\" cannot be expected; known are message, nothing, state")
                      .arg(arguments[0]);
}

QString checkBox(const QStringList& arguments)
{
    BoxExpectation box;
    QString reason;
    readBox(arguments, &box, &reason);
    return reason;
}

StepActionList expect(const QStringList& arguments)
{
    return kindOf(arguments[0])->actions(arguments.mid(1));
}

StepActionList box(const QStringList& arguments)
{
    BoxExpectation box;
    QString reason;
    readBox(arguments, &box, &reason);
    return {[box](const StepContext& context) {
        BoxExpectation here = box;
        here.line = context.line;
        context.boxes->expect(here);
        return StepResult{};
    }};
}

}  // namespace ExpectSteps
