#include "MissingLibrary.h"

QString CanvasHost::missingLibrary(const QString&)
{
    return {};
}
