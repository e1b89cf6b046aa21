#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>
#include <Zelkor/StandIn/DeviceList.h>

#include <algorithm>

using namespace Zelkor::StandIn;

class tst_ScreenDevice : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyAnX11SessionHasAScreen_data()
    {
        QTest::addColumn<QByteArray>("waylandDisplay");
        QTest::addColumn<QByteArray>("sessionType");
        QTest::addColumn<int>("screens");
        QTest::newRow("no session") << QByteArray() << QByteArray() << 1;
        QTest::newRow("X11") << QByteArray() << QByteArray("x11") << 1;
        QTest::newRow("Wayland") << QByteArray("wayland-0") << QByteArray() << 0;
        QTest::newRow("Wayland, closed to the program") << QByteArray() << QByteArray("wayland") << 0;
    }

    void onlyAnX11SessionHasAScreen()
    {
        QFETCH(QByteArray, waylandDisplay);
        QFETCH(QByteArray, sessionType);
        qputenv("WAYLAND_DISPLAY", waylandDisplay);
        qputenv("XDG_SESSION_TYPE", sessionType);
        const DeviceList list;
        QTRY_VERIFY_WITH_TIMEOUT(list.IsComplete(), 60000);
        const auto devices = list.GetDevices();
        const auto isScreen = [](const auto& device) { return device->GetKind() == CaptureDevice::Kind::Screen; };
        QTEST(int(std::count_if(devices.begin(), devices.end(), isScreen)), "screens");
        QVERIFY(WaitForEngineIdle(std::chrono::seconds(20)));
    }
};

VX_TEST_MAIN(tst_ScreenDevice)
#include "tst_ScreenDevice.moc"
