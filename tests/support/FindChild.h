#pragma once

#include <QComboBox>
#include <QStringList>
#include <QWidget>

/// The child of that object name; without one the test ends with the names that there are.
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
    qFatal("%s has no %s \"%s\", but: %s", qPrintable(parent.objectName()),
           T::staticMetaObject.className(), qPrintable(name), qPrintable(names.join(' ')));
}

inline QStringList itemTexts(const QComboBox& combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i) {
        texts.append(combo.itemText(i));
    }
    return texts;
}
