#include <UI/Widgets/FastPresetButton.h>

#include <Support/TestCase.h>

#include <QAction>
#include <QLabel>

using Zelkor::Vx::UI::ButtonWithLabels;
using Zelkor::Vx::UI::FastPresetButton;

class tst_FastPresetButton : public Support::TestCase
{
    Q_OBJECT

    static QLabel* LabelOf(const QWidget& button, const char* name) { return button.findChild<QLabel*>(name); }

    static QString TextOf(const QWidget& button, const char* label)
    {
        return LabelOf(button, label)->property("originalText").toString();
    }

private Q_SLOTS:
    void clickOnALabelClicksTheButton()
    {
        QWidget window;
        ButtonWithLabels button(Qt::Vertical, &window);
        button.SetLabelText("Text");
        button.SetHotkeyText("F12");
        button.resize(button.sizeHint());
        window.show();
        const QLabel* label = LabelOf(button, "TextLabel");
        QVERIFY(label->geometry().bottom() < LabelOf(button, "HotKeyLabel")->y());
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, label->geometry().center());
        QCOMPARE(clicked.size(), 1);
    }

    void showsAndFollowsTheAction()
    {
        QWidget window;
        auto* action = new QAction("Record\nwindow");
        action->setShortcut(QKeySequence("Ctrl+Shift+R"));
        action->setToolTip("Records one window");
        action->setProperty("PresetType", "User");
        FastPresetButton button(action, "7", &window);
        QCOMPARE(action->parent(), &button);
        QCOMPARE(button.objectName(), QString("UserFastCaptureButton7"));
        QCOMPARE(button.property("Tag"), QVariant("User"));
        QCOMPARE(LabelOf(button, "TextFastPresetLabel7")->property("Tag"), QVariant("TextFastPresetLabel"));
        QCOMPARE(TextOf(button, "HotKeyFastPresetLabel7"), QString("Ctrl+Shift+R"));
        QCOMPARE(button.toolTip(), QString("Records one window"));
        window.show();
        window.setStyleSheet("#TextFastPresetLabel7 { qproperty-wordWrap: true }");
        QCOMPARE(TextOf(button, "TextFastPresetLabel7"), QString("Record\nwindow"));
        window.setStyleSheet("#TextFastPresetLabel7 { qproperty-wordWrap: false }");
        QCOMPARE(TextOf(button, "TextFastPresetLabel7"), QString("Recordwindow"));
        action->setShortcut(QKeySequence());
        QCOMPARE(TextOf(button, "HotKeyFastPresetLabel7"), QString());
    }

    void buttonDisabledByTheApplicationRemainsDisabled()
    {
        QAction action("Preset", this);
        action.setEnabled(false);
        FastPresetButton button(&action, "", nullptr);
        QVERIFY(!button.isEnabled());
        action.setEnabled(true);
        QVERIFY(button.isEnabled());
        button.setEnabled(false);
        action.setText("Renamed");
        QVERIFY(!button.isEnabled());
    }

    void clickTriggersTheActionUntilItIsDeleted()
    {
        auto* action = new QAction("Preset", this);
        action->setCheckable(true);
        action->setChecked(true);
        FastPresetButton button(action, "", nullptr);
        QStringList order;
        connect(action, &QAction::triggered, [&](bool on) { order += on ? "triggered on" : "triggered off"; });
        connect(&button, &FastPresetButton::Clicked, [&](QAction* sent) { order += sent == action ? "clicked" : "?"; });
        button.click();
        QVERIFY(action->isChecked());
        connect(action, &QAction::triggered, qApp, [&] { delete action; });
        button.click();
        button.click();
        QCOMPARE(order.join(", "), QString("triggered off, clicked, triggered off"));
        QCOMPARE(TextOf(button, "TextFastPresetLabel"), QString("Preset"));
        FastPresetButton(nullptr, "1", nullptr).click();
    }
};

VX_TEST_MAIN(tst_FastPresetButton)
#include "tst_FastPresetButton.moc"
