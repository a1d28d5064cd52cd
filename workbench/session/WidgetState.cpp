#include "session/WidgetState.h"

#include "session/Step.h"

#include <QComboBox>
#include <QMetaProperty>
#include <QSize>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace WidgetState {
namespace {

/// A name that sessions know, and Qt's properties that may hold it, the first that exists counts.
struct Alias {
    const char* name;
    std::vector<const char*> properties;
};

const std::vector<Alias>& aliases()
{
    static const std::vector<Alias> all{
        {"text", {"text", "plainText", "currentText", "title", "windowTitle"}},
        {"current", {"currentText", "currentIndex"}},
        {"tip", {"toolTip"}},
        {"title", {"title", "windowTitle"}},
    };
    return all;
}

QMetaProperty find(const QWidget* widget, const QString& name)
{
    const auto& all = aliases();
    const auto alias = std::find_if(all.begin(), all.end(), [&](const Alias& candidate) {
        return name == QLatin1String(candidate.name);
    });
    const QByteArray own = name.toLatin1();
    const std::vector<const char*> names =
        alias == all.end() ? std::vector<const char*>{own.constData()} : alias->properties;
    for (const char* const property : names) {
        const int index = widget->metaObject()->indexOfProperty(property);
        // Every widget has a window title; a text property that is always empty says nothing.
        if (index >= 0 && (qstrcmp(property, "windowTitle") != 0 || widget->isWindow())) {
            return widget->metaObject()->property(index);
        }
    }
    return {};
}

QString itemsOf(const QComboBox* combo)
{
    QStringList items;
    for (int index = 0; index < combo->count(); ++index) {
        items.append(combo->itemText(index));
    }
    return items.join(QLatin1Char(','));
}

}  // namespace

QString read(const QWidget* widget, const QString& property)
{
    const auto* const combo = qobject_cast<const QComboBox*>(widget);
    if (combo && property == QLatin1String("items")) {
        return itemsOf(combo);
    }
    const QMetaProperty found = find(widget, property);
    if (!found.isValid()) {
        never(QStringLiteral("\"%1\" has no %2").arg(widget->objectName(), property));
    }
    const QVariant held = found.read(widget);
    if (found.isEnumType() && !found.isFlagType()) {
        return QString::fromLatin1(found.enumerator().valueToKey(held.toInt()));
    }
    if (held.userType() == QMetaType::QSize) {
        return QStringLiteral("%1x%2").arg(held.toSize().width()).arg(held.toSize().height());
    }
    if (held.userType() == QMetaType::QStringList) {
        return held.toStringList().join(QLatin1Char(','));
    }
    if (!held.canConvert<QString>()) {
        never(QStringLiteral("%1 of \"%2\" has no text").arg(property, widget->objectName()));
    }
    QString text = held.toString();
    if (qstrcmp(found.name(), "windowTitle") == 0) {
        // As it is seen: Qt puts its mark there.
        text.replace(QLatin1String("[*]"), QLatin1String(widget->isWindowModified() ? "*" : ""));
    }
    return text;
}

}  // namespace WidgetState
