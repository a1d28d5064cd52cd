#include "session/Steps.h"

#include "messages/HostState.h"
#include "messages/MessageWords.h"
#include "messages/WindowPicture.h"
#include "session/InputEvents.h"
#include "session/Reach.h"
#include "shared/TakesText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QImageWriter>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPointer>

namespace Steps {
namespace {

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// The widget called `name`, with the focus.
QWidget* focused(const QString& name)
{
    QWidget* const widget = Reach::reach(name);
    widget->setFocus(Qt::OtherFocusReason);
    if (!widget->hasFocus() && !(widget->focusProxy() && widget->focusProxy()->hasFocus())) {
        notYet(QStringLiteral("\"%1\" does not take the focus").arg(name));
    }
    return widget;
}

QComboBox* reachCombo(const QString& name)
{
    auto* const combo = qobject_cast<QComboBox*>(Reach::reach(name));
    if (!combo) {
        never(QStringLiteral("\"%1\" is not a combo box").arg(name));
    }
    return combo;
}

/// The index of `item`; a fault when there is none.
int itemIndex(const QComboBox* combo, const QString& item)
{
    const int index = combo->findText(item);
    if (index < 0) {
        QStringList items;
        for (int other = 0; other < combo->count(); ++other) {
            items.append(combo->itemText(other));
        }
        notYet(QStringLiteral("no item \"%1\" in \"%2\"; there is %3")
                   .arg(item, combo->objectName(), items.join(QStringLiteral(", "))));
    }
    return index;
}

QModelIndex modelIndex(const QComboBox* combo, int index)
{
    return combo->model()->index(index, combo->modelColumn());
}

StepAction openList(const QString& name, const QString& item)
{
    return [=](StepContext&) {
        QComboBox* const combo = reachCombo(name);
        if (!(modelIndex(combo, itemIndex(combo, item)).flags() & Qt::ItemIsEnabled)) {
            notYet(QStringLiteral("the item \"%1\" is greyed").arg(item));
        }
        combo->setFocus(Qt::MouseFocusReason);
        combo->showPopup();
    };
}

StepAction pickItem(const QString& name, const QString& item)
{
    return [=](StepContext&) {
        const QPointer<QComboBox> combo = qobject_cast<QComboBox*>(Reach::findWidget(name));
        if (!combo || !combo->view()->isVisible()) {
            notYet(QStringLiteral("the list of \"%1\" did not open").arg(name));
        }
        const int row = itemIndex(combo, item);
        QAbstractItemView* const view = combo->view();
        view->scrollTo(modelIndex(combo, row));
        // An item may be wider than the list that shows it.
        const QRect seen = view->visualRect(modelIndex(combo, row)) & view->viewport()->rect();
        InputEvents::click(view->viewport(), seen.center());
        if (combo && combo->currentIndex() != row) {
            combo->hidePopup();
            never(QStringLiteral("\"%1\" in \"%2\" cannot be chosen").arg(item, name));
        }
    };
}

StepAction openBarMenu(const QString& name)
{
    return [=](StepContext&) {
        auto* const menu = qobject_cast<QMenu*>(Reach::widget(name));
        if (!menu) {
            never(QStringLiteral("\"%1\" is not a menu").arg(name));
        }
        QMenuBar* const bar = Reach::barOf(menu);
        if (!bar) {
            never(QStringLiteral("\"%1\" is not in a menu bar").arg(name));
        }
        Reach::requireFree(bar);
        InputEvents::click(bar, bar->actionGeometry(menu->menuAction()).center());
    };
}

}  // namespace

StepActionList type(const QStringList& words)
{
    return {[name = words[1], text = words[2]](StepContext&) {
        const QWidget* const widget = focused(name);
        QWidget* const window = widget->window();
        if (takesText(widget)) {
            InputEvents::key(window, QKeySequence(QStringLiteral("Ctrl+A")));
        }
        if (text.isEmpty()) {
            InputEvents::key(window, Qt::Key_Delete);
        }
        InputEvents::type(window, text);
    }};
}

StepActionList key(const QStringList& words)
{
    const QKeySequence combination = InputEvents::keyOfName(words[2]);
    if (combination.isEmpty()) {
        malformed(QStringLiteral("\"%1\" is not a key").arg(words[2]));
    }
    return {[name = words[1], combination](StepContext&) {
        InputEvents::key(focused(name)->window(), combination);
    }};
}

StepActionList choose(const QStringList& words)
{
    return {openList(words[1], words[2]), pickItem(words[1], words[2])};
}

StepActionList set(const QStringList& words)
{
    return {[name = words[1], item = words[2]](StepContext&) {
        QComboBox* const combo = reachCombo(name);
        combo->setCurrentIndex(itemIndex(combo, item));
    }};
}

StepActionList menu(const QStringList& words)
{
    return {openBarMenu(words[1]), pickEntry(words[2])};
}

StepActionList close(const QStringList& words)
{
    return {[name = words[1]](StepContext&) { Reach::reach(name)->window()->close(); }};
}

StepActionList send(const QStringList& words)
{
    return {[message = MessageWords::read(words.mid(1))](StepContext& context) {
        context.host->send(message);
    }};
}

StepActionList picture(const QStringList& words)
{
    const QByteArray suffix = QFileInfo(words[1]).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(suffix)) {
        malformed(QStringLiteral("\"%1\" is not a picture file (.png)").arg(words[1]));
    }
    return {[file = words[1], name = words.value(2)](StepContext& context) {
        QWidget* const widget = name.isEmpty() ? context.window : Reach::findWidget(name);
        if (!widget) {
            notYet(QStringLiteral("no widget \"%1\"").arg(name));
        }
        if (!(name.isEmpty() ? pictureOf(widget) : widget->grab()).save(file)) {
            never(QStringLiteral("the picture \"%1\" cannot be written").arg(file));
        }
    }};
}

StepActionList wait(const QStringList& words)
{
    bool ok = false;
    const int milliseconds = words[1].toInt(&ok);
    if (!ok || milliseconds < 0) {
        malformed(QStringLiteral("\"%1\" is not a time in milliseconds").arg(words[1]));
    }
    return {[milliseconds](StepContext& context) { context.pause = milliseconds; }};
}

StepAction pickEntry(const QString& entry)
{
    return [=](StepContext&) {
        QMenu* const menu = openMenu();
        if (!menu) {
            notYet(QStringLiteral("no menu opened"));
        }
        try {
            InputEvents::click(menu, menu->actionGeometry(Reach::entry(menu, entry)).center());
        } catch (const StepFault&) {
            menu->close();
            throw;
        }
    };
}

StepAction dismissMenu(bool needed)
{
    return [=](StepContext&) {
        if (QMenu* const menu = openMenu()) {
            InputEvents::key(menu, Qt::Key_Escape);
        } else if (needed) {
            notYet(QStringLiteral("no menu opened"));
        }
    };
}

}  // namespace Steps
