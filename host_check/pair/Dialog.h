#pragma once

#include "Driver.h"
#include "Entry.h"

/// The Add Feature dialog, and what the record must hold after what was entered so far.
class Dialog {
public:
    Dialog(Driver& driver, QWidget& dialog) : m_driver(driver), m_dialog(dialog) {}

    /// Sends the first record, from which the others are judged.
    void start();
    /// Enters everything; what differs is a difference of `row`.
    void enterAll(bool isMetric, Row row);
    /// The windows of the host that the dialog opens.
    void tryWindows();
    /// Chooses the first symbol of the chooser; the record's symbol afterwards, null if there is no
    /// such list.
    QString firstSymbol();
    /// Enters a length, then runs `change`, which makes the host's unit `isMetric` and tells it.
    void tryUnitSwitch(bool isMetric, const std::function<void()>& change);

private:
    QWidget* find(const QString& name);
    void tryEntry(const Entry& entry, bool byReturn, Row row);
    void activate();
    void enter(const Entry& entry, bool byReturn);
    void expectRecord(Row row, const QString& what, const QVector<RecordLog::Record>& records);
    void sendRecord();
    void tryList(const QString& button, const char* className, const QString& key,
                 const QString& before);
    void tryAttributes();
    QString lengthShown();

    Driver& m_driver;
    QWidget& m_dialog;
    RecordLog::Record m_expected;
    QString m_typeButton = QStringLiteral("m_pLineTB");
};
