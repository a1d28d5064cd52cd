// The stand-ins with one fault, which WRONG_HOST in the environment names.

#include "toolbar/Canvas_Tool_Strip.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QApplication>
#include <QEvent>
#include <QRegularExpression>

#include <dlfcn.h>

using CanvasHost::camApiOverrides;
using CanvasHost::uiApiOverrides;
using namespace ZENTRA;

namespace {

bool isFaulty(const char* fault)
{
    return qgetenv("WRONG_HOST") == fault;
}

/// What `call` returns without `replacement`: the stand-in's own answer.
template <class Function, class Call>
auto own(std::function<Function>& replacement, Call call)
{
    const std::function<Function> kept = std::exchange(replacement, nullptr);
    const auto result = call();
    replacement = kept;
    return result;
}

/// In inch or millimetres instead of mil or micrometres.
double tooSmall(void* context, double value)
{
    return own(uiApiOverrides().getUnitData,
               [&] { return UIAPI::getUnitData(context, value) / 1000; });
}

QString withoutDecimals(const QString& name, int direction)
{
    static const QRegularExpression decimals(QStringLiteral("\\.[0-9]+"));
    return own(uiApiOverrides().setSymbolUIData,
               [&] { return UIAPI::setSymbolUIData(name, direction).remove(decimals); });
}

bool anySymbolForArcs(const std::string& name, API::symbol_type& type, int& a, int& b, bool)
{
    return own(camApiOverrides().identify_symbol,
               [&] { return API::identify_symbol(name, type, a, b, false); });
}

bool twoBoxes(double value, double minimum, double maximum, void* context)
{
    return own(uiApiOverrides().isNumValueLegal, [&] {
        UIAPI::isNumValueLegal(value, minimum, maximum, context);
        return UIAPI::isNumValueLegal(value, minimum, maximum, context);
    });
}

const bool isInstalled = [] {
    if (isFaulty("units")) {
        uiApiOverrides().getUnitData = tooSmall;
    } else if (isFaulty("symbol names")) {
        uiApiOverrides().setSymbolUIData = withoutDecimals;
    } else if (isFaulty("arcs")) {
        camApiOverrides().identify_symbol = anySymbolForArcs;
    } else if (isFaulty("bounds")) {
        uiApiOverrides().isNumValueLegal = twoBoxes;
    }
    return true;
}();

class DeletesPopupsOnClose : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->inherits("Widget_listpopup")) {
            static_cast<QWidget*>(watched)->setAttribute(Qt::WA_DeleteOnClose);
        }
        return QObject::eventFilter(watched, event);
    }
};

void installFilter()
{
    if (isFaulty("popups")) {
        qApp->installEventFilter(new DeletesPopupsOnClose(qApp));
    }
}
Q_COREAPP_STARTUP_FUNCTION(installFilter)

}  // namespace

/// As a host's measure popup asks.
Q_DECL_EXPORT bool isMeasuring(const Canvas_Tool_Strip& strip)
{
    return strip.isToolButtonChecked(int(Tool::Measure));
}

void UIAPI::ZTLineEdit::changeunit(bool isMM)
{
    using ChangeUnit = void (*)(ZTLineEdit*, bool);
    static const auto changeUnit = reinterpret_cast<ChangeUnit>(
        dlsym(RTLD_NEXT, "_ZN6ZENTRA5UIAPI10ZTLineEdit10changeunitEb"));
    changeUnit(this, isMM);
    if (isFaulty("line edit")) {
        Q_EMIT editingFinished();
    }
}
