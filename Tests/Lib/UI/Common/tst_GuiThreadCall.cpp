#include <UI/Common/GuiThreadCall.h>

#include <Support/TestCase.h>

using Zelkor::Vx::UI::Common::GuiThreadCall;

class tst_GuiThreadCall : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

VX_TEST_MAIN(tst_GuiThreadCall)
#include "tst_GuiThreadCall.moc"
