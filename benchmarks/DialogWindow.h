#pragma once

#include "Connected.h"
#include "Panel.h"

class AddFeature;
class Canvas_Tool_Strip;

/// Makes a job with two special symbols the only one; the unit is mil.
void openBenchmarkJob(int specialSymbols = 2);

/// A shown strip with Add Feature as its tool, and the shown dialog with the symbol r10. Messages
/// go to the canvas.
struct DialogWindow {
    explicit DialogWindow(bool canvasKeeps = true);

    CanvasFloor canvas;
    Connected connected;
    Panel panel;
    Canvas_Tool_Strip* strip;
    AddFeature* dialog;
};
