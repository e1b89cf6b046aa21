#include <Zelkor/App/AboutBoxDialog.h>
#include <Zelkor/Util/ImageGenerator.h>
#include <Zelkor/Util/WidgetStyle.h>
#include <Zelkor/Vx/UI/Util/WindowMouseMoveHelper.h>

#include <Support/TestCase.h>

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

#include <cmath>

using namespace Zelkor;
using Vx::UI::Util::WindowMouseMoveHelper;

namespace {

struct Step
{
    QEvent::Type type;
    Qt::MouseButtons buttons;
    QPoint offset;
};
using Steps = QVector<Step>;

// A window that is moved by one handle.
struct DragFixture
{
    DragFixture()
    {
        window->setGeometry(100, 100, 200, 150);
        handle->resize(200, 20);
        handle->setMouseTracking(true);
        new WindowMouseMoveHelper(window, {nullptr, handle});
        window->show();
        origin = window->pos();
    }

    ~DragFixture() { delete window; }

    void Press() { Send({QEvent::MouseButtonPress, Qt::LeftButton, {}}); }
    void Move(int x, int y) { Send({QEvent::MouseMove, Qt::LeftButton, {x, y}}); }

    void Send(const Step& step)
    {
        const QPoint global = QPoint(150, 110) + step.offset;
        const Qt::MouseButton button = step.type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(step.type, handle->mapFromGlobal(global), global, button, step.buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(handle, &event);
    }

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> handle = new QWidget(window);
    QPoint origin;
};

} // namespace

Q_DECLARE_METATYPE(Steps)

class tst_HostUtilities : public Support::TestCase
{
    Q_OBJECT

public Q_SLOTS:
    void Open(const QUrl& url) { opened += url; }

private Q_SLOTS:
    void circleFadesWithTheCubeOfTheDistance()
    {
        const auto circle = Util::ImageGenerator::CreateCircleWithAlphaGradientCubic;
        const QImage image = circle(QSize(101, 61), QColor(200, 100, 50, 128));
        QCOMPARE(image.size(), QSize(101, 61));
        for (const QPoint& point : {QPoint(50, 30), QPoint(50, 45), QPoint(65, 30), QPoint(30, 40), QPoint(50, 60)}) {
            const double r = std::hypot(point.x() - 50, point.y() - 30) / 30.5;
            const QRgb pixel = image.pixel(point);
            QVERIFY(std::abs(qAlpha(pixel) - 128 * (1 - r * r * r)) <= 1);
            QVERIFY(std::abs(qRed(pixel) - 200 * qAlpha(pixel) / 255.0) <= 1);
        }
        QCOMPARE(image.pixel(19, 30), QRgb(0));
        QCOMPARE(image.pixel(30, 2), QRgb(0));
        QCOMPARE(circle({1, 1}, Qt::red).pixel(0, 0), qRgb(255, 0, 0));
        QVERIFY(circle({0, 5}, Qt::red).isNull());
    }

    void styleSheetFollowsTheProperty()
    {
        QLabel label;
        label.setStyleSheet("QLabel { color: #0000ff } QLabel[state=\"hot\"] { color: #ff0000 }");
        label.show();
        Util::ApplyWidgetStyle(&label, "hot", "state");
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));
        Util::ApplyWidgetStyle(&label, "cold", "state");
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::blue));
        Util::ApplyWidgetStyle(nullptr, "hot", "state");
    }

    void aboutBoxOpensItsLinksByKeyboard()
    {
        for (const char* scheme : {"http", "https", "mailto", "file", "javascript"})
            QDesktopServices::setUrlHandler(scheme, this, "Open");
        App::AboutBoxDialog dialog("Product", "1.2 (34)", "(c) Example & Co", nullptr);
        auto* custom = dialog.findChild<QLabel*>("customURL");
        QVERIFY(custom->isHidden());
        dialog.SetCustomUrl(QUrl("http://example.com/more?x=1&y=2"));
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(dialog.focusWidget(), dialog.findChild<QPushButton*>());
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        }
        for (const char* url : {"file:///etc/passwd", "javascript:alert(1)", "example.com"})
            Q_EMIT custom->linkActivated(url);
        const QList<QUrl> expected = {QUrl("https://example.com/"), QUrl("mailto:support@example.com"),
                                      QUrl("http://example.com/more?x=1&y=2")};
        QCOMPARE(opened, expected);
        dialog.SetCustomUrl(QUrl());
        QVERIFY(custom->isHidden());
    }

    void aboutBoxShowsPlainTextAndClosesByItsButtonOnly()
    {
        App::AboutBoxDialog dialog("A <b>product", "1.2 (34)", "(c) Example & Co", nullptr);
        dialog.show();
        QCOMPARE(dialog.findChild<QLabel*>("productLabel")->textFormat(), Qt::PlainText);
        QCOMPARE(dialog.findChild<QLabel*>("legalLabel")->text(), QString("(c) Example & Co"));
        QMouseEvent press(QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        press.ignore();
        QCoreApplication::sendEvent(&dialog, &press);
        QVERIFY(press.isAccepted());
        QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void leftButtonDragsTheWindow_data()
    {
        constexpr auto PRESS = QEvent::MouseButtonPress, MOVE = QEvent::MouseMove;
        const Qt::MouseButtons left = Qt::LeftButton, right = Qt::RightButton, none;
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QPoint>("offset");
        const auto row = [](const char* name, const Steps& steps, const QPoint& offset = QPoint()) {
            QTest::newRow(name) << steps << offset;
        };
        row("drag", {{PRESS, left, {}}, {MOVE, left, {1, -2}}, {MOVE, left, {40, 30}}}, {40, 30});
        row("no press", {{MOVE, left, {9, 9}}});
        row("right button", {{PRESS, right, {}}, {MOVE, right, {9, 9}}});
        row("second button", {{PRESS, left, {}}, {PRESS, left | right, {}}, {MOVE, left, {9, 9}}});
        row("double click", {{PRESS, left, {}}, {QEvent::MouseButtonDblClick, left, {}}, {MOVE, left, {9, 9}}});
        row("release", {{PRESS, left, {}}, {QEvent::MouseButtonRelease, none, {}}, {MOVE, left, {9, 9}}});
        row("release elsewhere", {{PRESS, left, {}}, {MOVE, none, {9, 9}}, {MOVE, left, {20, 20}}});
    }

    void leftButtonDragsTheWindow()
    {
        QFETCH(Steps, steps);
        DragFixture fixture;
        for (const Step& step : steps)
            fixture.Send(step);
        QTEST(fixture.window->pos() - fixture.origin, "offset");
    }

    void maximisedWindowIsNotDragged()
    {
        DragFixture fixture;
        fixture.window->setWindowState(Qt::WindowMaximized);
        fixture.origin = fixture.window->pos();
        fixture.Press();
        fixture.Move(10, 10);
        QCOMPARE(fixture.window->pos(), fixture.origin);
    }

    void windowAndHandleMayBeDeletedDuringADrag()
    {
        DragFixture fixture;
        fixture.Press();
        fixture.Move(10, 10);
        delete fixture.handle;
        QCOMPARE(fixture.window->pos(), fixture.origin + QPoint(10, 10));

        DragFixture other;
        const std::unique_ptr<QWidget> handle(other.handle);
        handle->setParent(nullptr);
        other.Press();
        other.Move(10, 10);
        delete other.window;
        other.Move(20, 20);
        const WindowMouseMoveHelper withoutWindow(nullptr, {handle.get()});
        other.Press();
    }

private:
    QList<QUrl> opened;
};

VX_TEST_MAIN(tst_HostUtilities)
#include "tst_HostUtilities.moc"
