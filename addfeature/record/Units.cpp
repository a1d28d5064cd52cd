#include "addfeature/record/Units.h"

#include <QCoreApplication>

namespace Units {

QString format(double value)
{
    return QString::number(value, 'g', 6);
}

QString toStored(const QString& text, bool isMetric)
{
    return isMetric ? text : format(text.toDouble() * factor);
}

QString lengthLabel(bool isMetric)
{
    return isMetric ? QCoreApplication::translate("AddFeature", "my")
                    : QCoreApplication::translate("AddFeature", "mil");
}

QString largeLengthLabel(bool isMetric)
{
    return isMetric ? QCoreApplication::translate("AddFeature", "mm")
                    : QCoreApplication::translate("AddFeature", "\"");
}

}  // namespace Units
