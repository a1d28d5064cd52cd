#include "viewer/BarPair.h"

#include <QBoxLayout>
#include <QEvent>
#include <QToolBar>

BarPair::BarPair(QToolBar* first, QToolBar* second, QWidget* parent)
    : QWidget(parent),
      m_first(first),
      m_second(second),
      m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    setObjectName(QStringLiteral("m_pCanvasBars"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(first);
    m_layout->addWidget(second, 1);
}

bool BarPair::event(QEvent* event)
{
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        const int wanted = m_first->sizeHint().width() + m_second->sizeHint().width();
        m_layout->setDirection(wanted > width() ? QBoxLayout::TopToBottom
                                                : QBoxLayout::LeftToRight);
    }
    return isHandled;
}
