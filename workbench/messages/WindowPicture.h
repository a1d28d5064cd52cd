#pragma once

#include <QPixmap>

class QWidget;

/// A picture of `window` as the screen shows it: with the program's other windows on top.
QPixmap pictureOf(QWidget* window);

/// All or nothing, in the format that the end of the name says; throws a FileError.
void savePicture(const QPixmap& picture, const QString& file);
