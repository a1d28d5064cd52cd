#include "session/Steps.h"

#include <algorithm>
#include <climits>

namespace {

struct Kind {
    const char* name;
    const char* usage;
    int least;  ///< bounds of the number of words after the name
    int most;
    StepActionList (*parse)(const QStringList& words);
    bool answersBox = false;
};

// clang-format off
constexpr Kind kinds[] = {
    {"click", "click NAME [x y]", 1, 3, Steps::onWidget},
    {"doubleclick", "doubleclick NAME [x y]", 1, 3, Steps::onWidget},
    {"rightclick", "rightclick NAME [x y] [ENTRY]", 1, 4, Steps::onWidget},
    {"press", "press NAME x y [BUTTON]", 3, 4, Steps::onWidget},
    {"move", "move NAME x y", 3, 3, Steps::onWidget},
    {"release", "release NAME x y [BUTTON]", 3, 4, Steps::onWidget},
    {"wheel", "wheel NAME NOTCHES [x y]", 2, 4, Steps::onWidget},
    {"canvas", "canvas STEP X Y [...]", 3, 4, Steps::onBoard},
    {"type", "type NAME TEXT", 2, 2, Steps::type},
    {"key", "key NAME KEY", 2, 2, Steps::key},
    {"choose", "choose NAME ITEM", 2, 2, Steps::choose},
    {"set", "set NAME ITEM", 2, 2, Steps::set},
    {"menu", "menu NAME ENTRY", 2, 2, Steps::menu},
    {"close", "close NAME", 1, 1, Steps::close},
    {"send", "send CODE [key=value ...] [extra=N]", 1, INT_MAX, Steps::send},
    {"picture", "picture FILE [NAME]", 1, 2, Steps::picture},
    {"wait", "wait MILLISECONDS", 1, 1, Steps::wait},
    {"box", "box accept|reject|discard [title=TEXT] [text=TEXT]", 1, 3, Steps::box, true},
    {"expect", "expect message|nothing|state ...", 1, INT_MAX, Steps::expect},
};
// clang-format on

}  // namespace

SessionStep Steps::parse(const QStringList& words)
{
    const auto kind = std::find_if(std::begin(kinds), std::end(kinds), [&](const Kind& candidate) {
        return words[0] == QLatin1String(candidate.name);
    });
    if (kind == std::end(kinds)) {
        malformed(QStringLiteral("unknown step \"%1\"; choose from %2")
                      .arg(words[0], names().join(QStringLiteral(", "))));
    }
    if (words.size() - 1 < kind->least || words.size() - 1 > kind->most) {
        malformed(
            QStringLiteral("wrong number of words; usage: %1").arg(QLatin1String(kind->usage)));
    }
    return {0, kind->parse(words), kind->answersBox};
}

QStringList Steps::names()
{
    QStringList list;
    for (const Kind& kind : kinds) {
        list.append(QLatin1String(kind.name));
    }
    return list;
}
