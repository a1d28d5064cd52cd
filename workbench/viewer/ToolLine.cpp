#include "viewer/ToolLine.h"

#include <UiApiStandIn.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QTimer>

namespace {

/// What does not fit ends in an ellipsis.
class SteadyLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        style()->drawItemText(
            &painter, rect(), int(alignment()) | Qt::TextSingleLine, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, width()), foregroundRole());
    }
};

}  // namespace

QLabel* createSteadyLabel(const char* objectName, QWidget* parent)
{
    auto* const label = new SteadyLabel(parent);
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return label;
}

void showSteadily(QLabel* label, const QString& text)
{
    label->setText(text);
    label->setToolTip(text);
}

void makeSteady(QHBoxLayout* line, const QLabel* label)
{
    // Letters missing in the label's font come from another one, which may be taller.
    QLabel sample(QStringLiteral("\u00c5g\u56fd"));
    sample.setFont(label->font());
    line->addStrut(sample.sizeHint().height());
}

ToolLine::ToolLine(const Names& names, QWidget* parent)
    : Retranslated(parent),
      m_tool(createSteadyLabel(names.tool, this)),
      m_hint(createSteadyLabel(names.hint, this)),
      m_position(new QLineEdit(this))
{
    setObjectName(QLatin1String(names.tool) + QStringLiteral("Line"));
    QFont font = m_tool->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    m_tool->setFont(font);
    m_tool->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    m_tool->setMinimumWidth(1);
    m_position->setObjectName(QLatin1String(names.position));
    m_position->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("0000.00, 0000.00_")));
    m_position->setMaximumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("-00000.00, -00000.00 mil__")));
    m_position->installEventFilter(this);
    connect(m_position, &QLineEdit::returnPressed, this, &ToolLine::takePlace);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 4);
    makeSteady(layout, m_tool);
    layout->addWidget(m_tool);
    layout->addSpacing(16);
    layout->addWidget(m_hint, 3);
    layout->addWidget(m_position, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    retranslate();
}

QWidget* ToolLine::positionField() const
{
    return m_position;
}

void ToolLine::showTool(const QString& text)
{
    m_tool->setText(text);
}

void ToolLine::showHint(const QString& text)
{
    showSteadily(m_hint, text);
}

void ToolLine::showPosition(const QPointF& point)
{
    m_shown = point;
    showPosition();
}

void ToolLine::showPosition()
{
    const bool isTyped = m_position->hasFocus() && m_position->isModified();
    if (m_shown && !isTyped) {
        m_position->setText(CanvasHost::lengthText(*m_shown));
        if (m_position->hasFocus()) {
            m_position->selectAll();
        } else {
            m_position->home(false);  // its unit is cut first
        }
    }
}

void ToolLine::takePlace()
{
    const QString text = m_position->text();
    if (const auto place = TypedPlace::readPlace(text)) {
        m_position->setModified(false);
        Q_EMIT placeTyped(*place);
    } else {
        Q_EMIT noPlaceTyped(text);
    }
    m_position->selectAll();
}

bool ToolLine::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        // After the click that brought the focus, which sets the cursor.
        QTimer::singleShot(0, m_position, &QLineEdit::selectAll);
    } else if (event->type() == QEvent::FocusOut) {
        m_position->setModified(false);
        showPosition();
    } else if (event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        Q_EMIT finished();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ToolLine::retranslate()
{
    m_position->setAccessibleName(tr("Position"));
    m_position->setPlaceholderText(tr("x y"));
    m_position->setToolTip(
        tr("The position of the mouse. Type another, such as 12.5 40 or 1mm 40mil: Enter clicks "
           "there. @5 0 is 5 to the right of the last point."));
    showPosition();
}
