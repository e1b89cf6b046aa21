#include <UI/Widgets/FastPresetButton.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QSignalSpy>

#include <functional>

using Zelkor::Vx::UI::ButtonWithLabels;
using Zelkor::Vx::UI::FastPresetButton;

Q_DECLARE_METATYPE(std::function<void(ButtonWithLabels&)>)

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

    void elidedTextReturnsWithTheRoom_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<std::function<void(ButtonWithLabels&)>>("change");
        using Change = std::function<void(ButtonWithLabels&)>;
        const Change narrow = [](ButtonWithLabels& button) {
            for (int width = button.width(); width > 20; width -= 7)
                button.resize(width, button.height());
        };
        const Change enlarge = [](ButtonWithLabels& button) {
            QFont font = button.font();
            font.setPointSize(24);
            button.setFont(font);
        };
        const Change pad = [](ButtonWithLabels& button) {
            button.setStyleSheet("#TextLabel { padding: 3px 30px 3px 2px }");
        };
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            const char* side = orientation == Qt::Horizontal ? "horizontal" : "vertical";
            QTest::addRow("%s, narrowed", side) << orientation << narrow;
            QTest::addRow("%s, larger font", side) << orientation << enlarge;
            QTest::addRow("%s, padding", side) << orientation << pad;
        }
    }

    void elidedTextReturnsWithTheRoom()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(std::function<void(ButtonWithLabels&)>, change);
        const auto prepare = [](ButtonWithLabels& button) {
            button.SetLabelText("A text that is rather long");
            button.SetHotkeyText("Ctrl+Shift+F12");
        };
        QWidget window;
        ButtonWithLabels button(orientation, &window);
        prepare(button);
        button.resize(button.sizeHint());
        window.show();
        change(button);
        QCoreApplication::processEvents();
        button.resize(button.sizeHint());
        QCOMPARE(LabelOf(button, "TextLabel")->toolTip(), QString());

        // The same as in a button that was like this from the beginning.
        ButtonWithLabels fresh(orientation, &window);
        fresh.setFont(button.font());
        fresh.setStyleSheet(button.styleSheet());
        prepare(fresh);
        QCOMPARE(button.sizeHint(), fresh.sizeHint());
        fresh.resize(button.size());
        fresh.show();
        for (const char* name : {"IconLabel", "TextLabel", "HotKeyLabel"})
            QCOMPARE(LabelOf(button, name)->geometry(), LabelOf(fresh, name)->geometry());
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

    void isEnabledWithTheAction()
    {
        QAction action("Record", this);
        action.setEnabled(false);
        FastPresetButton button(&action, "", nullptr);
        QVERIFY(!button.isEnabled());
        action.setEnabled(true);
        QVERIFY(button.isEnabled());
        button.setEnabled(false);
        action.setText("Pause");
        QVERIFY(!button.isEnabled());
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
            return WholeText(button, "TextFastPresetLabel7") + ", " + WholeText(button, "HotKeyFastPresetLabel7");
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
        QCOMPARE(WholeText(*button, "TextFastPresetLabel"), QString("Preset"));
        delete button;

        QAction survivor("Survivor", &owner);
        button = new FastPresetButton(&survivor, "", nullptr);
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
