#include "CommonWidgetsStandIn.h"
#include "MeasurePane.h"
#include "common_widgets.h"

#include <QVBoxLayout>

namespace CanvasHost {
namespace {

std::function<void()>& measureStarted()
{
    static std::function<void()> started;
    return started;
}

}  // namespace

void setMeasureStarted(std::function<void()> started)
{
    measureStarted() = std::move(started);
}

void reportMeasurement(const QPointF& from, const QPointF& to)
{
    for (MeasurePane* const pane : MeasurePane::all()) {
        pane->show(from, to);
    }
}

}  // namespace CanvasHost

class Grc_Tbe_measurepopup::Private {
public:
    MeasurePane* pane;
};

// Here a canvas measures; the toolbar, which the real host's popup asks, has nothing to add.
Grc_Tbe_measurepopup::Grc_Tbe_measurepopup(Canvas_Tool_Strip* /*strip*/, QWidget* parent)
    : QWidget(parent, Qt::Dialog), d(new Private)
{
    setObjectName(QStringLiteral("Grc_Tbe_measurepopup"));
    d->pane = new MeasurePane(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->pane);
    resize(280, 120);
}

Grc_Tbe_measurepopup::~Grc_Tbe_measurepopup() = default;

void Grc_Tbe_measurepopup::change_language()
{
    d->pane->retranslate();
}

void Grc_Tbe_measurepopup::onMeasureButtonClicked()
{
    d->pane->reset();
    if (CanvasHost::measureStarted()) {
        CanvasHost::measureStarted()();
    }
}
