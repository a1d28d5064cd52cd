#pragma once

#include <QString>

class QWidget;

/// How invalid fields look.
namespace FaultMark {

/// Marks `field` and shows `fault` as its tool tip; an empty one removes the mark.
void set(QWidget* field, const QString& fault);

}  // namespace FaultMark
