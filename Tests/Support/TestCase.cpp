#include <Support/TestCase.h>

#include <glog/logging.h>

#include <QStandardPaths>

#include <mutex>

namespace Support {

namespace {

std::mutex mutex;
QStringList expected;
QStringList stray;
QtMessageHandler previousHandler = nullptr;

// Returns whether a message is one of the limitations of the offscreen platform.
bool IsPlatformMessage(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (IsPlatformMessage(message))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const std::lock_guard<std::mutex> lock(mutex);
        for (int i = 0; i < expected.size(); ++i) {
            if (message.contains(expected[i])) {
                expected.removeAt(i);
                return;
            }
        }
        stray += message;
    }
    previousHandler(type, context, message);
}

} // namespace

void TestCase::ExpectWarning(const QString& text)
{
    const std::lock_guard<std::mutex> lock(mutex);
    expected += text;
}

void TestCase::init()
{
    previousHandler = qInstallMessageHandler(HandleMessage);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(previousHandler);
    QStringList strayNow;
    QStringList missingNow;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        strayNow.swap(stray);
        missingNow.swap(expected);
    }
    QVERIFY2(strayNow.isEmpty(), qPrintable(QStringLiteral("stray warning: ") + strayNow.join(QStringLiteral("; "))));
    QVERIFY2(missingNow.isEmpty(), qPrintable(QStringLiteral("no warning: ") + missingNow.join(QStringLiteral("; "))));
}

void PrepareProcess(const char* program)
{
    google::InitGoogleLogging(program);
    FLAGS_logtostderr = true;
    QStandardPaths::setTestModeEnabled(true);
}

} // namespace Support
