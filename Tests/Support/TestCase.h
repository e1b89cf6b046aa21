#pragma once

#include <QApplication>
#include <QObject>
#include <QStringList>
#include <QtTest>

namespace Support {

/// Base class of test objects. A test function fails on an unexpected Qt warning, and on a missing expected one.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /// Expects one warning that contains `text`. Call it before the code that warns.
    void ExpectWarning(const QString& text);

    /// Ignores warnings that begin with `text` until the test function ends.
    void AllowWarnings(const QString& text);

    // A test class with functions of the same names calls these first.
protected Q_SLOTS:
    void init();
    void cleanup();
};

/// Logs to the terminal and isolates the test program from the user's settings.
void PrepareProcess(const char* program);

} // namespace Support

#define VX_TEST_MAIN(TestClass)                                                                                        \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        Support::PrepareProcess(argv[0]);                                                                              \
        QApplication application(argc, argv);                                                                          \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
