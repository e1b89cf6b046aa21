#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/ColorButton.h>

#include <Support/EventSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>
#include <QWidgetAction>

#include <array>
#include <cmath>
#include <functional>

using Zelkor::Vx::ColorButton;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;

using Act = std::function<void(QColorDialog*, ColorButton*)>;
using Home = std::function<QWidget*(QWidget*, ColorButton*)>; ///< shows the button in what it returns
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Home)

namespace {

// Clicks the button and runs `inside` while the dialog is open.
void Choose(ColorButton& button, const std::function<void(QColorDialog*)>& inside)
{
    QTimer::singleShot(0, qApp, [&button, inside] { inside(button.findChild<QColorDialog*>()); });
    button.click();
}

void PressOk(QColorDialog* dialog, const QColor& color)
{
    dialog->setCurrentColor(color);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

void LogSignals(const ColorButton* button, QStringList& log)
{
    QObject::connect(button, &ColorButton::ColorChanged, [&log](const QColor& color) { log += color.name(); });
    QObject::connect(button, &ColorButton::ColorDialogWillBeOpened, [&log] { log += "opens"; });
    QObject::connect(button, &ColorButton::ColorDialogClosed, [&log] { log += "closed"; });
}

void WatchAsLongAsItLives(QObject* object, std::function<void(QEvent::Type, QEvent*)> see)
{
    (new Support::EventSpy(object, std::move(see)))->setParent(object);
}

} // namespace

class tst_ColorButton : public Support::TestCase
{
    Q_OBJECT

    static bool IsNear(double a, double b) { return std::abs(a - b) < 0.004; } // the dialog knows 256 levels

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
        const auto at = [&](int x, int y) { return Support::ColorAt(button.grab().toImage(), QPoint(x, y)); };
        for (const QPoint border : {QPoint(68, 6), QPoint(84, 22)})
            QCOMPARE(at(border.x(), border.y()), QColor(Qt::darkGray));
        for (const int beside : {66, 86})
            QCOMPARE(at(beside, 14), QColor(Qt::white));
        QCOMPARE(at(76, 14), QColor(Qt::blue));

        button.setEnabled(false);
        QCOMPARE(at(68, 6), QColor(Qt::lightGray));
        int colored = 0;
        for (int x = 70; x < 82; ++x)
            colored += at(x, 14) == QColor(Qt::blue);
        QVERIFY2(colored > 2 && colored < 10, qPrintable(QString::number(colored)));
        // A place that was set stays.
        button.SetColorRect(QRect(2, 3, 12, 13));
        button.resize(200, 60);
        QCOMPARE(button.GetColorRect(), QRect(2, 3, 12, 13));
    }

    void sizeHintKeepsTheTextClearOfTheSquare()
    {
        ColorButton button;
        button.setText("Highlight colour");
        button.SetColorRectBorderNormal(Qt::magenta);
        button.SetColor(Qt::magenta);
        button.resize(button.sizeHint());
        button.show();
        const QImage withText = button.grab().toImage();
        const QRect square = button.GetColorRect().adjusted(-3, 0, 1, 1);
        button.SetColorRect(QRect());
        const QImage textAlone = button.grab().toImage().copy(square);
        button.setText(QString());
        QCOMPARE(textAlone, button.grab().toImage().copy(square));
        QVERIFY(withText.copy(square) != textAlone);
    }

    void dialogSignals_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("signalled");
        const auto row = [](const char* name, const Act& act, const char* signalled) {
            QTest::newRow(name) << act << QString(signalled);
        };
        row(
            "accept", [](auto* dialog, auto*) { PressOk(dialog, Qt::green); }, "opens #00ff00 closed");
        row(
            "accept unchanged", [](auto* dialog, auto*) { PressOk(dialog, Qt::red); }, "opens #ff0000 closed");
        row(
            "cancel", [](auto* dialog, auto*) { dialog->reject(); }, "opens closed");
        row(
            "delete the dialog", [](auto* dialog, auto*) { delete dialog; }, "opens closed");
        row(
            "hide", [](auto*, auto* button) { button->hide(); }, "opens closed");
        row(
            "hide the page", [](auto*, auto* button) { button->parentWidget()->hide(); }, "opens closed");
        row(
            "new parent", [](auto*, auto* button) { button->setParent(nullptr); }, "opens closed");
        row(
            "disable", [](auto*, auto* button) { button->setEnabled(false); }, "opens closed");
        row(
            "disable the window", [](auto*, auto* button) { button->window()->setEnabled(false); }, "opens closed");
        row(
            "click again",
            [](auto* dialog, auto* button) {
                button->click();
                PressOk(dialog, Qt::green);
            },
            "opens #00ff00 closed");
    }

    void dialogSignals()
    {
        QFETCH(Act, act);
        QWidget window;
        auto* button = new ColorButton(new QWidget(&window));
        window.show();
        QStringList log;
        LogSignals(button, log);
        Choose(*button, [&](QColorDialog* dialog) {
            auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            QCOMPARE(ok->property("SubStyle"), QVariant("Ok"));
            act(dialog, button);
        });
        QTEST(log.join(' '), "signalled");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!button->findChild<QColorDialog*>());
        if (!button->parent())
            delete button;
    }

    void opensOutOfWhateverHidesTheButton_data()
    {
        QTest::addColumn<Home>("show");
        QTest::newRow("panel") << Home([](QWidget* window, ColorButton* button) {
            auto* opener = new ButtonWithPopUpContainer(window);
            opener->show();
            opener->AppendWidget(button);
            opener->ShowPopup();
            return button->window();
        });
        QTest::newRow("menu") << Home([](QWidget* window, ColorButton* button) {
            auto* menu = new QMenu(window);
            auto* action = new QWidgetAction(menu);
            action->setDefaultWidget(button);
            menu->addAction(action);
            menu->popup(QPoint(200, 200));
            return menu;
        });
        QTest::newRow("hidden by the slot") << Home([](QWidget* window, ColorButton* button) {
            button->setParent(window);
            connect(button, &ColorButton::ColorDialogWillBeOpened, button, &QWidget::hide);
            button->show();
            return window;
        });
        QTest::newRow("hidden with the dialog's first event") << Home([](QWidget* window, ColorButton* button) {
            button->setParent(window);
            connect(button, &ColorButton::ColorDialogWillBeOpened, button, [button] {
                auto* dialog = button->findChild<QColorDialog*>();
                WatchAsLongAsItLives(dialog, [button](QEvent::Type type, QEvent*) {
                    button->setHidden(button->isHidden() || type == QEvent::Show);
                });
            });
            button->show();
            return window;
        });
    }

    void opensOutOfWhateverHidesTheButton()
    {
        QFETCH(Home, show);
        QWidget window;
        window.show();
        auto* button = new ColorButton;
        QStringList log;
        LogSignals(button, log);
        for (const QColor color : {Qt::green, Qt::blue}) {
            QWidget* home = show(&window, button);
            QVERIFY(home->isVisible());
            QTimer::singleShot(0, button, [&] {
                QVERIFY(!QApplication::activePopupWidget());
                PressOk(button->findChild<QColorDialog*>(), color);
            });
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY(!button->isVisible());
            QCOMPARE(log.join(' '), QString("opens %1 closed").arg(color.name()));
            log.clear();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    // A dialog that goes while it is being opened does not leave the program waiting for it.
    void dialogThatGoesEarlyCountsAsCancelled_data()
    {
        QTest::addColumn<Act>("act");
        QTest::newRow("closed when shown") << Act([](QColorDialog* dialog, ColorButton*) {
            WatchAsLongAsItLives(dialog, [dialog](QEvent::Type type, QEvent*) {
                if (type == QEvent::Show)
                    dialog->close();
            });
        });
        QTest::newRow("deleted before") << Act([](QColorDialog* dialog, ColorButton*) { delete dialog; });
        QTest::newRow("disabled before") << Act([](QColorDialog*, ColorButton* button) { button->setEnabled(false); });
        QTest::newRow("disabled when shown") << Act([](QColorDialog* dialog, ColorButton* button) {
            WatchAsLongAsItLives(dialog, [button](QEvent::Type type, QEvent*) {
                if (type == QEvent::Show)
                    button->setEnabled(false);
            });
        });
    }

    void dialogThatGoesEarlyCountsAsCancelled()
    {
        QFETCH(Act, act);
        ColorButton button;
        button.show();
        QStringList log;
        LogSignals(&button, log);
        connect(&button, &ColorButton::ColorDialogWillBeOpened, &button,
                [&] { act(button.findChild<QColorDialog*>(), &button); });
        button.click();
        QCOMPARE(log.join(' '), QString("opens closed"));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void alphaLimit()
    {
        // The limit; the alpha stored of an opaque colour, shown in the dialog, and stored when 0.5 was chosen there.
        using Row = std::array<double, 4>;
        for (const auto& [maximum, stored, shown, halved] :
             {Row{0.5, 0.5, 1, 0.25}, Row{1 / 3.0, 1 / 3.0, 1, 1 / 6.0}, Row{1, 1, 1, 0.5}, Row{0, 0, 0, 0},
              Row{-3, 0, 0, 0}, Row{7, 1, 1, 0.5}, Row{std::nan(""), 1, 1, 0.5}}) {
            InRow(QString("limit %1").arg(maximum));
            ColorButton button;
            button.show();
            button.SetAlphaEnabled(true);
            QSignalSpy changed(&button, &ColorButton::ColorChanged);
            button.SetColor(Qt::red); // as it is
            button.SetMaximumAlpha(maximum);
            QVERIFY(button.GetColor() == QColor(Qt::red) && changed.isEmpty());
            button.SetColor(Qt::blue);
            QCOMPARE(changed, QList<QVariantList>{{button.GetColor()}});
            for (int i = 0; i < 20; ++i) { // it does not drift
                QVERIFY(IsNear(button.GetColor().alphaF(), stored));
                Choose(button, [shown = shown](QColorDialog* dialog) {
                    QVERIFY(IsNear(dialog->currentColor().alphaF(), shown));
                    dialog->accept();
                });
            }
            Choose(button, [](QColorDialog* dialog) {
                dialog->setCurrentColor(QColor(0, 0, 255, 128));
                dialog->accept();
            });
            QVERIFY(button.GetColor().isValid() && IsNear(button.GetColor().alphaF(), halved));
        }
    }
};

VX_TEST_MAIN(tst_ColorButton)
#include "tst_ColorButton.moc"
