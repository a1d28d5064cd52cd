#pragma once

#include "shared/Retranslated.h"

#include <QWidget>

class MessageLog;
class MessageModel;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;
class RecordTable;

/// Shows the messages of a log: a table with a filter, and the selected message in full.
class MessageMonitor : public Retranslated<QWidget> {
    Q_OBJECT

public:
    /// `log` is not owned and must outlive the monitor.
    explicit MessageMonitor(MessageLog* log, QWidget* parent = nullptr);

    /// Asks for a file and writes the trace of all messages to it.
    void saveTrace();

Q_SIGNALS:
    /// The user wants to compose a message.
    void composeAsked();

private:
    QWidget* createTable();
    QWidget* createDetail();
    void connectAll();
    void followNewest();
    void showSelected();
    void showWhole(const QModelIndex& index);
    void showCount();
    void retranslate() override;

    MessageLog* m_log;
    MessageModel* m_model;
    QSortFilterProxyModel* m_filtered;
    QTableView* m_pMonitorTV;
    QLineEdit* m_pMonitorFilterLE;
    QLabel* m_pMonitorCountLB;
    QPushButton* m_pMonitorComposePB;
    QPushButton* m_pMonitorClearPB;
    QPushButton* m_pMonitorSavePB;
    QLabel* m_pMessageLB;
    RecordTable* m_pMessageTW;
    bool m_follow = true;        ///< the newest message was visible before the last one came
    bool m_selectNewest = true;  ///< ... and was selected, or none was
};
