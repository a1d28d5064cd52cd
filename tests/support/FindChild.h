#pragma once

#include <QApplication>
#include <QComboBox>
#include <QStringList>
#include <QWidget>

/// The child with that object name; without it the test ends with a list of the names.
template <class T = QWidget>
T& findNamed(const QWidget& parent, const QString& name)
{
    if (T* const child = parent.findChild<T*>(name)) {
        return *child;
    }
    QStringList names;
    for (const QObject* const child : parent.findChildren<T*>()) {
        names.append(child->objectName());
    }
    qFatal("%s has no %s \"%s\", only: %s", qPrintable(parent.objectName()),
           T::staticMetaObject.className(), qPrintable(name), qPrintable(names.join(' ')));
}

/// The widget of that name in any window, if it is visible; without it the test ends.
inline QWidget& findShown(const QString& name)
{
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (widget->objectName() == name && widget->isVisible()) {
            return *widget;
        }
    }
    qFatal("no \"%s\" is shown", qPrintable(name));
}

/// All items of the combo box.
inline QStringList itemTexts(const QComboBox& combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i) {
        texts.append(combo.itemText(i));
    }
    return texts;
}

/// Its index; without such an item the test ends with a list of the items.
inline int indexOfItem(const QComboBox& combo, const QString& item)
{
    const int index = combo.findText(item);
    if (index < 0) {
        qFatal("%s has no \"%s\", only: %s", qPrintable(combo.objectName()), qPrintable(item),
               qPrintable(itemTexts(combo).join(", ")));
    }
    return index;
}

/// Makes the item with that text the current one.
inline void chooseItem(QComboBox& combo, const QString& item)
{
    combo.setCurrentIndex(indexOfItem(combo, item));
}
