#pragma once

#include "Connected.h"

#include <QWidget>

class AddFeature;
class Canvas_Tool_Strip;

/// Makes a job with two special symbols the only one; the unit is mil.
void openBenchmarkJob(int specialSymbols = 2);

/// A message from the canvas; an object that it points at must outlive it.
PluginMetaData messageFromCanvas(int code, qint64 extra = 0);

/// A shown strip and the dialog that a click on Add Feature has opened, with the symbol r10.
/// Messages go to the canvas.
struct DialogWindow {
    explicit DialogWindow(bool canvasKeeps = true);

    CanvasFloor canvas;
    Connected connected;
    QWidget panel;
    Canvas_Tool_Strip* strip;
    AddFeature* dialog;
};
