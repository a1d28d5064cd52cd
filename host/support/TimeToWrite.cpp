#include "TimeToWrite.h"

QDateTime CanvasHost::timeToWrite()
{
    bool isGiven = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isGiven);
    return isGiven ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTime();
}
