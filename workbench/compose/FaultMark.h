#pragma once

#include <QString>

class QWidget;

/// How fields that hold a mistake look.
namespace FaultMark {

/// Marks `field` and shows `fault` as its tool tip; an empty one takes the mark away.
void set(QWidget* field, const QString& fault);

}  // namespace FaultMark
