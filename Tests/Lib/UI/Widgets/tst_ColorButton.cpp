#include <UI/Widgets/ColorButton.h>

#include <Support/TestCase.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QSignalSpy>
#include <QTimer>

#include <cmath>
#include <functional>

using Zelkor::Vx::ColorButton;

namespace {

// Clicks the button and runs `inside` while the dialog is open.
void Choose(ColorButton& button, const std::function<void(QColorDialog*)>& inside)
{
    QTimer::singleShot(0, qApp, [&button, inside] { inside(button.findChild<QColorDialog*>()); });
    button.click();
}

QStringList* Record(ColorButton& button, QStringList& log)
{
    QObject::connect(&button, &ColorButton::ColorChanged, [&](const QColor& color) { log += color.name(); });
    QObject::connect(&button, &ColorButton::ColorDialogWillBeOpened, [&] { log += "opens"; });
    QObject::connect(&button, &ColorButton::ColorDialogClosed, [&] { log += "closed"; });
    return &log;
}

} // namespace

class tst_ColorButton : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void squareIsDrawnAtItsPlace()
    {
        ColorButton button;
        button.show();
        button.resize(100, 30);
        QCOMPARE(button.GetColorRect(), QRect(68, 6, 16, 16));
        button.setStyleSheet("QPushButton { background: white; border: none }");
        button.SetColor(Qt::blue);
        QImage picture = button.grab().toImage();
        const qreal ratio = picture.devicePixelRatio();
        const auto at = [&](int x, int y) { return picture.pixelColor(QPointF(x * ratio, y * ratio).toPoint()); };
        QCOMPARE(at(68, 6), QColor(Qt::darkGray));
        QCOMPARE(at(76, 14), QColor(Qt::blue));
        QCOMPARE(at(84, 22), QColor(Qt::darkGray));
        QCOMPARE(at(66, 14), QColor(Qt::white));
        QCOMPARE(at(86, 14), QColor(Qt::white));

        button.setEnabled(false);
        picture = button.grab().toImage();
        QCOMPARE(at(68, 6), QColor(Qt::lightGray));
        int colored = 0;
        for (int x = 70; x < 82; ++x)
            colored += at(x, 14) == QColor(Qt::blue);
        QVERIFY2(colored > 2 && colored < 10, qPrintable(QString::number(colored)));

        button.setStyleSheet(
            "QPushButton { qproperty-colorRect: rect(2, 3, 12, 13); qproperty-colorRectBorderDisabled: red }");
        button.ensurePolished();
        const QRect set = button.GetColorRect();
        button.resize(200, 60);
        QCOMPARE(button.GetColorRect(), set);
        QCOMPARE(button.GetColorRectBorderDisabled(), QColor(Qt::red));
    }

    void settingACompareAndClamp()
    {
        ColorButton button;
        QCOMPARE(button.GetColor(), QColor(Qt::red));
        QSignalSpy changed(&button, &ColorButton::ColorChanged);
        button.SetColor(Qt::red);
        QCOMPARE(changed.size(), 0);
        button.SetAlphaEnabled(true);
        button.SetMaximumAlpha(0.5);
        QCOMPARE(button.GetColor().alphaF(), 1.0);
        button.SetColor(Qt::blue);
        QCOMPARE(changed.size(), 1);
        QVERIFY(std::abs(changed[0][0].value<QColor>().alphaF() - 0.5) < 1e-4);
        QCOMPARE(changed[0][0].value<QColor>(), button.GetColor());
    }

    void dialogSignals_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<QStringList>("signalled");
        QTest::newRow("accept") << "accept" << QStringList{"opens", "#00ff00", "closed"};
        QTest::newRow("accept unchanged") << "accept unchanged" << QStringList{"opens", "#ff0000", "closed"};
        QTest::newRow("cancel") << "cancel" << QStringList{"opens", "closed"};
        QTest::newRow("hide") << "hide" << QStringList{"opens", "closed"};
        QTest::newRow("new parent") << "new parent" << QStringList{"opens", "closed"};
        QTest::newRow("disable, click again, accept") << "disable" << QStringList{"opens", "#00ff00", "closed"};
        QTest::newRow("destroy") << "destroy" << QStringList{"opens"};
    }

    void dialogSignals()
    {
        QFETCH(QString, end);
        QFETCH(QStringList, signalled);
        QWidget window;
        QWidget other;
        QPointer<ColorButton> button = new ColorButton(&window);
        window.show();
        QStringList log;
        Record(*button, log);
        Choose(*button, [&](QColorDialog* dialog) {
            auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            QCOMPARE(ok->property("SubStyle"), QVariant("Ok"));
            if (!end.contains("unchanged"))
                dialog->setCurrentColor(Qt::green);
            if (end == "hide")
                button->hide();
            else if (end == "new parent")
                button->setParent(&other);
            else if (end == "destroy")
                delete button;
            else if (end == "cancel")
                dialog->reject();
            else {
                button->setEnabled(end != "disable");
                button->setEnabled(true);
                button->click();
                ok->click();
            }
        });
        QCOMPARE(log, signalled);
        if (button) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!button->findChild<QColorDialog*>());
        }
    }

    void alphaLimit_data()
    {
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("stored"); // of an opaque colour
        QTest::addColumn<double>("shown");  // in the dialog
        QTest::addColumn<double>("halved"); // stored after alpha 0.5 was chosen there
        QTest::newRow("half") << 0.5 << 0.5 << 1.0 << 0.25;
        QTest::newRow("a third") << 1 / 3.0 << 1 / 3.0 << 1.0 << 1 / 6.0;
        QTest::newRow("one") << 1.0 << 1.0 << 1.0 << 0.5;
        QTest::newRow("zero") << 0.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("negative") << -3.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("above one") << 7.0 << 1.0 << 1.0 << 0.5;
        QTest::newRow("not a number") << std::nan("") << 1.0 << 1.0 << 0.5;
    }

    void alphaLimit()
    {
        QFETCH(double, maximum);
        QFETCH(double, stored);
        QFETCH(double, shown);
        QFETCH(double, halved);
        const auto isNear = [](double a, double b) { return std::abs(a - b) < 0.004; }; // the dialog knows 256 levels
        ColorButton button;
        button.show();
        button.SetAlphaEnabled(true);
        button.SetMaximumAlpha(maximum);
        button.SetColor(Qt::blue);
        QVERIFY(isNear(button.GetColor().alphaF(), stored));
        for (int i = 0; i < 100; ++i) {
            Choose(button, [&](QColorDialog* dialog) {
                QVERIFY(isNear(dialog->currentColor().alphaF(), shown));
                dialog->accept();
            });
        }
        QVERIFY(isNear(button.GetColor().alphaF(), stored));
        Choose(button, [](QColorDialog* dialog) {
            dialog->setCurrentColor(QColor(0, 0, 255, 128));
            dialog->accept();
        });
        QVERIFY(button.GetColor().isValid() && isNear(button.GetColor().alphaF(), halved));
    }
};

VX_TEST_MAIN(tst_ColorButton)
#include "tst_ColorButton.moc"
