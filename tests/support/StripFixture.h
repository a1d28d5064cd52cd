#pragma once

#include "Recorder.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QLayoutItem>
#include <QToolButton>
#include <QVariantMap>
#include <QWidget>

Q_DECLARE_METATYPE(Tool)

/// A tool strip placed in a host's window, with a recording canvas and job tree.
class StripFixture {
public:
    StripFixture();
    StripFixture(const StripFixture&) = delete;
    StripFixture& operator=(const StripFixture&) = delete;

    QToolButton* button(Tool tool) const;
    QList<Tool> checked() const;
    /// Hands the strip a message from a sibling, as the manager does.
    void receive(int code, const QVariantMap& payload = {}, qint64 extra = 0) const;

    Recorder recorder;
    QWidget window;
    Canvas_Tool_Strip* strip = new Canvas_Tool_Strip(&window);
};

QList<Tool> allTools();

/// What a failing comparison of tools prints: the button's object name.
char* toString(Tool tool);
