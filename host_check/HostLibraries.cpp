#include "HostLibraries.h"

QStringList hostLibraries()
{
    return QStringLiteral(HOST_LIBRARIES).split('|');
}
