#include <UI/Widgets/ColorButton.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QTimer>

#include <cmath>
#include <functional>

using Zelkor::Vx::ColorButton;

namespace {

// Clicks the button and calls `inside` while the dialog is open.
void Choose(ColorButton& button, const std::function<void(QColorDialog*)>& inside)
{
    QTimer::singleShot(0, qApp, [&button, inside] { inside(button.findChild<QColorDialog*>()); });
    button.click();
}

void Accept(QColorDialog* dialog, const QColor& color)
{
    dialog->setCurrentColor(color);
    dialog->accept();
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
        button.resize(100, 30);
        button.show();
        button.setStyleSheet("QPushButton { background: white; border: none }");
        button.SetColor(Qt::blue);
        const auto at = [&](int x, int y) { return Support::ColorAt(button.grab().toImage(), QPoint(x, y)); };
        QCOMPARE(at(68, 6), QColor(Qt::darkGray));
        QCOMPARE(at(66, 14), QColor(Qt::white));
        QCOMPARE(at(76, 14), QColor(Qt::blue));
        button.setEnabled(false);
        QCOMPARE(at(68, 6), QColor(Qt::lightGray));
    }

    void dialogEmitsSignals()
    {
        const auto emitted = [](const std::function<void(QColorDialog*, ColorButton*)>& act) {
            QWidget window;
            auto* button = new ColorButton(new QWidget(&window));
            window.show();
            QStringList log;
            connect(button, &ColorButton::ColorChanged, [&log](const QColor& color) { log += color.name(); });
            connect(button, &ColorButton::ColorDialogWillBeOpened, [&log] { log += "opens"; });
            connect(button, &ColorButton::ColorDialogClosed, [&log] { log += "closed"; });
            Choose(*button, [&](QColorDialog* dialog) {
                auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
                QCOMPARE(ok->property("SubStyle"), QVariant("Ok"));
                act(dialog, button);
            });
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            [&] { QVERIFY(!button->findChild<QColorDialog*>()); }();
            return log.join(' ');
        };
        const auto accept = [](auto* dialog, auto*) { Accept(dialog, Qt::green); };
        const auto clickAgain = [](auto* dialog, auto* button) {
            button->click();
            Accept(dialog, Qt::green);
        };
        QCOMPARE(emitted(accept), QString("opens #00ff00 closed"));
        QCOMPARE(emitted(clickAgain), QString("opens #00ff00 closed"));
        QCOMPARE(emitted([](auto* dialog, auto*) { dialog->reject(); }), QString("opens closed"));
        QCOMPARE(emitted([](auto*, auto* button) { button->parentWidget()->hide(); }), QString("opens closed"));
    }

    // Alpha, 0 to 255: that of an opaque colour after the limit, of the dialog, and after 128 was chosen in the dialog.
    static void checkAlpha(double maximum, int stored, int shown, int halved)
    {
        ColorButton button;
        button.show();
        button.SetAlphaEnabled(true);
        button.SetMaximumAlpha(maximum);
        QSignalSpy changed(&button, &ColorButton::ColorChanged);
        button.SetColor(Qt::red); // the current colour
        QCOMPARE(changed.size(), 0);
        button.SetColor(Qt::blue);
        QCOMPARE(changed, QList<QVariantList>{{button.GetColor()}});
        for (int i = 0; i < 10; ++i) { // does not drift
            QCOMPARE(button.GetColor().alpha(), stored);
            Choose(button, [=](QColorDialog* dialog) {
                QCOMPARE(dialog->currentColor().alpha(), shown);
                dialog->accept();
            });
        }
        Choose(button, [](QColorDialog* dialog) { Accept(dialog, QColor(0, 0, 255, 128)); });
        QCOMPARE(button.GetColor().alpha(), halved);
    }

    void alphaIsLimitedToAHalf() { checkAlpha(0.5, 128, 255, 64); }
    void alphaLimitNotANumberIsOne() { checkAlpha(std::nan(""), 255, 255, 128); }
};

VX_TEST_MAIN(tst_ColorButton)
#include "tst_ColorButton.moc"
