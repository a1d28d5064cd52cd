#include "jobtree/JobTreePane.h"

#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"
#include "shared/Named.h"

#include <CamApiStandIn.h>
#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <QLabel>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

JobTreePane::JobTreePane(QWidget* parent)
    : Retranslated(parent),
      m_parent(parent),
      m_pJobTreeTW(named(new QTreeWidget(this), "m_pJobTreeTW")),
      m_pAddFeatureLB(named(new QLabel(this), "m_pAddFeatureLB"))
{
    setObjectName(QStringLiteral("m_pJobTree"));
    m_pJobTreeTW->setHeaderHidden(true);
    m_pJobTreeTW->setExpandsOnDoubleClick(false);
    m_pAddFeatureLB->setWordWrap(true);
    m_pAddFeatureLB->setMargin(6);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pJobTreeTW);
    layout->addWidget(m_pAddFeatureLB);
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
    if (message.code == MessageCodes::Sent::AddFeatureStarted) {
        ++m_started;
        retranslate();
    }
}

void JobTreePane::retranslate()
{
    m_pJobTreeTW->setToolTip(tr("Double-click a step to open it."));
    m_pAddFeatureLB->setText(m_started == 0
                                 ? tr("Add Feature has not been started yet.")
                                 : tr("Add Feature has been started %n time(s).", "", m_started));
}
