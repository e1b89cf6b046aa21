#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

using Support::Click;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;

class tst_PopUpInWindowSystem : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickOpensAndClickOutsideCloses()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(300, 300, 200, 100);
        ButtonWithPopUpContainer button(&window);
        button.setGeometry(0, 0, 60, 30);
        auto* content = new QWidget;
        content->setFixedSize(150, 90);
        button.AppendWidget(content);
        const auto* popUp = button.findChild<QWidget*>("popUpWindow");
        const auto clickButton = [&](bool opens) {
            Click(window.mapToGlobal(QPoint(20, 10)));
            QTRY_COMPARE(button.isChecked(), opens);
            QCOMPARE(popUp->isVisible(), opens);
        };
        Support::ShowActive(window);
        clickButton(true);
        QCOMPARE(popUp->geometry(), QRect(300, 330, 150, 90));
        Click(popUp->mapToGlobal(QPoint(70, 40)));
        QVERIFY(button.isChecked());
        Click(QPoint(5, 5)); // outside all windows of the process
        QTRY_VERIFY(!button.isChecked());
        clickButton(true);
        clickButton(false); // does not reopen
    }
};

VX_TEST_MAIN(tst_PopUpInWindowSystem)
#include "tst_PopUpInWindowSystem.moc"
