#pragma once

#include <QWidget>

class PageHost;

/// A page of the dialog, or one of the text page's own pages: it owns its widgets, writes their
/// defaults into the record when it is built, and has one short method per control, to which the
/// dialog's named slots forward.
class Page : public QWidget {
public:
    explicit Page(PageHost& host, QWidget* parent = nullptr) : QWidget(parent), m_host(host) {}

    /// Sets every visible text in the current language. Changes no value and sends nothing.
    virtual void retranslate() = 0;

    /// Shows lengths and their labels in the other system of units. Changes no value of the record.
    virtual void changeUnit(bool /*isMetric*/) {}

protected:
    PageHost& m_host;
};
