#include <UI/Widgets/FastPresetButton.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QSignalSpy>

using Zelkor::Vx::UI::ButtonWithLabels;
using Zelkor::Vx::UI::FastPresetButton;

class tst_FastPresetButton : public Support::TestCase
{
    Q_OBJECT

    static QLabel* LabelOf(const QWidget& button, const char* name) { return button.findChild<QLabel*>(name); }

private Q_SLOTS:
    void faceIsMadeOfLabels()
    {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            InRow(QVariant::fromValue(orientation).toString());
            QWidget window;
            ButtonWithLabels button(orientation, &window);
            button.setStyleSheet("#IconLabel { min-width: 16px; max-width: 16px }");
            button.SetLabelText("A text that is rather long for a button of this kind");
            button.SetHotkeyText("Ctrl+Shift+Alt+F12");
            button.resize(button.sizeHint());
            window.show();
            QLabel* label = LabelOf(button, "TextLabel");
            const QRect icon = LabelOf(button, "IconLabel")->geometry();
            const QRect text = label->geometry();
            const QRect hotKey = LabelOf(button, "HotKeyLabel")->geometry();
            QVERIFY(icon.left() == 0 && icon.right() < text.left());
            QVERIFY(orientation == Qt::Horizontal ? text.right() < hotKey.left() : text.bottom() < hotKey.top());
            // The preferred size has room for it all; a narrower one elides.
            QVERIFY(label->toolTip().isEmpty() && button.text().isEmpty());
            button.resize(button.minimumSizeHint());
            QVERIFY(button.width() < button.sizeHint().width() && !label->toolTip().isEmpty());
            QSignalSpy clicked(&button, &QAbstractButton::clicked);
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button.rect().center());
            QCOMPARE(clicked.size(), 1);
        }
    }

    void nameOfTheApplicationStays()
    {
        ButtonWithLabels button(nullptr);
        const auto name = [&] { return QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name); };
        button.SetLabelText("Audio & Video");
        QCOMPARE(name(), QString("Audio & Video"));
        button.setAccessibleName("Own");
        button.SetLabelText("Another");
        QCOMPARE(name(), QString("Own"));
    }

    void mnemonicIsUnderlinedAndPresses()
    {
        QWidget window;
        QAction action("&Record && more", this);
        FastPresetButton button(&action, "", &window);
        QCOMPARE(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), QString("Record & more"));
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(window.windowHandle(), Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(clicked.size(), 1);
    }

    void showsAndFollowsTheAction()
    {
        QWidget window;
        auto* action = new QAction("Record\nwindow");
        action->setShortcut(QKeySequence("Ctrl+Shift+R"));
        action->setToolTip("Records one window");
        action->setProperty("PresetType", "User");
        FastPresetButton button(action, "7", &window);
        const auto texts = [&] {
            return LabelOf(button, "TextFastPresetLabel7")->property("originalText").toString() + ", " +
                   LabelOf(button, "HotKeyFastPresetLabel7")->property("originalText").toString();
        };
        QVERIFY(action->parent() == &button && button.objectName() == "UserFastCaptureButton7");
        QCOMPARE(button.property("Tag"), QVariant("User"));
        QCOMPARE(LabelOf(button, "TextFastPresetLabel7")->property("Tag"), QVariant("TextFastPresetLabel"));
        QCOMPARE(texts(), QString("Recordwindow, Ctrl+Shift+R"));
        QCOMPARE(button.toolTip(), QString("Records one window"));
        // A style sheet may let the label wrap, and take it back.
        window.show();
        for (const auto& [wraps, text] : {std::pair("true", "Record\nwindow"), std::pair("false", "Recordwindow")}) {
            window.setStyleSheet(QString("#TextFastPresetLabel7 { qproperty-wordWrap: %1 }").arg(wraps));
            QCOMPARE(texts(), QString(text) + ", Ctrl+Shift+R");
        }
        action->setShortcut(QKeySequence());
        action->setText("Record\nscreen");
        QCOMPARE(texts(), QString("Recordscreen, "));
    }

    void clickTriggersAndEitherMayDieFirst()
    {
        QObject owner;
        auto* action = new QAction("Preset", &owner);
        action->setCheckable(true);
        QPointer<FastPresetButton> button = new FastPresetButton(action, "", nullptr);
        QStringList order;
        connect(action, &QAction::triggered, [&](bool on) { order += on ? "triggered on" : "triggered off"; });
        connect(button, &FastPresetButton::Clicked, [&](QAction* sent) { order += sent == action ? "clicked" : "?"; });
        button->click();
        action->setChecked(true);
        button->click();
        QVERIFY(action->isChecked() && action->parent() == &owner);
        connect(action, &QAction::triggered, qApp, [&] { delete action; });
        button->click();
        button->click();
        QCOMPARE(order.join(", "), QString("triggered off, clicked, triggered off, clicked, triggered off"));
        QCOMPARE(LabelOf(*button, "TextFastPresetLabel")->property("originalText"), QVariant("Preset"));
        delete button;

        QAction survivor("Survivor", &owner);
        survivor.setEnabled(false);
        button = new FastPresetButton(&survivor, "", nullptr);
        QVERIFY(!button->isEnabled());
        survivor.setEnabled(true);
        QVERIFY(button->isEnabled());
        button->setEnabled(false);
        survivor.setText("Renamed");
        QVERIFY(!button->isEnabled());
        button->setEnabled(true);
        connect(button, &FastPresetButton::Clicked, qApp, [&] { button->deleteLater(); });
        button->click();
        QTRY_VERIFY(!button);
        survivor.setText("Changed");
        FastPresetButton idle(nullptr, "1", nullptr);
        idle.click();
        QCOMPARE(idle.objectName(), QString("FastCaptureButton1"));
    }
};

VX_TEST_MAIN(tst_FastPresetButton)
#include "tst_FastPresetButton.moc"
