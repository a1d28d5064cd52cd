#include "NameList.h"
#include "common_widgets.h"

#include <CamApiStandIn.h>
#include <ui_api.h>

namespace {

constexpr int storedToMetric = 1;

// The sizes (mil) that boards usually use.
const QStringList roundsAndSquares = [] {
    QStringList names;
    for (const char* const shape : {"r", "s"}) {
        for (const char* const size : {"3", "4", "5", "6", "8", "10", "12", "15", "20", "25", "30",
                                       "40", "50", "60", "80", "100", "120", "150", "200"}) {
            names.append(QLatin1String(shape) + QLatin1String(size));
        }
    }
    return names;
}();

const QStringList otherShapes = {
    QStringLiteral("rect10x20"),     QStringLiteral("rect20x40"),    QStringLiteral("rect40x60"),
    QStringLiteral("rect60x80"),     QStringLiteral("oval20x40"),    QStringLiteral("oval40x60"),
    QStringLiteral("diamond20x20"),  QStringLiteral("octagon60x60"), QStringLiteral("hexagon60x60"),
    QStringLiteral("triangle40x40"), QStringLiteral("ellipse40x60"), QStringLiteral("ring_r60x30"),
    QStringLiteral("ring_s60x30"),
};

}  // namespace

class Widget_SymbolSelection::Private {
public:
    std::string job;
    QWidget* context;
    NameList* list;
    bool all = false;
};

Widget_SymbolSelection::Widget_SymbolSelection(std::string job, QWidget* context, QWidget* parent)
    : QWidget(parent, Qt::Dialog), d(new Private)
{
    setObjectName(QStringLiteral("Widget_SymbolSelection"));
    d->job = std::move(job);
    d->context = context;
    d->list =
        new NameList(QStringLiteral("m_pSymbolLW"), QT_TRANSLATE_NOOP("NameList", "Symbols"), this);
    connect(d->list, &NameList::chosen, this, &Widget_SymbolSelection::sendText);
    read();
}

Widget_SymbolSelection::~Widget_SymbolSelection() = default;

void Widget_SymbolSelection::changeAvailableItemView(int all)
{
    d->all = all != 0;
    read();
}

void Widget_SymbolSelection::read()
{
    QStringList names = roundsAndSquares;
    const CanvasHost::Job* const job = CanvasHost::findJob(d->job);
    if (d->all) {
        names += otherShapes;
    }
    if (d->all && job) {
        for (const auto* const more : {&job->userSymbols, &job->specialSymbols}) {
            for (const std::string& name : *more) {
                names.append(QString::fromStdString(name));
            }
        }
    }
    if (ZENTRA::UIAPI::getUnit(d->context) != 0) {
        for (QString& name : names) {
            name = ZENTRA::UIAPI::setSymbolUIData(name, storedToMetric);
        }
    }
    d->list->setNames(names);
}

void Widget_SymbolSelection::setJob(std::string job)
{
    d->job = std::move(job);
    read();
}

void Widget_SymbolSelection::change_unit()
{
    read();
}
