#pragma once

#include <QtTest>

namespace Ostrel::Test {

/// What every test process does before anything else: settings and data folders in Qt's test
/// locations (never the user's), glog to standard error only, no log files.
void initTestEnvironment(const char* argv0);

/// Runs a QtTest object like QTest::qExec, with a guard on Qt's messages: messages that the
/// offscreen platform prints for lack of features are dropped, and with OSTREL_QT_WARNINGS_FAIL=1
/// in the environment (the test rig sets it) any other Qt warning fails the test function that
/// caused it.
int exec(QObject* test, int argc, char** argv);

} // namespace Ostrel::Test

/// A QtTest main for tests that need a QApplication and nothing of the shell.
#define OSTREL_TEST_MAIN(TestClass)                                                                          \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        Ostrel::Test::initTestEnvironment(argv[0]);                                                          \
        QApplication app(argc, argv);                                                                        \
        TestClass test;                                                                                      \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return Ostrel::Test::exec(&test, argc, argv);                                                              \
    }
