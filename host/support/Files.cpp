#include "Files.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

namespace CanvasHost {
namespace {

/// Windows tells what is wrong in its own words and language. What is wrong most often is told
/// alike everywhere, by a text that Qt has in all of its languages.
FileError missing(const QString& file)
{
    static const char* const text = "No such file or directory";
    return {file, 0, QCoreApplication::translate("QIODevice", text)};
}

}  // namespace

FileError fileError(const QFileDevice& device)
{
    // Qt has translations of most of the system's texts, but does not look them up itself.
    static const char* const ours[] = {QT_TRANSLATE_NOOP("QIODevice", "Not a directory"),
                                       QT_TRANSLATE_NOOP("QIODevice", "Is a directory"),
                                       QT_TRANSLATE_NOOP("QIODevice", "Read-only file system")};
    Q_UNUSED(ours)
    return {device.fileName(), 0,
            QCoreApplication::translate("QIODevice", qUtf8Printable(device.errorString()))};
}

QByteArray readWhole(const QString& file)
{
    QFile device(file);
    if (!device.exists()) {
        throw missing(file);
    }
    QByteArray content;
    if (device.open(QIODevice::ReadOnly)) {
        content = device.readAll();
    }
    if (device.error() != QFileDevice::NoError) {
        throw fileError(device);
    }
    return content;
}

void writeWhole(const QString& file, const QByteArray& content)
{
    QSaveFile device(file);
    if (!device.open(QIODevice::WriteOnly) || device.write(content) != content.size() ||
        !device.commit()) {
        throw fileError(device);
    }
}

void writeUnsynced(const QString& file, const QByteArray& content)
{
    QFile device(file + QStringLiteral(".new"));
    if (!device.open(QIODevice::WriteOnly) || device.write(content) != content.size() ||
        !device.flush()) {
        throw FileError{file, 0, fileError(device).reason};
    }
    device.close();
    const auto path = [](const QString& name) {
        return std::filesystem::u8path(name.toStdString());
    };
    std::error_code error;
    std::filesystem::rename(path(device.fileName()), path(file), error);
    if (error) {
        const std::string reason = error.message();
        throw FileError{file, 0, QCoreApplication::translate("QIODevice", reason.c_str())};
    }
}

}  // namespace CanvasHost
