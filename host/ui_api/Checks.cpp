#include "UiApiStandIn.h"
#include "UnitText.h"
#include "ui_api.h"

#include <SymbolNames.h>

#include <QApplication>
#include <QMessageBox>

#include <algorithm>

namespace CanvasHost {
namespace {

// True only for numbers: written this way, "nan" is refused.
bool within(double value, double minimum, double maximum)
{
    return value >= minimum && value <= maximum;
}

/// The window of the widget at that address. The pointer is untyped, and may be that of something
/// else or of a deleted widget: it is compared, never dereferenced.
QWidget* windowOf(const void* context)
{
    const QWidgetList widgets = QApplication::allWidgets();
    const auto found = std::find(widgets.begin(), widgets.end(), context);
    return found == widgets.end() ? nullptr : (*found)->window();
}

void reportRefusal(const void* context, double minimum, double maximum)
{
    const QString text =
        QCoreApplication::translate("UiApi", "The value must lie between %1 and %2.");
    QMessageBox::warning(windowOf(context), QCoreApplication::translate("UiApi", "Information"),
                         text.arg(minimum, 0, 'g', 12).arg(maximum, 0, 'g', 12), QMessageBox::Ok);
}

bool hasLegalSizes(const QString& name, double minimum, double maximum)
{
    const std::optional<SymbolName> parts = parseSymbolName(name);
    if (!parts) {
        return true;
    }
    return std::all_of(parts->sizes.begin(), parts->sizes.end(), [=](const QString& size) {
        const double value = size.toDouble();
        return within(isMetric() ? value / metricFactor : value, minimum, maximum);
    });
}

}  // namespace
}  // namespace CanvasHost

namespace ZENTRA {
namespace UIAPI {

bool isNumValueLegal(double value, double minimum, double maximum, void* context)
{
    if (const auto& replacement = CanvasHost::uiApiOverrides().isNumValueLegal) {
        return replacement(value, minimum, maximum, context);
    }
    if (CanvasHost::within(value, minimum, maximum)) {
        return true;
    }
    CanvasHost::reportRefusal(context, minimum, maximum);
    return false;
}

bool isSymbolValueLegal(const QString& name, double minimum, double maximum, void* context)
{
    if (const auto& replacement = CanvasHost::uiApiOverrides().isSymbolValueLegal) {
        return replacement(name, minimum, maximum, context);
    }
    if (CanvasHost::hasLegalSizes(name, minimum, maximum)) {
        return true;
    }
    const double factor = CanvasHost::isMetric() ? CanvasHost::metricFactor : 1.0;
    CanvasHost::reportRefusal(context, minimum * factor, maximum * factor);
    return false;
}

}  // namespace UIAPI
}  // namespace ZENTRA
