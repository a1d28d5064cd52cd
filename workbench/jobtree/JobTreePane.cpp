#include "jobtree/JobTreePane.h"

#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"
#include "shared/Named.h"

#include <CamApiStandIn.h>
#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

JobTreePane::JobTreePane(QWidget* parent)
    : Retranslated(parent),
      m_parent(parent),
      m_pJobTreeTW(named(new QTreeWidget(this), "m_pJobTreeTW"))
{
    setObjectName(QStringLiteral("m_pJobTree"));
    m_pJobTreeTW->setHeaderHidden(true);
    m_pJobTreeTW->setExpandsOnDoubleClick(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pJobTreeTW);
    fill();
    retranslate();
    connect(m_pJobTreeTW, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { open(item); });
}

void JobTreePane::fill()
{
    for (const CanvasHost::Job& job : CanvasHost::jobs()) {
        auto* const parent = new QTreeWidgetItem(m_pJobTreeTW);
        parent->setText(0, QString::fromStdString(job.name));
        parent->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
        for (const std::string& step : job.steps) {
            auto* const child = new QTreeWidgetItem(parent);
            child->setText(0, QString::fromStdString(step));
            child->setIcon(0, style()->standardIcon(QStyle::SP_FileIcon));
        }
    }
    m_pJobTreeTW->expandAll();
}

void JobTreePane::open(const QTreeWidgetItem* item)
{
    if (!item->parent()) {
        return;
    }
    PluginMetaData message(ModuleNames::jobTree, CanvasHost::hostName);
    message.code = MessageCodes::Accepted::JobOpened;
    message.payload = {{PayloadKeys::jobName, item->parent()->text(0)},
                       {PayloadKeys::stepName, item->text(0)}};
    QTpluginsManger4CAM::instance()->recMegToPlugin(m_parent, message);
}

void JobTreePane::receive(const PluginMetaData& message)
{
    if (message.code == MessageCodes::Accepted::JobOpened) {
        m_job = message.payload.value(PayloadKeys::jobName).toString();
        m_step = message.payload.value(PayloadKeys::stepName).toString();
        markOpenStep();
    }
}

void JobTreePane::markOpenStep()
{
    for (int i = 0; i < m_pJobTreeTW->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* const parent = m_pJobTreeTW->topLevelItem(i);
        for (int j = 0; j < parent->childCount(); ++j) {
            QTreeWidgetItem* const item = parent->child(j);
            const bool isOpen = parent->text(0) == m_job && item->text(0) == m_step;
            QFont font = item->font(0);
            font.setBold(isOpen);
            item->setFont(0, font);
            item->setData(0, Qt::AccessibleTextRole,
                          isOpen ? tr("%1 (open)").arg(m_step) : item->text(0));
            if (isOpen) {
                m_pJobTreeTW->setCurrentItem(item);
            }
        }
    }
}

void JobTreePane::retranslate()
{
    m_pJobTreeTW->setToolTip(tr("Double-click a step to open it."));
    markOpenStep();
}
