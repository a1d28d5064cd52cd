#include "window/Documentation.h"

#include "shared/Named.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr QSize firstSize(760, 560);
constexpr int leastLetters = 44;
constexpr int leastLines = 12;

QUrl firstPage()
{
    const QDir pages(QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../" WORKBENCH_DOCS_DIRECTORY "/workbench/docs"));
    return QUrl::fromLocalFile(QDir::cleanPath(pages.filePath(QStringLiteral("using.md"))));
}

}  // namespace

Documentation::Documentation(QWidget* parent)
    : Retranslated(parent, Qt::Window),
      m_first(firstPage()),
      m_pages(named(new QTextBrowser(this), "m_pPagesTE"))
{
    setObjectName(QStringLiteral("m_pDocumentation"));
    auto* const bar = named(new QToolBar(this), "m_pPagesTB");
    const auto add = [&](const char* name, QStyle::StandardPixmap icon) {
        auto* const action = named(bar->addAction(QString()), name);
        action->setIcon(style()->standardIcon(icon));
        return action;
    };
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_back = add("m_pPageBackAct", QStyle::SP_ArrowBack);
    m_forward = add("m_pPageForwardAct", QStyle::SP_ArrowForward);
    m_contents = add("m_pPageContentsAct", QStyle::SP_DirHomeIcon);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_pages);
    m_pages->setMinimumSize(leastLetters * fontMetrics().averageCharWidth(),
                            leastLines * fontMetrics().lineSpacing());
    m_pages->setOpenExternalLinks(true);
    connect(m_back, &QAction::triggered, m_pages, &QTextBrowser::backward);
    connect(m_forward, &QAction::triggered, m_pages, &QTextBrowser::forward);
    connect(m_contents, &QAction::triggered, this, [this] { m_pages->setSource(m_first); });
    connect(m_pages, &QTextBrowser::backwardAvailable, m_back, &QAction::setEnabled);
    connect(m_pages, &QTextBrowser::forwardAvailable, m_forward, &QAction::setEnabled);
    m_pages->setSource(m_first);
    m_pages->setFocus();
    resize(firstSize);
    retranslate();
}

void Documentation::retranslate()
{
    setWindowTitle(tr("Documentation"));
    m_pages->setAccessibleName(tr("Documentation"));
    m_back->setText(tr("Back"));
    m_forward->setText(tr("Forward"));
    m_contents->setText(tr("Contents"));
}
