#include "plugin/Guard.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <glog/logging.h>

namespace {

// The log is read in the GBK code page: "exception position:" and "exception description:".
constexpr char positionPrefix[] = "\xD2\xEC\xB3\xA3\xCE\xBB\xD6\xC3\xA3\xBA";
constexpr char descriptionPrefix[] = "\xD2\xEC\xB3\xA3\xC3\xE8\xCA\xF6\xA3\xBA";

void show(const GuardPosition& position, const char* text)
{
    QMessageBox::information(nullptr, QCoreApplication::translate(position.context, position.title),
                             QString::fromUtf8(text), QMessageBox::Ok);
}

}  // namespace

void reportThrownText(const GuardPosition& position, const char* text)
{
    google::LogMessage(position.file, position.line, google::GLOG_ERROR).stream()
        << positionPrefix << position.file << " : " << position.line;
    google::LogMessage(position.file, position.line, google::GLOG_ERROR).stream()
        << descriptionPrefix << text;
    show(position, text);
}

void reportException(const GuardPosition& position, const std::exception& exception)
{
    show(position, exception.what());
}
