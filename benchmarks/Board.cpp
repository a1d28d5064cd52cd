// Work by hand on a large board compared with a small one: the workbench's canvas.

#include "Groups.h"
#include "Runner.h"
#include "board/EditOps.h"
#include "viewer/BoardView.h"
#include "viewer/CanvasController.h"
#include "viewer/tools/EditTools.h"

#include <QApplication>
#include <QWheelEvent>
#include <QtMath>

namespace {

constexpr double pitch = 700;  // micrometres from feature to feature

/// Pads, lines and arcs in rows, in nets of a hundred features.
Pcb::Feature featureOfRow(int index, const QPointF& place)
{
    static const char* const pads[] = {"r20", "rect16x10", "oval18x10", "s14", "r12"};
    Pcb::Geometry geometry;
    if (index % 10 < 5) {
        geometry = Pcb::padGeometry(QString::fromLatin1(pads[index % 5]), place);
    } else if (index % 10 < 9) {
        const QPointF way = index % 2 == 0 ? QPointF(600, 0) : QPointF(500, 400);
        geometry = Pcb::lineGeometry(QStringLiteral("r6"), place, place + way);
    } else {
        geometry = Pcb::arcGeometry(QStringLiteral("r5"), place, place + QPointF(300, 300),
                                    place + QPointF(0, 300), false);
    }
    geometry.positive = index % 1000 != 500;
    geometry.attributes = {{QStringLiteral(".net"), QString::number(index / 100)}};
    return Pcb::Feature(geometry);
}

Pcb::Board boardOf(int count)
{
    const int columns = qCeil(std::sqrt(count * 1.5));
    const double width = columns * pitch;
    const double height = (count / columns + 1) * pitch;
    Pcb::Board board;
    board.outline = QVector<QPointF>{{0, 0}, {width, 0}, {width, height}, {0, height}};
    for (int i = 0; i < count; ++i) {
        board.features.push_back(
            featureOfRow(i, {(i % columns + 0.5) * pitch, (double(i / columns) + 0.5) * pitch}));
    }
    return board;
}

/// A view that shows a whole board, painted once.
struct OpenedBoard {
    explicit OpenedBoard(int count) : view(&canvas.scene())
    {
        canvas.connectView(&view);
        canvas.document().replace(boardOf(count));
        view.resize(1200, 800);
        view.show();
        view.fit();
        QApplication::processEvents();
    }

    QPoint centre() const { return view.viewport()->rect().center(); }
    void mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button)
    {
        QMouseEvent event(type, at, button, button, {});
        QApplication::sendEvent(view.viewport(), &event);
        QApplication::processEvents();
    }
    void wheel(int notches)
    {
        QWheelEvent event(centre(), view.mapToGlobal(centre()), {}, {0, 120 * notches}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
        QApplication::processEvents();
    }

    CanvasController canvas;
    BoardView view;
};

void turnWheel(benchmark::State& state, int count)
{
    OpenedBoard board(count);
    int notches = 1;
    for (auto _ : state) {
        board.wheel(notches);
        notches = -notches;
    }
}

void pan(benchmark::State& state, int count)
{
    OpenedBoard board(count);
    board.mouse(QEvent::MouseButtonPress, board.centre(), Qt::MiddleButton);
    QPoint step(12, 8);
    for (auto _ : state) {
        board.mouse(QEvent::MouseMove, board.centre() + step, Qt::NoButton);
        step = -step;
    }
    board.mouse(QEvent::MouseButtonRelease, board.centre(), Qt::MiddleButton);
}

void hover(benchmark::State& state, int count)
{
    OpenedBoard board(count);
    QPoint step(12, 8);
    for (auto _ : state) {
        board.mouse(QEvent::MouseMove, board.centre() + step, Qt::NoButton);
        step = -step;
    }
}

/// Each deletion is undone again; only one of the two is measured.
void edit(benchmark::State& state, int count, bool undoes)
{
    OpenedBoard board(count);
    Document& document = board.canvas.document();
    const auto perform = [&](bool isMeasured, const std::function<void()>& act) {
        isMeasured ? void() : state.PauseTiming();
        act();
        QApplication::processEvents();
        isMeasured ? void() : state.ResumeTiming();
    };
    for (auto _ : state) {
        perform(!undoes, [&] {
            document.applyBoard(QStringLiteral("Delete"),
                                Pcb::without(document.board(), {count / 2}));
        });
        perform(undoes, [&] { document.history().undo(); });
    }
}

}  // namespace

void addBoardFigures(Runner& runner)
{
    const int few = runner.effort().quick ? 100 : 1000;
    const int many = 100 * few;
    const std::string sizes =
        ": " + std::to_string(many) + " features, floor " + std::to_string(few);
    const auto add = [&](const char* id, const char* what, double target,
                         const std::function<void(benchmark::State&, int)>& body) {
        runner.add(
            {id, what + sizes, target}, [=](benchmark::State& state) { body(state, many); },
            [=](benchmark::State& state) { body(state, few); });
    };
    add("board-wheel", "board: a notch of the wheel, painted", 100, turnWheel);
    add("board-pan", "board: a step of a pan, painted", 100, pan);
    add("board-hover", "board: the mouse over another feature", 3, hover);
    add("board-delete", "board: one feature deleted, painted", 3,
        [](benchmark::State& state, int count) { edit(state, count, false); });
    add("board-undo", "board: the same undone", 3,
        [](benchmark::State& state, int count) { edit(state, count, true); });
}
