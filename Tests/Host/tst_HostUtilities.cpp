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

// A window at (100, 100) that is moved by one handle.
struct Scene
{
    Scene()
    {
        window->setGeometry(100, 100, 200, 150);
        handle->setGeometry(0, 0, 200, 20);
        handle->setMouseTracking(true);
        helper = new WindowMouseMoveHelper(window, {nullptr, handle});
        window->show();
        origin = window->pos();
    }

    ~Scene() { delete window; }

    bool Send(QEvent::Type type, const QPoint& global, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, handle->mapFromGlobal(global), global, button, buttons, Qt::NoModifier);
        return QCoreApplication::sendEvent(handle, &event);
    }

    void Press(Qt::MouseButton button = LEFT, Qt::MouseButtons buttons = LEFT)
    {
        Send(QEvent::MouseButtonPress, START, button, buttons);
    }

    void MoveBy(const QPoint& way, Qt::MouseButtons buttons = LEFT)
    {
        Send(QEvent::MouseMove, START + way, Qt::NoButton, buttons);
    }

    QPoint Moved() const { return window->pos() - origin; }

    static constexpr QPoint START{150, 110};

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> handle = new QWidget(window);
    QPointer<WindowMouseMoveHelper> helper;
    QPoint origin;
};

class Bracketer : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QByteArray(context) == "Zelkor::App::AboutBoxDialog" ? QStringLiteral("[%1]").arg(source) : QString();
    }
};

class LinkCatcher : public QObject
{
    Q_OBJECT

public:
    LinkCatcher()
    {
        for (const char* scheme : SCHEMES)
            QDesktopServices::setUrlHandler(scheme, this, "Open");
    }

    ~LinkCatcher() override
    {
        for (const char* scheme : SCHEMES)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void Open(const QUrl& url) { opened += url; }

private:
    static constexpr const char* SCHEMES[] = {"http", "https", "mailto", "file", "javascript"};
};

} // namespace

class tst_HostUtilities : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void circleFadesByTheCube()
    {
        using Util::ImageGenerator;
        const QColor color(200, 100, 50, 128);
        const QImage image = ImageGenerator::CreateCircleWithAlphaGradientCubic(QSize(101, 61), color);
        QCOMPARE(image.size(), QSize(101, 61));
        for (const QPoint& point : {QPoint(50, 30), QPoint(50, 45), QPoint(65, 30), QPoint(30, 40), QPoint(50, 60)}) {
            const double r = std::hypot(point.x() - 50, point.y() - 30) / 30.5;
            const QRgb pixel = image.pixel(point);
            QVERIFY(std::abs(qAlpha(pixel) - 128 * (1 - r * r * r)) <= 1);
            QVERIFY(std::abs(qRed(pixel) - 200 * qAlpha(pixel) / 255.0) <= 1);
        }
        for (const QPoint& point : {QPoint(0, 30), QPoint(19, 30), QPoint(81, 30), QPoint(30, 2)})
            QCOMPARE(image.pixel(point), QRgb(0));
        QCOMPARE(ImageGenerator::CreateCircleWithAlphaGradientCubic({1, 1}, Qt::red).pixel(0, 0), qRgb(255, 0, 0));
        QVERIFY(ImageGenerator::CreateCircleWithAlphaGradientCubic({0, 5}, color).isNull());
    }

    void styleSheetSelectsOnTheProperty()
    {
        QWidget parent;
        parent.setStyleSheet("QLabel[state=\"hot\"] { color: #ff0000; padding: 20px }");
        auto* label = new QLabel("text", &parent);
        parent.show();
        const QColor before = label->palette().color(QPalette::WindowText);
        Util::ApplyWidgetStyle(label, "hot", "state");
        QCOMPARE(label->property("state").toString(), QString("hot"));
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::red));
        Util::ApplyWidgetStyle(label, "cold", "state");
        QCOMPARE(label->palette().color(QPalette::WindowText), before);
        Util::ApplyWidgetStyle(nullptr, "hot", "state");
    }

    void aboutBoxSaysWhatItIsTold()
    {
        App::AboutBoxDialog dialog("A <b>product", "1.2 (34)", "(c) Somebody & Co", nullptr);
        dialog.show();
        const auto label = [&](const char* name) { return dialog.findChild<QLabel*>(name); };
        QCOMPARE(label("productLabel")->text(), QString("A <b>product"));
        QCOMPARE(label("productLabel")->textFormat(), Qt::PlainText);
        QCOMPARE(label("versionLabel")->text(), QString("1.2 (34)"));
        QCOMPARE(label("legalLabel")->text(), QString("(c) Somebody & Co"));
        QVERIFY(label("homePageLabel")->text().contains("href=\"https://example.com/\""));
        QVERIFY(label("mailToLabel")->text().contains("href=\"mailto:support@example.com\""));
        QVERIFY(dialog.windowTitle().contains("A <b>product"));
        QVERIFY(label("customURL")->isHidden());
        dialog.SetCustomUrl(QUrl("https://example.com/?a=1&b=2"));
        QVERIFY(label("customURL")->isVisible());
        QVERIFY(label("customURL")->text().contains("&amp;b=2"));
        dialog.SetCustomUrl(QUrl());
        QVERIFY(label("customURL")->isHidden());

        const QString english = label("homePageLabel")->text();
        Bracketer translator;
        QCoreApplication::installTranslator(&translator);
        QTRY_COMPARE(dialog.windowTitle(), QString("[About A <b>product]"));
        QVERIFY(label("homePageLabel")->text() != english);
        QCOMPARE(dialog.findChild<QPushButton*>()->text(), QString("[OK]"));
        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(label("homePageLabel")->text(), english);
    }

    void aboutBoxWorksByKeyboard()
    {
        LinkCatcher links;
        App::AboutBoxDialog dialog("Product", "1.0", "Legal", nullptr);
        dialog.SetCustomUrl(QUrl("http://example.com/more?x=1&y=2"));
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(dialog.focusWidget(), dialog.findChild<QPushButton*>());
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        }
        const QList<QUrl> expected = {QUrl("https://example.com/"), QUrl("mailto:support@example.com"),
                                      QUrl("http://example.com/more?x=1&y=2")};
        QCOMPARE(links.opened, expected);

        for (const QUrl& url : {QUrl("file:///etc/passwd"), QUrl("javascript:alert(1)"), QUrl("example.com")}) {
            dialog.SetCustomUrl(url);
            Q_EMIT dialog.findChild<QLabel*>("customURL")->linkActivated(url.toString());
        }
        QCOMPARE(links.opened.size(), 3);

        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), LEFT, LEFT, Qt::NoModifier);
        press.ignore();
        QCoreApplication::sendEvent(&dialog, &press);
        QVERIFY(press.isAccepted());
        QVERIFY(dialog.isVisible());
        QTest::mouseClick(dialog.findChild<QPushButton*>(), LEFT);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void windowFollowsTheMouse()
    {
        Scene scene;
        scene.MoveBy({9, 9});
        QCOMPARE(scene.Moved(), QPoint());
        scene.Press();
        scene.MoveBy({0, 0});
        scene.MoveBy({1, -2});
        QCOMPARE(scene.Moved(), QPoint(1, -2));
        scene.MoveBy({40, 30});
        QCOMPARE(scene.Moved(), QPoint(40, 30));
        scene.Send(QEvent::MouseButtonRelease, Scene::START, LEFT, Qt::NoButton);
        scene.MoveBy({5, 5});
        QCOMPARE(scene.Moved(), QPoint(40, 30));
    }

    void nothingButALeftDragMoves()
    {
        Scene scene;
        scene.Press(Qt::RightButton, Qt::RightButton);
        scene.MoveBy({10, 10}, Qt::RightButton);
        scene.Press();
        scene.Send(QEvent::MouseButtonDblClick, Scene::START, LEFT, LEFT);
        scene.MoveBy({10, 10});
        scene.Press();
        scene.Press(Qt::RightButton, LEFT | Qt::RightButton);
        scene.MoveBy({10, 10}, LEFT | Qt::RightButton);
        scene.Press();
        scene.MoveBy({10, 10}, Qt::NoButton);
        scene.MoveBy({20, 20});
        QCOMPARE(scene.Moved(), QPoint());

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
        QCOMPARE(scene.Moved(), QPoint(10, 10));

        Scene other;
        other.handle->setParent(nullptr);
        other.Press();
        other.MoveBy({10, 10});
        delete other.window;
        QVERIFY(!other.helper);
        other.MoveBy({20, 20});
        delete other.handle;

        QWidget handle;
        WindowMouseMoveHelper idle(nullptr, {&handle});
        QTest::mousePress(&handle, LEFT);
        QMouseEvent move(QEvent::MouseMove, QPointF(60, 60), Qt::NoButton, LEFT, Qt::NoModifier);
        QCoreApplication::sendEvent(&handle, &move);
    }
};

VX_TEST_MAIN(tst_HostUtilities)
#include "tst_HostUtilities.moc"
