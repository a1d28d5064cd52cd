#include "Host.h"

#include <ui_api.h>

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QRegExpValidator>
#include <QTimer>

#include <algorithm>

namespace {

constexpr double factor = 25.4;

bool readMetric()
{
    QFile file(qEnvironmentVariable("OTHER_HOST_UNIT"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no unit in %s", qPrintable(file.fileName()));
    }
    const QByteArray unit = file.readAll().trimmed();
    return unit == "um" || unit == "mm";
}

QString plain(double value, int digits)
{
    // As many decimals as leave that many digits, without zeros at the end.
    const int before = QString::number(qint64(qAbs(value))).size();
    QString text = QString::number(value, 'f', qMax(digits - before, 1));
    while (text.endsWith('0')) {
        text.chop(1);
    }
    return text.endsWith('.') ? text.chopped(1) : text;
}

bool refuse(void* context)
{
    showRefusal(static_cast<QWidget*>(context));
    return false;
}

}  // namespace

bool isMetric()
{
    if (isWrong("unit")) {
        static const bool atFirst = readMetric();
        return atFirst;
    }
    return readMetric();
}

QString converted(const QString& text, bool toMetric)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber) {
        return text;
    }
    return plain(toMetric ? value * factor : value / factor,
                 toMetric ? habits.metricDigits : habits.digits);
}

void showRefusal(QWidget* parent)
{
    if (habits.boxIsPlain) {
        QDialog box(parent);
        box.setWindowTitle(QStringLiteral("No"));
        box.exec();
    } else {
        QMessageBox::critical(parent, QStringLiteral("Host"), QStringLiteral("Out of range"));
    }
}

namespace ZENTRA {
namespace UIAPI {

bool getEQVisible()
{
    if (isWrong("pictures")) {
        QCoreApplication::setLibraryPaths({});  // where JPEG is read
    }
    return false;
}

QString getUnitString(void* /*context*/)
{
    if (!isMetric()) {
        return QLatin1String(habits.otherUnitText);
    }
    return isWrong("unit string") ? QStringLiteral("mm") : QStringLiteral("MM");
}

int getUnit(void* context)
{
    const QWidget* const active = QApplication::activeWindow();
    if (isWrong("active window") && active && active != static_cast<QWidget*>(context)->window()) {
        return 0;
    }
    return isMetric() ? habits.metricAnswer : 0;
}

double getUnitJudgeDouble(void* /*context*/, double mils)
{
    return isMetric() && !isWrong("bound") ? mils * factor : mils;
}

void getShowPara(void* /*context*/, API::show_param& out)
{
    out.metric = isMetric();
}

bool isNumValueLegal(double value, double minimum, double maximum, void* context)
{
    if (value >= minimum && value <= maximum) {
        return true;
    }
    static std::vector<std::vector<double>> told;
    const std::vector<double> refusal = {value, minimum, maximum};
    if (isWrong("told once") && std::count(told.begin(), told.end(), refusal) > 0) {
        return false;
    }
    told.push_back(refusal);
    if (isWrong("bounds")) {
        showRefusal(static_cast<QWidget*>(context));
    }
    return refuse(context);
}

bool isSymbolValueLegal(const QString& name, double minimum, double maximum, void* context)
{
    for (const QString& size : parsed(name).sizes) {
        const double mils = size.toDouble() / (isMetric() ? factor : 1);
        if (mils < minimum || mils > maximum) {
            if (isWrong("late box")) {
                QTimer::singleShot(0, [] { showRefusal(nullptr); });
                return false;
            }
            return refuse(context);
        }
    }
    return true;
}

ZTLineEdit::ZTLineEdit(ZTERegExp pattern, QWidget* context)
    : QLineEdit(context), m_pattern(pattern), m_metric(isMetric())
{
    const bool isNumeric = int(pattern) < 5;
    if (isNumeric && !habits.takesAnyText) {
        setValidator(new QRegExpValidator(QRegExp(QStringLiteral("-?[0-9]*\\.?[0-9]*")), this));
    }
}

void ZTLineEdit::changeunit(bool isMM)
{
    if (isMM == m_metric) {
        return;
    }
    m_metric = isMM;
    QString other = ::converted(text(), isMM);
    if (isWrong("edit identity")) {
        other = text();
    } else if (isWrong("factor")) {
        other = plain(text().toDouble() * (isMM ? 25.0 : 0.04), habits.digits);
    } else if (isWrong("comma")) {
        other.replace('.', QLocale().decimalPoint());
    }
    setText(other);
    if (isWrong("line edit")) {
        Q_EMIT editingFinished();
    }
}

}  // namespace UIAPI
}  // namespace ZENTRA
