#pragma once

#include <QString>
#include <QTranslator>

/// The language of the program: the translations of Qt, of the module and of the workbench itself.
/// For English the workbench has one of its plurals.
class Language {
public:
    /// Translations are searched for in "translations" beside and in `moduleDirectory`.
    explicit Language(const QString& moduleDirectory);

    /// "en" or "zh_CN". A translation file that is missing leaves its texts English.
    void set(const QString& code);

private:
    QString m_moduleDirectory;
    QTranslator m_qt;
    QTranslator m_module;
    QTranslator m_workbench;
};
