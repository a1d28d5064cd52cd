#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// One step of a session, as it stands in the file.
struct SessionStep {
    int line = 0;
    QString command;
    QStringList arguments;
};

struct Session {
    QString file;
    std::vector<SessionStep> steps;
};
