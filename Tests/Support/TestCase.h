#pragma once

#include <QApplication>
#include <QObject>
#include <QStringList>
#include <QtTest>

namespace Support {

/// Base of our test objects: a test function fails when a Qt warning comes that it did not announce, or when an
/// announced one stays away.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /// Announces one warning that contains `text`. Call it before the code that warns.
    void ExpectWarning(const QString& text);

    /// Names the row of a table that runs now. A failure tells it.
    void InRow(const QString& name);

private Q_SLOTS:
    void init();
    void cleanup();
};

/// What every test program does first: log to the terminal, no settings of the person's desktop.
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
