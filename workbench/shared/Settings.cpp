#include "shared/Settings.h"

#include <QCoreApplication>
#include <QSettings>

namespace {

// The modules that remember something have this code each, and the application object in common.
constexpr const char* fileProperty = "settingsFile";
constexpr const char* ignoringProperty = "ignoresChoices";

QString keyOf(const QString& choice)
{
    return QStringLiteral("choices/") + choice;
}

bool ignoresChoices()
{
    return qApp->property(ignoringProperty).toBool();
}

}  // namespace

void Settings::keepIn(const QString& file)
{
    qApp->setProperty(fileProperty, file);
}

QString Settings::file()
{
    return qApp->property(fileProperty).toString();
}

QString Settings::beside(const QString& suffix)
{
    return file().isEmpty() ? QString() : file() + suffix;
}

QVariant Settings::value(const QString& key)
{
    return file().isEmpty() ? QVariant() : QSettings(file(), QSettings::IniFormat).value(key);
}

void Settings::set(const QString& key, const QVariant& value)
{
    if (!file().isEmpty()) {
        QSettings(file(), QSettings::IniFormat).setValue(key, value);
    }
}

QVariant Settings::choice(const QString& name)
{
    return ignoresChoices() ? QVariant() : value(keyOf(name));
}

void Settings::choose(const QString& name, const QVariant& value)
{
    if (!ignoresChoices()) {
        set(keyOf(name), value);
    }
}

void Settings::ignoreChoices()
{
    qApp->setProperty(ignoringProperty, true);
}
