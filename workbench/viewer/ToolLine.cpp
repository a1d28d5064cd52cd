#include "viewer/ToolLine.h"

#include <UiApiStandIn.h>

#include <QHBoxLayout>
#include <QLabel>

QLabel* createSteadyLabel(const char* objectName, QWidget* parent)
{
    auto* const label = new QLabel(parent);
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
    // Another font lends the letters that the label's own has not, and may be higher.
    QLabel sample(QStringLiteral("\u00c5g\u56fd"));
    sample.setFont(label->font());
    line->addStrut(sample.sizeHint().height());
}

ToolLine::ToolLine(const Names& names, QWidget* parent)
    : QWidget(parent),
      m_tool(createSteadyLabel(names.tool, this)),
      m_hint(createSteadyLabel(names.hint, this)),
      m_position(createSteadyLabel(names.position, this))
{
    setObjectName(QLatin1String(names.tool) + QStringLiteral("Line"));
    QFont font = m_tool->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    m_tool->setFont(font);
    for (QLabel* const label : {m_tool, m_position}) {
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
        label->setMinimumWidth(1);
    }
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 4);
    makeSteady(layout, m_tool);
    layout->addWidget(m_tool);
    layout->addSpacing(16);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_position);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
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
    m_position->setText(CanvasHost::lengthText(point));
}
