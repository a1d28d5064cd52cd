#pragma once

#include <QStringList>

/// The files of the host's libraries, as this program was linked with them.
QStringList hostLibraries();
