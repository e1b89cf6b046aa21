#include <UI/Widgets/FastPresetButton.h>

#include <Support/TestCase.h>

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QSignalSpy>

using Zelkor::Vx::UI::ButtonWithLabels;
using Zelkor::Vx::UI::FastPresetButton;

namespace {

QLabel* LabelOf(const QWidget& button, const QString& name)
{
    return button.findChild<QLabel*>(name);
}

QString WholeText(const QWidget& button, const QString& name)
{
    return LabelOf(button, name)->property("originalText").toString();
}

} // namespace

class tst_FastPresetButton : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void faceIsMadeOfLabels_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void faceIsMadeOfLabels()
    {
        QFETCH(Qt::Orientation, orientation);
        QWidget window;
        ButtonWithLabels button(orientation, &window);
        button.setStyleSheet("#IconLabel { min-width: 16px; max-width: 16px }");
        const QString text("A text that is rather long for a button of this kind");
        button.SetLabelText(text);
        button.SetHotkeyText("Ctrl+Shift+Alt+F12");
        button.resize(button.sizeHint());
        window.show();
        QCOMPARE(button.text(), QString());
        QLabel* textLabel = LabelOf(button, "TextLabel");
        QLabel* hotKeyLabel = LabelOf(button, "HotKeyLabel");
        QCOMPARE(LabelOf(button, "IconLabel")->geometry().left(), 0);
        QVERIFY(LabelOf(button, "IconLabel")->geometry().right() < textLabel->geometry().left());
        if (orientation == Qt::Horizontal)
            QVERIFY(textLabel->geometry().right() < hotKeyLabel->geometry().left());
        else
            QVERIFY(textLabel->geometry().bottom() < hotKeyLabel->geometry().top());
        // The preferred size has room for it all; a narrower one elides.
        QCOMPARE(textLabel->toolTip(), QString());
        button.resize(button.minimumSizeHint());
        QVERIFY(button.width() < button.sizeHint().width());
        QVERIFY(!textLabel->toolTip().isEmpty());
        button.resize(button.sizeHint());
        QTRY_COMPARE(textLabel->toolTip(), QString());

        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, textLabel->geometry().center());
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
        QCOMPARE(WholeText(button, "TextFastPresetLabel7"), QString("Recordwindow"));
        QCOMPARE(WholeText(button, "HotKeyFastPresetLabel7"), QString("Ctrl+Shift+R"));
        QCOMPARE(button.toolTip(), QString("Records one window"));

        // A style sheet may let the label wrap, and take it back.
        window.setStyleSheet("#TextFastPresetLabel7 { qproperty-wordWrap: true }");
        window.show();
        QCOMPARE(WholeText(button, "TextFastPresetLabel7"), QString("Record\nwindow"));
        window.setStyleSheet("#TextFastPresetLabel7 { qproperty-wordWrap: false }");
        QCOMPARE(WholeText(button, "TextFastPresetLabel7"), QString("Recordwindow"));
        window.hide();
        action->setShortcut(QKeySequence());
        action->setText("Record\nscreen");
        QCOMPARE(WholeText(button, "TextFastPresetLabel7"), QString("Recordscreen"));
        QCOMPARE(WholeText(button, "HotKeyFastPresetLabel7"), QString());
        QCOMPARE(button.accessibleName(), QString("Recordscreen"));
    }

    void clickTriggersAndLeavesTheCheckAlone()
    {
        QAction action("Preset");
        QObject owner;
        action.setParent(&owner);
        action.setCheckable(true);
        FastPresetButton button(&action, "", nullptr);
        QCOMPARE(action.parent(), &owner);
        QStringList order;
        connect(&action, &QAction::triggered, [&](bool on) { order += on ? "triggered on" : "triggered off"; });
        connect(&button, &FastPresetButton::Clicked,
                [&](QAction* sent) { order += sent == &action ? "clicked" : "?"; });
        button.click();
        action.setChecked(true);
        button.click();
        QCOMPARE(order, QStringList({"triggered off", "clicked", "triggered off", "clicked"}));
        QVERIFY(action.isChecked());
        action.setParent(nullptr);
    }

    void eitherMayDieFirst()
    {
        auto* action = new QAction("Preset");
        QObject owner;
        action->setParent(&owner);
        QPointer<FastPresetButton> button = new FastPresetButton(action, "", nullptr);
        bool clicked = false;
        connect(button, &FastPresetButton::Clicked, [&] { clicked = true; });
        connect(action, &QAction::triggered, qApp, [&] { delete action; });
        button->click();
        button->click();
        QVERIFY(!clicked);
        QCOMPARE(WholeText(*button, "TextFastPresetLabel"), QString("Preset"));
        delete button;

        QAction survivor("Survivor");
        survivor.setParent(&owner);
        button = new FastPresetButton(&survivor, "", nullptr);
        connect(button, &FastPresetButton::Clicked, qApp, [&] { button->deleteLater(); });
        button->click();
        QTRY_VERIFY(!button);
        survivor.setText("Changed");
        survivor.setParent(nullptr);

        FastPresetButton idle(nullptr, "1", nullptr);
        QCOMPARE(idle.objectName(), QString("FastCaptureButton1"));
        idle.click();
    }
};

VX_TEST_MAIN(tst_FastPresetButton)
#include "tst_FastPresetButton.moc"
