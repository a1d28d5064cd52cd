#pragma once

#include <QPixmap>

class QWidget;

/// A picture of `window` as the screen shows it: with the program's other windows on top.
QPixmap pictureOf(QWidget* window);
