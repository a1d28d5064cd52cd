#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

/// A place in the window that holds one instance of a module.
class ModulePlace {
public:
    /// `holder` keeps the instance's panel; it must have a layout.
    ModulePlace(const QString& moduleName, QWidget* holder);
    ~ModulePlace();

    /// Makes an instance in a new panel; the one before is deleted. On failure a FileError is
    /// thrown, and the place is empty.
    void fill(const QString& directory);
    /// Takes the instance from the plug-in manager and deletes it with all its windows.
    void clear();
    /// Null while the place is empty.
    QObject* instance() const { return static_cast<QObject*>(m_instance); }

private:
    Q_DISABLE_COPY(ModulePlace)

    QString m_moduleName;
    QPointer<QWidget> m_holder;
    QPointer<QWidget> m_panel;
    void* m_instance = nullptr;
};
