#include <UI/Common/GuiThreadCall.h>
#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <Support/TestCase.h>

#include <QToolButton>

using Zelkor::Vx::UI::ScrollablePanelWithItem;
using Zelkor::Vx::UI::Common::GuiThreadCall;

class tst_Common : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void selectorsFollowTheDirection()
    {
        QWidget window;
        QToolButton plain(&window);
        ScrollablePanelWithItem panel(&window);
        window.setStyleSheet("* { background: white; border: none; min-height: 20px }"
                             "*[layoutDirection=\"1\"] > QToolButton { background: red; min-height: 40px }");
        window.show();
        for (const auto direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            QApplication::setLayoutDirection(direction);
            const bool isMirrored = direction == Qt::RightToLeft;
            for (auto* button : {&plain, panel.findChild<QToolButton*>("leftScrollButton")}) {
                button->resize(20, 20);
                QCOMPARE(button->grab().toImage().pixelColor(1, 1), QColor(isMirrored ? Qt::red : Qt::white));
                QCOMPARE(button->sizeHint().height() > 40, isMirrored);
            }
        }
    }

    void contradictingRulesTerminate()
    {
        ScrollablePanelWithItem panel(nullptr);
        panel.setStyleSheet("*[layoutDirection=\"0\"] { qproperty-layoutDirection: RightToLeft }"
                            "*[layoutDirection=\"1\"] { qproperty-layoutDirection: LeftToRight }");
        panel.show();
        panel.setLayoutDirection(Qt::RightToLeft);
        panel.setLayoutDirection(Qt::LeftToRight);
        QVERIFY(panel.isVisible());
    }

    void requestDuringTheCallLeadsToAnother()
    {
        QObject receiver;
        int calls = 0;
        GuiThreadCall call(&receiver, [&] {
            if (++calls < 3)
                call.Request();
        });
        call.Request();
        QTRY_COMPARE(calls, 3);
    }
};

VX_TEST_MAIN(tst_Common)
#include "tst_Common.moc"
