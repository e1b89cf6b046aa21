#include <Zelkor/App/AboutBoxDialog.h>
#include <Zelkor/Util/ImageGenerator.h>
#include <Zelkor/Vx/UI/Util/WindowMouseMoveHelper.h>

#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

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

const Step PRESS{QEvent::MouseButtonPress, Qt::LeftButton, {}};
const Step DRAG{QEvent::MouseMove, Qt::LeftButton, {10, 20}};

// A window that is moved by one handle.
struct DragFixture
{
    explicit DragFixture(Qt::WindowState state = Qt::WindowNoState)
    {
        window->setGeometry(100, 100, 200, 150);
        handle->resize(200, 20);
        handle->setMouseTracking(true);
        new WindowMouseMoveHelper(window, {nullptr, handle});
        window->setWindowState(state);
        window->show();
        origin = window->pos();
    }

    ~DragFixture() { delete window; }

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

    void aboutBoxOpensItsLinksAndShowsPlainText()
    {
        const Support::UrlHandlerStub links;
        App::AboutBoxDialog dialog("A <b>product", "1.2 (34)", "(c) Example & Co", nullptr);
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
        QCOMPARE(links.opened, expected);
        dialog.SetCustomUrl(QUrl());
        QVERIFY(custom->isHidden());
        QCOMPARE(dialog.findChild<QLabel*>("productLabel")->textFormat(), Qt::PlainText);
        // Only its button closes it.
        QMouseEvent press(QEvent::MouseButtonPress, {1, 1}, {1, 1}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        press.ignore();
        QCoreApplication::sendEvent(&dialog, &press);
        QVERIFY(press.isAccepted());
        QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void leftButtonDragsTheWindow_data()
    {
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QPoint>("way");
        QTest::addColumn<Qt::WindowState>("state");
        const auto row = [](const char* name, const Steps& steps, const QPoint& way = QPoint(),
                            Qt::WindowState state = Qt::WindowNoState) {
            QTest::newRow(name) << steps << way << state;
        };
        const Qt::MouseButtons left = Qt::LeftButton, right = Qt::RightButton, none;
        row("drag", {PRESS, {QEvent::MouseMove, left, {1, -2}}, DRAG}, {10, 20});
        row("no press", {DRAG});
        row("right button", {{QEvent::MouseButtonPress, right, {}}, {QEvent::MouseMove, right, {9, 9}}});
        row("second button", {PRESS, {QEvent::MouseButtonPress, left | right, {}}, DRAG});
        row("double click", {PRESS, {QEvent::MouseButtonDblClick, left, {}}, DRAG});
        row("release", {PRESS, {QEvent::MouseButtonRelease, none, {}}, DRAG});
        row("release elsewhere", {PRESS, {QEvent::MouseMove, none, {9, 9}}, DRAG});
        row("maximised", {PRESS, DRAG}, {}, Qt::WindowMaximized);
        row("full screen", {PRESS, DRAG}, {}, Qt::WindowFullScreen);
    }

    void leftButtonDragsTheWindow()
    {
        QFETCH(Steps, steps);
        QFETCH(Qt::WindowState, state);
        DragFixture fixture(state);
        for (const Step& step : steps)
            fixture.Send(step);
        QTEST(fixture.window->pos() - fixture.origin, "way");
    }

    void windowAndHandleMayBeDeletedDuringADrag()
    {
        DragFixture fixture;
        fixture.Send(PRESS);
        fixture.Send(DRAG);
        delete fixture.handle;
        QCOMPARE(fixture.window->pos(), fixture.origin + DRAG.offset);

        DragFixture other;
        const std::unique_ptr<QWidget> handle(other.handle);
        handle->setParent(nullptr);
        other.Send(PRESS);
        delete other.window;
        other.Send(DRAG);
    }
};

VX_TEST_MAIN(tst_HostUtilities)
#include "tst_HostUtilities.moc"
