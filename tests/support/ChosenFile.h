#pragma once

#include "FindChild.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// Answers the next file dialog as a user does; without a name cancels it.
class ChosenFile {
public:
    explicit ChosenFile(const QString& file = {}, int filter = 0)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, file, filter] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (m_done && dialog != m_dialog) {
                m_timer.stop();
            } else if (dialog) {
                answer(dialog, file, filter);
            }
        });
        m_timer.start(20);
    }
    QString offered;
    QString folder;
    bool mayBeNative = false;

private:
    void answer(QFileDialog* dialog, const QString& file, int filter)
    {
        auto& name = findNamed<QLineEdit>(*dialog, "fileNameEdit");
        if (!m_done) {
            m_done = true;
            m_dialog = dialog;
            offered = name.text();
            folder = dialog->directory().path();
            mayBeNative = !dialog->testOption(QFileDialog::DontUseNativeDialog);
            if (filter > 0) {
                dialog->selectNameFilter(dialog->nameFilters().at(filter));
                Q_EMIT dialog->filterSelected(dialog->nameFilters().at(filter));
            }
        }
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        // The list may select what is offered after the name was entered, when the folder is read,
        // and what it selects counts more. Only a text that changes in the focus takes that back.
        name.setFocus();
        if (name.hasFocus()) {
            name.clear();
            name.setText(file);
            QTest::keyClick(&name, Qt::Key_Return);
        }
    }

    QTimer m_timer;
    QPointer<QFileDialog> m_dialog;
    bool m_done = false;
};
