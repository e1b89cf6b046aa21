#include <Catalogue/Hearing.h>
#include <Catalogue/Scene.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/AnySignalSpy.h>
#include <Support/Input.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QButtonGroup>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QSet>

#include <algorithm>
#include <cmath>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr int LARGEST_STEP_COUNT = 100; ///< of Tab, which also visits links in a text and the parts of a time
constexpr double PLAIN_CONTRAST = 3;    ///< at least this between two things that shall be told apart
constexpr int SMALLEST_MARK = 80;       ///< pixels; the ring around a thumb of a slider has more
constexpr Qt::Key KEYS[] = {Qt::Key_Space, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up,    Qt::Key_Down,
                            Qt::Key_Home,  Qt::Key_End,   Qt::Key_7,    Qt::Key_Return};

QString Describe(QAccessibleInterface& interface)
{
    const QObject* object = interface.object();
    return QStringLiteral("%1 \"%2\", role %3, name \"%4\"")
        .arg(object ? object->metaObject()->className() : "no object", object ? object->objectName() : QString())
        .arg(interface.role())
        .arg(interface.text(QAccessible::Name));
}

// Direction marks and the like are nothing that could be read out.
bool IsReadable(const QString& name)
{
    const auto isHeard = [](QChar sign) { return sign.isPrint() || sign.isSpace(); };
    return !name.trimmed().isEmpty() && std::all_of(name.begin(), name.end(), isHeard);
}

// Those that hold others, which have names themselves.
bool IsFrame(QAccessible::Role role)
{
    return role == QAccessible::Border || role == QAccessible::Grouping || role == QAccessible::LayeredPane;
}

// Empty, or what state and actions say that the widget is not.
QString StateFault(QAccessibleInterface& interface)
{
    const auto* widget = qobject_cast<QWidget*>(interface.object());
    QAccessibleActionInterface* actions = interface.actionInterface();
    const QStringList names = actions ? actions->actionNames() : QStringList();
    if (QSet<QString>(names.begin(), names.end()).size() != names.size())
        return QStringLiteral("offers an action twice: ") + names.join(QStringLiteral(", "));
    // The list of a combo box never says that it is disabled; it cannot be opened then.
    const bool isList = qobject_cast<const QAbstractItemView*>(widget);
    if (widget && !isList && interface.state().disabled == widget->isEnabled())
        return QStringLiteral("says that it is %1").arg(widget->isEnabled() ? "disabled" : "enabled");
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (!button || !button->isEnabled() || interface.role() == QAccessible::Slider)
        return {};
    if (names.isEmpty())
        return QStringLiteral("is a button without an action");
    if (button->isCheckable() && interface.state().checked != button->isChecked() && !interface.state().checkStateMixed)
        return QStringLiteral("says that it is %1").arg(button->isChecked() ? "unchecked" : "checked");
    return {};
}

// Empty, or what is wrong with what assistive technology hears of this one. `isSubject`: the entry is about it.
QString Fault(QAccessibleInterface& interface, bool takesKeyboard, bool isSubject)
{
    const QAccessible::Role role = interface.role();
    const QString name = interface.text(QAccessible::Name);
    if (!interface.isValid() || role == QAccessible::NoRole)
        return QStringLiteral("says nothing of itself");
    if ((takesKeyboard || isSubject) && (role == QAccessible::Client || role == QAccessible::Window))
        return QStringLiteral("does not say as what it is there");
    if (isSubject && IsFrame(role) && interface.childCount() == 0)
        return QStringLiteral("says that it is a frame, but there is nothing in it");
    if (name.isEmpty() ? takesKeyboard || (isSubject && !IsFrame(role)) : !IsReadable(name))
        return QStringLiteral("has no name that could be read out");
    if (takesKeyboard && !interface.state().focusable)
        return QStringLiteral("takes input, but is not focusable");
    const QString state = StateFault(interface);
    if (!state.isEmpty())
        return state;
    if (const QAccessibleValueInterface* values = interface.valueInterface()) {
        const double value = values->currentValue().toDouble();
        if (value < values->minimumValue().toDouble() || value > values->maximumValue().toDouble())
            return QStringLiteral("value %1 is not between %2 and %3")
                .arg(value)
                .arg(values->minimumValue().toDouble())
                .arg(values->maximumValue().toDouble());
    }
    return {};
}

// As the eye takes it: 1 for the same brightness, 21 between black and white.
double Contrast(const QColor& a, const QColor& b)
{
    const auto brightness = [](const QColor& color) {
        const auto linear = [](double part) { return std::pow(part, 2.2); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF()) + 0.05;
    };
    const auto [darker, brighter] = std::minmax({brightness(a), brightness(b)});
    return brighter / darker;
}

// How many pixels are plainly others; all, when the size is another one.
int CountChanges(const QImage& before, const QImage& after)
{
    if (before.size() != after.size())
        return after.width() * after.height();
    int count = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x)
            count += before.pixel(x, y) != after.pixel(x, y) &&
                     Contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= PLAIN_CONTRAST;
    }
    return count;
}

// Takes `part` out of those that are left; with it those that the arrow keys reach from there.
void Reach(QWidget* part, QVector<QPointer<QWidget>>& left)
{
    left.removeAll(part);
    const auto* button = qobject_cast<QAbstractButton*>(part);
    if (button && button->group() && button->group()->exclusive()) {
        for (QAbstractButton* other : button->group()->buttons())
            left.removeAll(other);
    }
}

} // namespace

class tst_CatalogueAccessibility : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!TurnAccessibilityOn())
            QSKIP("Qt's private headers are not installed");
        QApplication::setCursorFlashTime(0);
        LoadStyleSheet("dark")->apply();
    }

    void tellsWhatItIs_data() { AddRowsOfAllStates(); }

    void tellsWhatItIs()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        const auto keyboardParts = scene->KeyboardParts();
        QFETCH(QString, className);
        int heard = 0;
        QStringList faults;
        VisitAccessible(QAccessible::queryAccessibleInterface(scene->widget), [&](auto& interface, auto*, auto&) {
            auto* part = qobject_cast<QWidget*>(interface.object());
            const bool takesKeyboard = part && keyboardParts.contains(part);
            heard += takesKeyboard;
            const bool isSubject =
                part && QString(part->metaObject()->className()).section(QStringLiteral("::"), -1) == className;
            const QString fault = Fault(interface, takesKeyboard, isSubject);
            if (!fault.isEmpty())
                faults += Describe(interface) + ": " + fault;
        });
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join("; ")));
        QCOMPARE(heard, keyboardParts.size());
    }

    void namesLackMnemonics_data() { AddRowsOfAllStates(); }

    void namesLackMnemonics()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        const QString text = "&Zoom";
        for (QObject* part : QObjectList{scene->widget} + scene->widget->findChildren<QObject*>()) {
            if (auto* button = qobject_cast<QAbstractButton*>(part))
                button->setText(text);
            if (auto* action = qobject_cast<QAction*>(part))
                action->setText(text);
            if (auto* group = qobject_cast<QGroupBox*>(part))
                group->setTitle(text);
            if (auto* widget = qobject_cast<QWidget*>(part)) {
                for (QAction* action : widget->actions())
                    action->setText(text);
            }
        }
        for (const Reading::Part& part : Reading(scene->widget).parts) {
            QVERIFY2(!part.name.contains(text), qPrintable(part.name));
            QVERIFY2(!part.description.contains(text), qPrintable(part.description));
        }
    }

    void valuesCanBeSet_data() { AddRowsOfAllStates(); }

    void valuesCanBeSet()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        VisitAccessible(QAccessible::queryAccessibleInterface(scene->widget), [&](auto& interface, auto*, auto&) {
            QAccessibleValueInterface* value = interface.valueInterface();
            if (!value || interface.state().disabled || interface.state().readOnly || !interface.state().focusable)
                return;
            for (const QVariant& end : {value->maximumValue(), value->minimumValue()}) {
                HearChanges(*scene, Describe(interface), [&] { value->setCurrentValue(end); });
                QVERIFY2(value->currentValue().toDouble() == end.toDouble(),
                         qPrintable(Describe(interface) + ": " + value->currentValue().toString()));
            }
        });
    }

    void tabComesAndGoes_data() { AddRowsOfAllStates(); }

    // All that takes input is reached from both sides, and left again.
    void tabComesAndGoes()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        for (const bool forwards : {true, false}) {
            QWidget* const end = forwards ? scene->after : scene->before;
            (forwards ? scene->before : scene->after)->setFocus();
            QVector<QPointer<QWidget>> left = scene->KeyboardParts();
            for (int i = 0; i < LARGEST_STEP_COUNT && !end->hasFocus(); ++i) {
                // In an editor, Tab is a part of the text; there, the same with Ctrl goes on.
                const auto* editor = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
                Qt::KeyboardModifiers modifiers = forwards ? Qt::NoModifier : Qt::ShiftModifier;
                if (editor && !editor->tabChangesFocus())
                    modifiers |= Qt::ControlModifier;
                scene->Type(forwards ? Qt::Key_Tab : Qt::Key_Backtab, modifiers);
                QVERIFY(QApplication::focusWidget());
                Reach(QApplication::focusWidget(), left);
            }
            QVERIFY2(end->hasFocus(), QApplication::focusWidget()->metaObject()->className());
            QVERIFY2(left.isEmpty(), left.isEmpty() ? "" : left.first()->metaObject()->className());
        }
    }

    void showsFocus_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("style");
        for (const QString style : {"light", "dark"}) {
            for (const Entry& entry : Entries()) {
                for (const int state : AllStates(entry))
                    QTest::addRow("%s, %s, %s", qPrintable(style), qPrintable(entry.className),
                                  qPrintable(entry.states[state].name))
                        << entry.className << state << style;
            }
        }
    }

    // What has the keyboard looks plainly different from what it was, in both styles.
    void showsFocus()
    {
        QFETCH(QString, style);
        const ZStyleSheet sheet = *LoadStyleSheet(style);
        if (qApp->styleSheet() != sheet.text)
            sheet.apply();
        const auto scene = SceneOfThisRow();
        scene->Show();
        const auto look = [&scene](QWidget* focused) {
            focused->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
            return scene->window->grab(scene->widget->geometry()).toImage();
        };
        for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
            const QImage before = look(scene->before);
            const int changes = CountChanges(before, look(part));
            QVERIFY2(changes >= SMALLEST_MARK, qPrintable(QStringLiteral("%1 %2: %3 pixels")
                                                              .arg(part->metaObject()->className(), part->objectName())
                                                              .arg(changes)));
        }
    }

    void keysAreAnswered_data() { AddRowsOfAllStates(); }

    // Each part that takes the keyboard answers to one of the usual keys, with a signal or with something that opens,
    // and what changes is announced.
    void keysAreAnswered()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
            QVERIFY2(part, "gone after keys for another part");
            part->setFocus(Qt::TabFocusReason);
            int answers = 0;
            const Support::AnySignalSpy tap(part, [&answers] { ++answers; });
            const QString name = QStringLiteral("%1 %2 ").arg(part->metaObject()->className(), part->objectName());
            for (const Qt::Key key : KEYS)
                answers += HearChanges(*scene, name + QKeySequence(key).toString(), [&] { scene->Type(key); });
            QVERIFY2(answers > 0, qPrintable(name + " answers to no key"));
        }
    }

    void mouseIsAnnounced_data() { AddRowsOfAllStates(); }

    // What a click or the wheel changes on any part is announced.
    void mouseIsAnnounced()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        for (const QPointer<QWidget>& part : PartsOf(scene->widget)) {
            if (!part || !part->isVisible() || part->window() != scene->window)
                continue;
            HearChanges(*scene, "click", [&] { QTest::mouseClick(part, Qt::LeftButton); });
            if (part)
                HearChanges(*scene, "wheel", [&] { Support::TurnWheel(part, QPoint(0, 120)); });
        }
    }

private:
    /// What has opened a pop-up says so, as far as it said that it has one.
    static void CheckExpanded(Scene& scene)
    {
        QAccessibleInterface* opener = QAccessible::queryAccessibleInterface(scene.window->focusWidget());
        if (opener && opener->state().hasPopup)
            QVERIFY2(opener->state().expanded, qPrintable(Describe(*opener) + ": opens, but is not expanded"));
    }

    /// Whether anything opened. What changed by the input, and when that closed, must have had an event.
    static bool HearChanges(Scene& scene, const QString& what, const std::function<void()>& input)
    {
        EventLog events;
        bool opened = false;
        Reading last(scene.widget);
        QStringList faults;
        const auto compare = [&] {
            const Reading now(scene.widget);
            faults += events.Unannounced(last, now);
            events.Clear();
            last = now;
        };
        const Support::UrlHandlerStub links;
        const Support::ModalWatcher loops([&](QWidget* window) {
            opened = true;
            if (QApplication::activePopupWidget() == window)
                CheckExpanded(scene);
            compare();
            Support::Dismiss(window);
        });
        input();
        QCoreApplication::processEvents();
        compare();
        while (QWidget* popUp = QApplication::activePopupWidget()) {
            opened = true;
            CheckExpanded(scene);
            popUp->close();
            QCoreApplication::processEvents();
            compare();
        }
        [&] { QVERIFY2(faults.isEmpty(), qPrintable(what + " does not announce " + faults.join("; "))); }();
        return opened;
    }
};

VX_TEST_MAIN(tst_CatalogueAccessibility)
#include "tst_CatalogueAccessibility.moc"
