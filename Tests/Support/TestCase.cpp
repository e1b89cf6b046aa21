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
QString allowed;
QStringList stray;
QtMessageHandler previousHandler = nullptr;

// Returns whether a message is about a limitation of the offscreen platform, or about an event that reaches no window
// or is not accepted: tests send such events on purpose, and since Qt 6, Qt Test reports them.
bool IsHarmless(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support ")) ||
           message.contains(QLatin1String(" occurs outside target window ")) ||
           message.endsWith(QLatin1String(" not accepted by receiving widget"));
}

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (IsHarmless(message))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!allowed.isEmpty() && message.startsWith(allowed))
            return;
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

void TestCase::AllowWarnings(const QString& text)
{
    const std::lock_guard<std::mutex> lock(mutex);
    allowed = text;
}

void TestCase::init()
{
    previousHandler = qInstallMessageHandler(HandleMessage);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(previousHandler);
    const std::lock_guard<std::mutex> lock(mutex);
    allowed.clear();
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
