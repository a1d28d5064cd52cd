#pragma once

#include "FindChild.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"
#include "plugin/RecordValues.h"
#include "viewer/BoardView.h"
#include "viewer/ViewerPane.h"

#include <PluginManagerStandIn.h>

#include <QLabel>
#include <QMap>
#include <QTest>
#include <QVariant>

#include <memory>

inline Pcb::Features twoPads()
{
    return {Pcb::Feature(Pcb::padGeometry("r60", {5000, 5000})),
            Pcb::Feature(Pcb::padGeometry("s60", {9000, 5000}))};
}

/// In rows of 400, a millimetre apart.
inline Pcb::Features manyPads(int count)
{
    Pcb::Features pads;
    for (int i = 0; i < count; ++i) {
        pads.push_back(Pcb::Feature(Pcb::padGeometry("r20", {i % 400 * 1000.0, i / 400 * 1000.0})));
    }
    return pads;
}

/// A canvas with the test's own board: what a user does on it, in micrometres.
class CanvasFixture {
public:
    explicit CanvasFixture(const Pcb::Features& features = {})
    {
        CanvasHost::addInstance("Canvas_Tool_Strip.dll", this, [](void*, PluginMetaData) {});
        window.resize(1000, 700);
        pane->resize(window.size());
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            qFatal("the window does not appear");
        }
        const QVector<QPointF> outline{{0, 0}, {20000, 0}, {20000, 14000}, {0, 14000}};
        document().replace({"job", "step", QPolygonF(outline), features});
        view().fit();
    }
    ~CanvasFixture() { CanvasHost::removeInstance(this); }
    CanvasFixture(const CanvasFixture&) = delete;
    CanvasFixture& operator=(const CanvasFixture&) = delete;

    BoardView& view() const { return findNamed<BoardView>(*pane, "m_pBoardView"); }
    Document& document() const { return pane->canvas().document(); }
    const CanvasState& state() const { return document().state(); }
    const Pcb::Features& features() const { return document().board().features; }
    QString text(const char* label) const { return findNamed<QLabel>(*pane, label).text(); }

    /// As the strip's tool does.
    QWidget& openSecondView() const
    {
        receive(MessageCodes::Sent::OpenPopView);
        return findShown("m_pSecondView");
    }
    void receive(int code, qint64 extra = 0, const QMap<QString, QVariant>& payload = {}) const
    {
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = code;
        message.extra = extra;
        message.payload = payload;
        pane->receive(message);
    }
    QPoint at(double x, double y) const { return view().viewPoint(x, y); }
    void click(double x, double y, Qt::KeyboardModifiers modifiers = {}) const
    {
        move(x, y);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, at(x, y));
    }
    void move(double x, double y) const { QTest::mouseMove(view().viewport(), at(x, y)); }
    void rightClick(double x, double y) const
    {
        QTest::mouseClick(view().viewport(), Qt::RightButton, {}, at(x, y));
    }
    void drag(double x1, double y1, double x2, double y2) const
    {
        QTest::mousePress(view().viewport(), Qt::LeftButton, {}, at(x1, y1));
        QTest::mouseMove(view().viewport(), at(x2, y2));
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, at(x2, y2));
    }

    QWidget window;
    ViewerPane* pane = new ViewerPane(&window);
};

/// A pixel of the view may be several micrometres.
inline bool isNear(const QPointF& a, const QPointF& b, double distance = 60)
{
    return QLineF(a, b).length() <= distance;
}

/// What the strip sends for a line of that kind.
inline QMap<QString, QVariant> lineRecord(const QString& kind)
{
    return {{RecordKeys::features, FeatureKind::line.toInt()},
            {RecordKeys::line, kind},
            {RecordKeys::symbolText, "r20"},
            {RecordKeys::polarity, Polarity::positive}};
}
