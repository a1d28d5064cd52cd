#pragma once

#include <QApplication>
#include <QObject>
#include <QtTest>

/// The test classes of a program. Each is run alone, in a process of its own.
namespace TestProgram {

using Run = int (*)(int argc, char** argv);

/// The class of that source file: test_frame.cpp is chosen by the argument "frame".
bool add(const char* sourceFile, Run run);

}  // namespace TestProgram

/// Makes `Class` one of the program's test classes.
#define CTS_TEST(Class)                                        \
    [[maybe_unused]] static const bool isClassAdded =          \
        TestProgram::add(__FILE__, [](int argc, char** argv) { \
            Class test;                                        \
            return QTest::qExec(&test, argc, argv);            \
        })
