#pragma once

#include "shared/Retranslated.h"

#include <PluginMetaData.h>

#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

/// The tree of jobs and their steps; the open step is bold. A double click on a step asks the host
/// to open it.
class JobTreePane : public Retranslated<QWidget> {
    Q_OBJECT

public:
    /// `parent` is the sender pointer of every message.
    explicit JobTreePane(QWidget* parent);

    void receive(const PluginMetaData& message);

private:
    void fill();
    void markOpenStep();
    void open(const QTreeWidgetItem* item);
    void retranslate() override;

    QWidget* m_parent;
    QTreeWidget* m_pJobTreeTW;
    QString m_job;
    QString m_step;
};
