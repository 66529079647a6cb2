#pragma once

#include <QRegularExpression>
#include <QtTest>

// Set per test target by ostrel_add_qtest: 0 for a test that provokes Qt warnings on purpose.
#ifndef OSTREL_QT_WARNINGS_FAIL
#define OSTREL_QT_WARNINGS_FAIL 1
#endif

namespace Ostrel::Test {

/// What every test process does before anything else, so that it runs the same started by hand
/// as under CTest: the offscreen platform, Qt Quick in software, a runtime folder of its own,
/// settings and data folders in Qt's test locations (never the user's), glog to standard error
/// only. With `qtWarningsFail`, any Qt warning that a test function did not expect fails it.
/// Must run before the QApplication exists.
void setUpTestProcess(const char* argv0, bool qtWarningsFail);

inline void initTestEnvironment(const char* argv0)
{
    setUpTestProcess(argv0, OSTREL_QT_WARNINGS_FAIL != 0);
}

/// QTest::ignoreMessage that the warning guard honours too: a test that provokes a Qt warning on
/// purpose names it, QtTest fails the function if it does not come, and any other warning still
/// fails it. Each call expects one message.
void ignoreMessage(QtMsgType type, const QString& message);
void ignoreMessage(QtMsgType type, const QRegularExpression& pattern);

/// Runs a QtTest object like QTest::qExec, with a guard on Qt's messages: messages that the
/// offscreen platform prints for lack of features are dropped, and unexpected warnings fail
/// the test function that caused them (see setUpTestProcess).
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
        return Ostrel::Test::exec(&test, argc, argv);                                                        \
    }
