#pragma once

#include "BoxCounter.h"
#include "RecordLog.h"
#include "Report.h"

#include <QPointer>
#include <QWidget>

class QAbstractItemView;

/// The hands of a user, and the eyes: what is done is announced, and what follows is judged.
class Driver {
public:
    explicit Driver(const Report& report) : m_report(report) {}

    Report& report() { return m_report; }
    RecordLog& log() { return m_log; }

    /// Announces `what` and does it; then boxes and warnings of Qt's are judged.
    void step(const QString& what, const std::function<void()>& action, int boxes = 0);

    static void click(QWidget& widget);
    /// Types over what the field holds, and leaves it by Tab or Return.
    static void type(QWidget& field, const QString& text, bool byReturn);
    /// Chooses an item by the keyboard, or by its index if it is greyed.
    static void choose(QWidget& comboBox, int index);
    /// Opens the menu of a button by a right click, and clicks its entry at `index`. False: there
    /// is no such entry.
    static bool clickMenu(QWidget& button, int index);

    /// A visible window of that class of the host's; null: there is none.
    static QWidget* windowOf(const char* className);
    /// Opens such a window by a click on `button`; null, and judged, if none appears.
    QWidget* open(QWidget& button, const char* className);
    /// Closes it, which is judged as well.
    void close(QWidget& window);
    /// Chooses the entry at `row` of the window's list, until a record is sent; null text: it has
    /// no such list.
    QString chooseFrom(QWidget& window, int row);

private:
    Report m_report;
    RecordLog m_log;
    BoxCounter m_boxes;
};
