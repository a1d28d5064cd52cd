#pragma once

#include <QApplication>
#include <QObject>
#include <QTest>

/// The test classes of a program. Each runs alone, in its own process.
namespace TestProgram {

using Run = int (*)(int argc, char** argv);

/// The class in that source file: the argument "frame" selects test_frame.cpp.
bool add(const char* sourceFile, Run run);

/// Whether every row is wanted, at its largest: with CTS_FULL in the environment, as --full sets
/// it.
bool isFull();

}  // namespace TestProgram

/// Makes `Class` one of the program's test classes.
#define CTS_TEST(Class)                                        \
    [[maybe_unused]] static const bool is##Class##Added =      \
        TestProgram::add(__FILE__, [](int argc, char** argv) { \
            Class test;                                        \
            return QTest::qExec(&test, argc, argv);            \
        })
