#pragma once

#include <QApplication>
#include <QObject>
#include <QtTest>

/// Gives the calling test program its application and its log, then runs `test`.
int runTests(QObject& test, int argc, char** argv);

/// The main function of a test program with the one test class `Class`.
#define CTS_MAIN(Class)                       \
    int main(int argc, char** argv)           \
    {                                         \
        QApplication application(argc, argv); \
        Class test;                           \
        return runTests(test, argc, argv);    \
    }
