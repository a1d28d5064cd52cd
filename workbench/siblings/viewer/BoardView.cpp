#include "viewer/BoardView.h"

#include "viewer/Board.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

const QColor ground(0x17, 0x1c, 0x22);
const QColor boardGround(0x1e, 0x2a, 0x28);
const QColor boardEdge(0x5f, 0x7d, 0x74);
const QColor gridDot(0x3b, 0x4d, 0x49);
const QColor gridLine(0x28, 0x36, 0x34);
const QColor copper(0xd0, 0x8b, 0x4a);
const QColor copperPad(0xe6, 0xb0, 0x6a);
const QColor copperPlane(0x8a, 0x5e, 0x36);
const QColor hoverColour(0x7f, 0xd6, 0xff);
const QColor selectedColour(0x9b, 0xe5, 0x64);

constexpr double gridStep = 1000;   // micrometres
constexpr int margin = 24;          // pixels around the board
constexpr double pickDistance = 4;  // pixels

QColor colourOf(const Board::Feature& feature)
{
    if (feature.symbol.empty()) {
        return copperPlane;
    }
    const bool pad = feature.attributes.count(".net") == 0;
    return pad ? copperPad : copper;
}

void drawGrid(QPainter* painter, const QTransform& toView)
{
    const QRectF board = Board::outline();
    painter->setPen(QPen(gridLine, 0));
    const int columns = static_cast<int>(board.width() / gridStep);
    const int rows = static_cast<int>(board.height() / gridStep);
    const auto x = [&](int column) { return board.left() + column * gridStep; };
    const auto y = [&](int row) { return board.top() + row * gridStep; };
    for (int column = 0; column <= columns; ++column) {
        painter->drawLine(toView.map(QLineF(x(column), board.top(), x(column), board.bottom())));
    }
    for (int row = 0; row <= rows; ++row) {
        painter->drawLine(toView.map(QLineF(board.left(), y(row), board.right(), y(row))));
    }
    QPen dots(gridDot, 2.5);
    dots.setCapStyle(Qt::RoundCap);
    painter->setPen(dots);
    for (int column = 0; column <= columns; column += 5) {
        for (int row = 0; row <= rows; row += 5) {
            painter->drawPoint(toView.map(QPointF(x(column), y(row))));
        }
    }
}

}  // namespace

BoardView::BoardView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("m_pBoardView"));
    setMouseTracking(true);
    setMinimumSize(240, 180);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize BoardView::sizeHint() const
{
    return {640, 460};
}

void BoardView::setPicking(bool picking)
{
    m_picking = picking;
    setCursor(picking ? Qt::CrossCursor : Qt::ArrowCursor);
    update();
}

QTransform BoardView::boardToView() const
{
    const QRectF board = Board::outline();
    const QSizeF room = QSizeF(size()) - QSizeF(2, 2) * margin;
    const double scale = qMin(room.width() / board.width(), room.height() / board.height());
    QTransform transform;
    transform.translate(width() / 2.0, height() / 2.0);
    transform.scale(scale, -scale);
    transform.translate(-board.center().x(), -board.center().y());
    return transform;
}

QPointF BoardView::boardPoint(const QPoint& position) const
{
    return boardToView().inverted().map(QPointF(position));
}

int BoardView::featureUnder(const QPoint& position) const
{
    return Board::featureAt(boardPoint(position), pickDistance / boardToView().m11());
}

void BoardView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ground);
    const QTransform toView = boardToView();
    const QRectF board = toView.mapRect(Board::outline());
    painter.setPen(QPen(boardEdge, 1.5));
    painter.setBrush(boardGround);
    painter.drawRoundedRect(board, 3, 3);
    drawGrid(&painter, toView);
    int index = 0;
    for (const Board::Feature& feature : Board::features()) {
        QColor colour = colourOf(feature);
        if (index == m_selected) {
            colour = selectedColour;
        }
        const bool hovered = m_picking && index == m_hovered;
        painter.setPen(hovered ? QPen(hoverColour, 2) : QPen(colour.darker(130), 1));
        painter.setBrush(colour);
        painter.drawPath(toView.map(feature.shape));
        ++index;
    }
}

void BoardView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_selected = featureUnder(event->pos());
        update();
        Q_EMIT clicked(m_selected, boardPoint(event->pos()));
    }
}

void BoardView::mouseMoveEvent(QMouseEvent* event)
{
    setHovered(featureUnder(event->pos()));
    Q_EMIT moved(boardPoint(event->pos()));
}

void BoardView::leaveEvent(QEvent*)
{
    setHovered(-1);
}

void BoardView::setHovered(int feature)
{
    if (feature != m_hovered) {
        m_hovered = feature;
        update();
    }
}
