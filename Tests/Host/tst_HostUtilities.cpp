#include <Zelkor/App/AboutBoxDialog.h>
#include <Zelkor/Util/ImageGenerator.h>
#include <Zelkor/Util/WidgetStyle.h>
#include <Zelkor/Vx/UI/Util/WindowMouseMoveHelper.h>

#include <Support/TestCase.h>

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>
#include <QUrl>

#include <cmath>

using namespace Zelkor;
using Vx::UI::Util::WindowMouseMoveHelper;

namespace {

constexpr Qt::MouseButton LEFT = Qt::LeftButton;

// A window that is moved by one handle.
struct Scene
{
    Scene()
    {
        window->setGeometry(100, 100, 200, 150);
        handle->resize(200, 20);
        handle->setMouseTracking(true);
        new WindowMouseMoveHelper(window, {nullptr, handle});
        window->show();
        origin = window->pos();
    }

    ~Scene() { delete window; }

    void Send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons, const QPoint& way = QPoint())
    {
        const QPoint global = QPoint(150, 110) + way;
        QMouseEvent event(type, handle->mapFromGlobal(global), global, button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(handle, &event);
    }

    void Press(Qt::MouseButtons buttons = LEFT) { Send(QEvent::MouseButtonPress, LEFT, buttons); }
    void MoveBy(const QPoint& way, Qt::MouseButtons buttons = LEFT) { Send(QEvent::MouseMove, {}, buttons, way); }

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> handle = new QWidget(window);
    QPoint origin;
};

class Bracketer : public QTranslator
{
    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QStringLiteral("[%1]").arg(source);
    }
};

} // namespace

class tst_HostUtilities : public Support::TestCase
{
    Q_OBJECT

public Q_SLOTS:
    void Open(const QUrl& url) { opened += url; }

private Q_SLOTS:
    void circleFadesByTheCube()
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
        for (const QPoint& point : {QPoint(0, 30), QPoint(19, 30), QPoint(81, 30), QPoint(30, 2)})
            QCOMPARE(image.pixel(point), QRgb(0));
        QCOMPARE(circle({1, 1}, Qt::red).pixel(0, 0), qRgb(255, 0, 0));
        QVERIFY(circle({0, 5}, Qt::red).isNull());
    }

    void styleSheetSelectsOnTheProperty()
    {
        QLabel label;
        label.setStyleSheet("QLabel { color: #0000ff } QLabel[state=\"hot\"] { color: #ff0000; padding: 20px }");
        label.show();
        for (const auto& [state, color] : {std::pair("hot", Qt::red), std::pair("cold", Qt::blue)}) {
            Util::ApplyWidgetStyle(&label, state, "state");
            QCOMPARE(label.palette().color(QPalette::WindowText), QColor(color));
        }
        Util::ApplyWidgetStyle(nullptr, "hot", "state");
    }

    void aboutBoxWorksByKeyboard()
    {
        for (const char* scheme : {"http", "https", "mailto", "file", "javascript"})
            QDesktopServices::setUrlHandler(scheme, this, "Open");
        App::AboutBoxDialog dialog("A <b>product", "1.2 (34)", "(c) Somebody & Co", nullptr);
        const auto label = [&](const char* name) { return dialog.findChild<QLabel*>(name); };
        QCOMPARE(label("productLabel")->textFormat(), Qt::PlainText);
        QCOMPARE(label("versionLabel")->text(), QString("1.2 (34)"));
        QCOMPARE(label("legalLabel")->text(), QString("(c) Somebody & Co"));
        QVERIFY(label("customURL")->isHidden());
        dialog.SetCustomUrl(QUrl("http://example.com/more?x=1&y=2"));
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto* ok = dialog.findChild<QPushButton*>();
        QCOMPARE(dialog.focusWidget(), ok);
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        }
        for (const char* url : {"file:///etc/passwd", "javascript:alert(1)", "example.com"})
            Q_EMIT label("customURL")->linkActivated(url);
        const QList<QUrl> expected = {QUrl("https://example.com/"), QUrl("mailto:support@example.com"),
                                      QUrl("http://example.com/more?x=1&y=2")};
        QCOMPARE(opened, expected);
        dialog.SetCustomUrl(QUrl());
        QVERIFY(label("customURL")->isHidden());

        Bracketer translator;
        QCoreApplication::installTranslator(&translator);
        QTRY_COMPARE(dialog.windowTitle(), QString("[About A <b>product]"));
        QVERIFY(label("homePageLabel")->text().contains("[Visit the home page]"));
        QCOMPARE(ok->text(), QString("[OK]"));

        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), LEFT, LEFT, Qt::NoModifier);
        press.ignore();
        QCoreApplication::sendEvent(&dialog, &press);
        QVERIFY(press.isAccepted());
        QTest::mouseClick(ok, LEFT);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void windowFollowsALeftDragAlone()
    {
        Scene scene;
        scene.MoveBy({9, 9});
        scene.Press(Qt::RightButton);
        scene.MoveBy({10, 10}, Qt::RightButton);
        scene.Press();
        scene.Send(QEvent::MouseButtonDblClick, LEFT, LEFT);
        scene.MoveBy({10, 10});
        scene.Press();
        scene.Press(LEFT | Qt::RightButton);
        scene.MoveBy({10, 10}, LEFT | Qt::RightButton);
        scene.Press();
        scene.MoveBy({10, 10}, Qt::NoButton);
        scene.MoveBy({20, 20});
        QCOMPARE(scene.window->pos(), scene.origin);

        scene.Press();
        for (const QPoint& way : {QPoint(0, 0), QPoint(1, -2), QPoint(40, 30)}) {
            scene.MoveBy(way);
            QCOMPARE(scene.window->pos(), scene.origin + way);
        }
        scene.Send(QEvent::MouseButtonRelease, LEFT, Qt::NoButton);
        scene.MoveBy({5, 5});
        QCOMPARE(scene.window->pos(), scene.origin + QPoint(40, 30));

        scene.window->setWindowState(Qt::WindowMaximized);
        const QPoint maximised = scene.window->pos();
        scene.Press();
        scene.MoveBy({10, 10});
        QCOMPARE(scene.window->pos(), maximised);
    }

    void anythingMayDieDuringADrag()
    {
        Scene scene;
        scene.Press();
        scene.MoveBy({10, 10});
        delete scene.handle;
        QCOMPARE(scene.window->pos(), scene.origin + QPoint(10, 10));

        Scene other;
        other.handle->setParent(nullptr);
        other.Press();
        other.MoveBy({10, 10});
        delete other.window;
        other.MoveBy({20, 20});

        const WindowMouseMoveHelper idle(nullptr, {other.handle});
        other.Press();
        other.MoveBy({20, 20});
        delete other.handle;
    }

private:
    QList<QUrl> opened;
};

VX_TEST_MAIN(tst_HostUtilities)
#include "tst_HostUtilities.moc"
