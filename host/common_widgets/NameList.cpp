#include "NameList.h"

#include "CommonWidgetsStandIn.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

NameList::NameList(const QString& listName, const char* title, QWidget* window)
    : QWidget(window),
      m_title(title),
      m_filter(new QLineEdit(this)),
      m_list(new QListWidget(this)),
      m_ok(new QPushButton(this)),
      m_cancel(new QPushButton(this))
{
    setObjectName(listName + QStringLiteral("Pane"));
    m_filter->setObjectName(QStringLiteral("m_pFilterLE"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_list->setObjectName(listName);
    m_list->setUniformItemSizes(true);
    m_ok->setObjectName(QStringLiteral("m_pOkPB"));
    m_cancel->setObjectName(QStringLiteral("m_pCancelPB"));

    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
    auto* const around = new QVBoxLayout(window);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(this);
    window->resize(260, 360);
    CanvasHost::closeByEscape(window);
    retranslate();

    connect(m_filter, &QLineEdit::textChanged, this, &NameList::applyFilter);
    connect(m_list, &QListWidget::itemActivated, this, &NameList::take);
    connect(m_ok, &QPushButton::clicked, this, &NameList::take);
    connect(m_cancel, &QPushButton::clicked, window, &QWidget::close);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_ok->setEnabled(row >= 0); });
    m_ok->setEnabled(false);
}

void NameList::setNames(const QStringList& names)
{
    m_list->clear();
    m_list->addItems(names);
    applyFilter();
}

void NameList::applyFilter()
{
    QListWidgetItem* current = m_list->currentItem();
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* const item = m_list->item(row);
        item->setHidden(!item->text().contains(m_filter->text(), Qt::CaseInsensitive));
        if (!item->isHidden() && (!current || current->isHidden())) {
            current = item;
        }
    }
    const bool isFiltered = !m_filter->text().isEmpty();
    m_list->setCurrentItem(isFiltered && current && !current->isHidden() ? current : nullptr);
}

void NameList::take()
{
    const QListWidgetItem* const item = m_list->currentItem();
    if (!item) {
        return;
    }
    const QString name = item->text();
    window()->hide();
    Q_EMIT chosen(name);
}

bool NameList::eventFilter(QObject* watched, QEvent* event)
{
    // While a name is being typed, Enter accepts it and the arrow keys move through the list.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            take();
            return true;
        }
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            m_list->setFocus();
            m_list->setCurrentRow(std::max(m_list->currentRow(), 0));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void NameList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void NameList::retranslate()
{
    window()->setWindowTitle(tr(m_title));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter"));
    m_list->setAccessibleName(tr(m_title));
    m_ok->setText(tr("OK"));
    m_cancel->setText(tr("Cancel"));
}
