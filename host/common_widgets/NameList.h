#pragma once

#include <QWidget>

#include <functional>

class QLineEdit;
class QListWidget;
class QPushButton;

/// The contents of a window from which one name is chosen: a filter, the list, Ok and
/// Cancel.
class NameList : public QWidget {
    Q_OBJECT
public:
    /// `listName` is the object name of the list. `title` is shown by the window, translated in
    /// the context "NameList".
    NameList(const QString& listName, const char* title, QWidget* window);

    void setNames(const QStringList& names);

Q_SIGNALS:
    /// A name was double clicked, or taken with Enter or Ok. The window has been hidden.
    void chosen(const QString& name);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyFilter();
    void take();
    void retranslate();

    const char* m_title;
    QLineEdit* m_filter;
    QListWidget* m_list;
    QPushButton* m_ok;
    QPushButton* m_cancel;
};
