#include "session/MenuEntries.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>

namespace MenuEntries {

QString text(const QAction* action)
{
    QString text = action->text().section(QLatin1Char('\t'), 0, 0);
    return text.replace(QLatin1String("&&"), QLatin1String("\x01"))
        .remove(QLatin1Char('&'))
        .replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

QAction* find(const QMenu* menu, const QString& entry, QString* reason)
{
    QStringList entries;
    for (QAction* const action : menu->actions()) {
        const bool named = text(action) == entry || action->objectName() == entry;
        if (named && action->isEnabled() && action->isVisible()) {
            return action;
        }
        if (!action->isSeparator()) {
            entries.append(text(action));
        }
    }
    *reason = QStringLiteral("no entry \"%1\" to choose in the menu; there is %2")
                  .arg(entry, entries.join(QStringLiteral(", ")));
    return nullptr;
}

QMenuBar* barOf(const QMenu* menu)
{
    for (QWidget* const holder : menu->menuAction()->associatedWidgets()) {
        if (auto* const bar = qobject_cast<QMenuBar*>(holder)) {
            return bar;
        }
    }
    return nullptr;
}

}  // namespace MenuEntries
