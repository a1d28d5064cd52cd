#pragma once

#include "shared/Retranslated.h"

#include <QUrl>
#include <QWidget>

class QAction;
class QTextBrowser;

/// The pages for who uses the program, in a window with the way back.
class Documentation : public Retranslated<QWidget> {
    Q_OBJECT

public:
    explicit Documentation(QWidget* parent);

private:
    void retranslate() override;

    QUrl m_first;
    QTextBrowser* m_pages;
    QAction* m_contents;
    QAction* m_back;
    QAction* m_forward;
};
