#include "window/Documentation.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextBrowser>
#include <QUrl>

namespace {

const QString browserName = QStringLiteral("m_pDocumentation");

}  // namespace

void Documentation::show(QWidget* parent)
{
    auto* browser = parent->findChild<QTextBrowser*>(browserName);
    if (!browser) {
        browser = new QTextBrowser(parent);
        browser->setObjectName(browserName);
        browser->setWindowFlag(Qt::Window);
        browser->setOpenExternalLinks(true);
        browser->resize(760, 560);
    }
    const QDir pages(QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../" WORKBENCH_DOCS_DIRECTORY "/workbench/docs"));
    browser->setWindowTitle(QCoreApplication::translate("Documentation", "Documentation"));
    browser->setSource(QUrl::fromLocalFile(QDir::cleanPath(pages.filePath("canvas.md"))));
    browser->show();
    browser->raise();
}
