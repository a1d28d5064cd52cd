#include "viewer/OpenStep.h"

#include <QCoreApplication>

QString OpenStep::nameOf(const QString& job, const QString& step)
{
    return job.isEmpty() ? QCoreApplication::translate("OpenStep", "a board without a job")
                         : QCoreApplication::translate("OpenStep", "%1 / %2").arg(job, step);
}
