#include "viewer/ViewerPane.h"

#include "messages/RecordTable.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "viewer/Board.h"
#include "viewer/BoardView.h"

#include <CommonWidgetsStandIn.h>
#include <QTpluginsManger4CAM.h>
#include <UiApiStandIn.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

QLabel* createLabel(const char* name, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

void makeBold(QLabel* label, double factor = 1.0)
{
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * factor);
    label->setFont(font);
}

}  // namespace

ViewerPane::ViewerPane(QWidget* parent) : QWidget(parent), m_parent(parent)
{
    setObjectName(QStringLiteral("m_pViewer"));
    m_board = new BoardView(this);
    m_pActiveToolLB = createLabel("m_pActiveToolLB", this);
    makeBold(m_pActiveToolLB, 1.15);
    m_pPickHintLB = createLabel("m_pPickHintLB", this);
    m_pPositionLB = createLabel("m_pPositionLB", this);
    auto* const head = new QHBoxLayout;
    head->setContentsMargins(8, 6, 8, 4);
    head->addWidget(m_pActiveToolLB);
    head->addSpacing(16);
    head->addWidget(m_pPickHintLB, 1);
    head->addWidget(m_pPositionLB);
    auto* const splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("m_pViewerSplitter"));
    splitter->addWidget(m_board);
    splitter->addWidget(createInspector());
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(splitter, 1);
    retranslate();
    connect(m_board, &BoardView::clicked, this, &ViewerPane::picked);
    connect(m_board, &BoardView::moved, this, &ViewerPane::showPosition);
    CanvasHost::setMeasureStarted([this] { startMeasuring(); });
}

ViewerPane::~ViewerPane()
{
    CanvasHost::setMeasureStarted({});
}

QWidget* ViewerPane::createInspector()
{
    auto* const side = new QSplitter(Qt::Vertical, this);
    side->setObjectName(QStringLiteral("m_pInspectorSplitter"));
    side->setChildrenCollapsible(false);
    const auto add = [&](QLabel*& label, const char* labelName, const char* tableName) {
        auto* const box = new QWidget(side);
        label = createLabel(labelName, box);
        makeBold(label);
        auto* const table = new RecordTable(tableName, box);
        auto* const layout = new QVBoxLayout(box);
        layout->setContentsMargins(6, 2, 6, 4);
        layout->addWidget(label);
        layout->addWidget(table);
        return table;
    };
    m_record = add(m_pRecordLB, "m_pRecordLB", "m_pRecordTW");
    m_attributes = add(m_pAttributesLB, "m_pAttributesLB", "m_pAttributesTW");
    side->setStretchFactor(0, 3);
    side->setStretchFactor(1, 1);
    side->setMinimumWidth(300);
    return side;
}

void ViewerPane::receive(const PluginMetaData& message)
{
    switch (message.code) {
        case Sent::Record:
            // The tool announces itself only once; later its record is what begins the drawing.
            if (!m_tool || m_tool->code != Sent::AddFeature) {
                setTool(MessageNames::find(message.receiver, Sent::AddFeature));
            }
            showRecord(message);
            break;
        case Sent::DirectionRecord:
            showRecord(message);
            break;
        case Sent::AttributeMap: {
            QMap<QString, QVariant> values;
            const auto* const map = reinterpret_cast<const std::map<std::string, std::string>*>(
                static_cast<quintptr>(message.extra));
            if (!map) {
                break;
            }
            for (const auto& [name, value] : *map) {
                values.insert(QString::fromStdString(name), QString::fromStdString(value));
            }
            m_attributes->showValues(values);
            break;
        }
        case Sent::SelectSymbol:
            setPick(Pick::Symbol);
            break;
        case Sent::SelectFromEditor:
            setPick(Pick::Attributes);
            break;
        case Sent::DialogsClosed:
            setPick(Pick::Nothing);
            break;
        default:
            followTool(message);
    }
    retranslate();
    if (message.code == Sent::AddFeature) {
        // The dialog was made a moment ago and does not know in which unit the user works.
        send(Accepted::UnitChanged);
    }
}

void ViewerPane::showRecord(const PluginMetaData& message)
{
    m_recordCode = message.code;
    m_record->showValues(message.payload);
}

void ViewerPane::followTool(const PluginMetaData& message)
{
    const MessageNames::Row* const row = MessageNames::find(message.receiver, message.code);
    if (row && row->tool) {
        setTool(row, message.extra);
    } else if (row && QByteArray(row->name).endsWith("Off")) {
        setTool(nullptr);
    }
}

// What the tool before was waiting for is given up.
void ViewerPane::setTool(const MessageNames::Row* tool, qint64 variant)
{
    m_tool = tool;
    m_variant = variant;
    setPick(Pick::Nothing);
}

void ViewerPane::startMeasuring()
{
    // No message says that the measure tool is active.
    setTool(MessageNames::find(ModuleNames::toolStrip, Accepted::Measure));
    setPick(Pick::MeasureStart);
}

void ViewerPane::setPick(Pick pick)
{
    m_pick = pick;
    m_board->setPicking(pick == Pick::Symbol || pick == Pick::Attributes);
    retranslate();
}

void ViewerPane::picked(int feature, const QPointF& point)
{
    const Pick pick = m_pick;
    if (pick == Pick::MeasureStart) {
        m_measureStart = point;
        setPick(Pick::MeasureEnd);
    } else if (pick == Pick::MeasureEnd) {
        setPick(Pick::MeasureStart);
        CanvasHost::reportMeasurement(m_measureStart, point);
    } else if (feature >= 0 && pick != Pick::Nothing) {
        setPick(Pick::Nothing);
        pick == Pick::Symbol ? sendSymbol(feature) : sendAttributes(feature);
    }
}

void ViewerPane::sendSymbol(int feature)
{
    std::map<int, std::string> symbols;
    const std::string& symbol = Board::features()[static_cast<size_t>(feature)].symbol;
    if (!symbol.empty()) {
        symbols[feature] = symbol;
    }
    send(Accepted::SymbolsPicked, &symbols);
}

void ViewerPane::sendAttributes(int feature)
{
    const auto attributes = Board::features()[static_cast<size_t>(feature)].attributes;
    send(Accepted::AttributesPicked, &attributes);
}

void ViewerPane::send(int code, const void* object)
{
    PluginMetaData message(ModuleNames::viewer, ModuleNames::toolStrip);
    message.code = code;
    message.extra = static_cast<qint64>(reinterpret_cast<quintptr>(object));
    QTpluginsManger4CAM::instance()->recMegToPlugin(m_parent, message);
}

void ViewerPane::showPosition(const QPointF& point)
{
    struct Shown {
        double factor;
        int decimals;
        const char* text;
    };
    static const QMap<CanvasHost::DisplayUnit, Shown> units{
        {CanvasHost::DisplayUnit::Mil, {1 / 25.4, 1, QT_TR_NOOP("%1, %2 mil")}},
        {CanvasHost::DisplayUnit::Inch, {1 / 25400.0, 4, QT_TR_NOOP("%1, %2 inch")}},
        {CanvasHost::DisplayUnit::Micrometre, {1, 0, QT_TR_NOOP("%1, %2 um")}},
        {CanvasHost::DisplayUnit::Millimetre, {1 / 1000.0, 3, QT_TR_NOOP("%1, %2 mm")}},
    };
    const Shown shown = units.value(CanvasHost::displayUnit());
    m_pPositionLB->setText(tr(shown.text)
                               .arg(point.x() * shown.factor, 0, 'f', shown.decimals)
                               .arg(point.y() * shown.factor, 0, 'f', shown.decimals));
}

void ViewerPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_record->retranslate();
        m_attributes->retranslate();
        retranslate();
    }
}

void ViewerPane::retranslate()
{
    QString tool = tr("none");
    if (m_tool) {
        tool = MessageNames::text(*m_tool);
        if (m_variant != 0) {
            tool = tr("%1, mode %2").arg(tool).arg(m_variant);
        }
    }
    m_pActiveToolLB->setText(tr("Tool: %1").arg(tool));
    const QMap<Pick, QString> hints{
        {Pick::Symbol, tr("Click a feature to take its symbol.")},
        {Pick::Attributes, tr("Click a feature to take its attributes.")},
        {Pick::MeasureStart, tr("Click the first point to measure from.")},
        {Pick::MeasureEnd, tr("Click the second point to measure to.")},
    };
    m_pPickHintLB->setText(hints.value(m_pick));
    m_pRecordLB->setText(m_recordCode ? tr("Feature record (message %1)").arg(*m_recordCode)
                                      : tr("Feature record (none yet)"));
    m_pAttributesLB->setText(tr("Attributes"));
}
