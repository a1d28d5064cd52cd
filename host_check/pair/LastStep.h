#pragma once

#include <QString>

/// What is announced last, when everything has been deleted and unloaded.
inline const QString lastStep(QLatin1String("the program ends"));
