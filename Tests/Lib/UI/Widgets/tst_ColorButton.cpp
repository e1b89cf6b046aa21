#include <UI/Widgets/ColorButton.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QSignalSpy>
#include <QTimer>

#include <array>
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

bool IsNear(double a, double b)
{
    return std::abs(a - b) < 0.004; // the dialog knows 256 levels
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

    void dialogSignals()
    {
        const QPair<QString, QString> rows[] = {
            {"accept", "opens #00ff00 closed"},
            {"accept unchanged", "opens #ff0000 closed"},
            {"cancel", "opens closed"},
            {"hide", "opens closed"},
            {"new parent", "opens closed"},
            {"disable, click again, accept", "opens #00ff00 closed"},
            {"destroy", "opens"},
        };
        for (const auto& row : rows) {
            const QString end = row.first;
            InRow(end);
            QWidget window;
            QWidget other;
            QPointer<ColorButton> button = new ColorButton(&window);
            window.show();
            QStringList log;
            connect(button, &ColorButton::ColorChanged, [&](const QColor& color) { log += color.name(); });
            connect(button, &ColorButton::ColorDialogWillBeOpened, [&] { log += "opens"; });
            connect(button, &ColorButton::ColorDialogClosed, [&] { log += "closed"; });
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
                    button->setDisabled(end.startsWith("disable"));
                    button->setEnabled(true);
                    button->click();
                    ok->click();
                }
            });
            QCOMPARE(log.join(' '), row.second);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!button || !button->findChild<QColorDialog*>());
        }
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
