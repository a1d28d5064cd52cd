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

/// Each deletion is undone again, unmeasured; and the other way round.
void edit(benchmark::State& state, int count, bool undoes)
{
    OpenedBoard board(count);
    Document& document = board.canvas.document();
    const auto remove = [&] {
        document.applyBoard(QStringLiteral("Delete"), Pcb::without(document.board(), {count / 2}));
        QApplication::processEvents();
    };
    const auto undo = [&] {
        document.history().undo();
        QApplication::processEvents();
    };
    for (auto _ : state) {
        if (!undoes) {
            remove();
        }
        state.PauseTiming();
        if (undoes) {
            remove();
        } else {
            undo();
        }
        state.ResumeTiming();
        if (undoes) {
            undo();
        }
    }
}

}  // namespace

void addBoardFigures(Runner& runner)
{
    using Body = void (*)(benchmark::State&, int count);
    const std::pair<const char*, Body> figures[] = {
        {"board-wheel", turnWheel},
        {"board-pan", pan},
        {"board-hover", hover},
        {"board-delete", [](benchmark::State& state, int count) { edit(state, count, false); }},
        {"board-undo", [](benchmark::State& state, int count) { edit(state, count, true); }},
    };
    const int few = runner.effort().quick ? 100 : 1000;
    const int many = 100 * few;
    for (const auto& [id, body] : figures) {
        runner.addPair(
            id, std::to_string(many) + " features, floor " + std::to_string(few),
            [body = body, many](benchmark::State& state) { body(state, many); },
            [body = body, few](benchmark::State& state) { body(state, few); });
    }
}
