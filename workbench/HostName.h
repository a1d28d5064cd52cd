#pragma once

#include <QString>

/// The name under which the workbench itself sends and is addressed.
inline const QString hostName = QStringLiteral("Canvas_Host.dll");
