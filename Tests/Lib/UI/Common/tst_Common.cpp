#include <UI/Common/GuiThreadCall.h>
#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <Support/TestCase.h>

using Zelkor::Vx::UI::ScrollablePanelWithItem;
using Zelkor::Vx::UI::Common::GuiThreadCall;

class tst_Common : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
