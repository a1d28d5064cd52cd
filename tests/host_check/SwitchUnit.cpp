// The command that sets the unit of the hosts here: SwitchUnit FILE METRIC INCH metric|inch

#include <QCoreApplication>
#include <QFile>

#include <cstdlib>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(1));
    if (arguments.size() != 5 || !file.open(QIODevice::WriteOnly)) {
        return EXIT_FAILURE;
    }
    file.write(arguments[arguments[4] == QLatin1String("metric") ? 2 : 3].toUtf8());
    return EXIT_SUCCESS;
}
