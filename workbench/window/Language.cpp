#include "window/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

Language::Language(const QString& moduleDirectory) : m_moduleDirectory(moduleDirectory) {}

void Language::set(const QString& code)
{
    const QDir modules(m_moduleDirectory);
    const QStringList folders{modules.filePath(QStringLiteral("../translations")),
                              modules.filePath(QStringLiteral("translations")),
                              QLibraryInfo::location(QLibraryInfo::TranslationsPath)};
    const std::pair<QTranslator*, QString> all[] = {
        {&m_qt, QStringLiteral("qtbase_")},
        {&m_module, QStringLiteral("Canvas_Tool_Strip_")},
        {&m_workbench, QStringLiteral("workbench_")},
    };
    for (const auto& [translator, name] : all) {
        QCoreApplication::removeTranslator(translator);
        for (const QString& folder : folders) {
            if (translator->load(name + code, folder)) {
                QCoreApplication::installTranslator(translator);
                break;
            }
        }
    }
}
