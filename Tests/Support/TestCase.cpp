#include <Support/TestCase.h>

#include <glog/logging.h>

#include <QStandardPaths>

#include <algorithm>
#include <mutex>
#include <utility>

namespace Support {

namespace {

std::mutex mutex; ///< guards the lists
QStringList expected;
QStringList stray;
QtMessageHandler previousHandler = nullptr;

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // The offscreen platform reports its limitations.
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const std::lock_guard<std::mutex> lock(mutex);
        const auto found = std::find_if(expected.begin(), expected.end(),
                                        [&message](const QString& text) { return message.contains(text); });
        if (found != expected.end()) {
            expected.erase(found);
            return;
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
    const std::lock_guard<std::mutex> lock(mutex);
    const QString strayWarnings = std::exchange(stray, {}).join("; ");
    const QString missingWarnings = std::exchange(expected, {}).join("; ");
    QCOMPARE(strayWarnings, QString());
    QCOMPARE(missingWarnings, QString());
}

void PrepareProcess(const char* program)
{
    google::InitGoogleLogging(program);
    FLAGS_logtostderr = true;
    QStandardPaths::setTestModeEnabled(true);
}

} // namespace Support
