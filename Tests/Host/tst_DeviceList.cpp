#include <Support/TestCase.h>

#include <Zelkor/StandIn/DeviceList.h>

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace Zelkor::StandIn;

class tst_DeviceList : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isUsableAtOnceAndCompleteLater()
    {
        QElapsedTimer timer;
        timer.start();
        DeviceList list;
        QVERIFY2(timer.elapsed() < 50, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!list.IsComplete());
        QCOMPARE(list.GetDevices().size(), 1);
        const auto testPicture = list.GetDevices()[0];
        QVERIFY(testPicture->GetKind() == CaptureDevice::Kind::TestPicture);

        QSignalSpy changed(&list, &DeviceList::Changed);
        QTRY_VERIFY_WITH_TIMEOUT(list.IsComplete(), 60000);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(list.GetDevices().back(), testPicture);
        QCOMPARE(list.FindDevice(QString::fromStdString(testPicture->GetId())), testPicture);
        QVERIFY(!list.FindDevice("no such device"));
        const auto devices = list.GetDevices();
        for (const auto& device : devices) {
            QVERIFY(!device->GetModes().empty());
            QCOMPARE(list.FindDevice(QString::fromStdString(device->GetId())), device);
        }
    }

    void mayDieWhileItSearches()
    {
        for (int i = 0; i < 50; ++i) {
            QElapsedTimer timer;
            timer.start();
            auto list = std::make_unique<DeviceList>();
            if (i % 2)
                QTest::qWait(i / 5);
            const bool waited = i % 2;
            const qint64 before = timer.elapsed();
            list.reset();
            QVERIFY(timer.elapsed() - (waited ? before : 0) < 200);
        }
    }
};

VX_TEST_MAIN(tst_DeviceList)
#include "tst_DeviceList.moc"
