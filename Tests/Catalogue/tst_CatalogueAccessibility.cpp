#include <Catalogue/AccessibleEvents.h>
#include <Catalogue/Contrast.h>
#include <Catalogue/EntryWindow.h>

#include <Support/AnySignalSpy.h>
#include <Support/Input.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QAbstractItemView>
#include <QAction>
#include <QButtonGroup>
#include <QPlainTextEdit>

using namespace Zelkor::Catalogue;

namespace {

constexpr int MOST_TAB_STOPS = 100;    ///< including links in a text and the sections of a time
constexpr double LEAST_CONTRAST = 3;   ///< between a pixel with and without focus
constexpr int LEAST_FOCUS_PIXELS = 80; ///< fewer than the ring around a thumb of a slider
const QStringList SHEETS{"light", "dark"};
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

// Screen readers skip direction marks and the like.
bool IsReadable(const QString& name)
{
    const auto isRead = [](QChar sign) { return sign.isPrint() || sign.isSpace(); };
    return !name.trimmed().isEmpty() && std::all_of(name.begin(), name.end(), isRead);
}

// Frames need no name: their contents have names.
bool IsFrame(QAccessible::Role role)
{
    return role == QAccessible::Border || role == QAccessible::Grouping || role == QAccessible::LayeredPane;
}

// Returns the defects of an interface. `isSubject`: it belongs to the class of the entry.
QStringList FaultsOf(QAccessibleInterface& interface, bool takesKeyboard, bool isSubject)
{
    const QAccessible::Role role = interface.role();
    const QAccessible::State state = interface.state();
    const QString name = interface.text(QAccessible::Name);
    const bool needsName = takesKeyboard || (isSubject && !IsFrame(role));
    const QAccessibleValueInterface* values = interface.valueInterface();
    const double value = values ? values->currentValue().toDouble() : 0;
    QAccessibleActionInterface* actions = interface.actionInterface();
    const QStringList actionNames = actions ? actions->actionNames() : QStringList();
    const auto* widget = qobject_cast<QWidget*>(interface.object());
    // Qt never reports the list of a combo box as disabled.
    const bool isList = qobject_cast<const QAbstractItemView*>(widget);
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const bool isPressable = button && button->isEnabled() && role != QAccessible::Slider;
    const bool hasCheck = isPressable && button->isCheckable() && !state.checkStateMixed;

    const std::pair<bool, const char*> checks[] = {
        {role == QAccessible::NoRole, "has no role"},
        {(takesKeyboard || isSubject) && (role == QAccessible::Client || role == QAccessible::Window),
         "has no specific role"},
        {isSubject && IsFrame(role) && interface.childCount() == 0, "is an empty frame"},
        {name.isEmpty() ? needsName : !IsReadable(name), "has no readable name"},
        {takesKeyboard && !state.focusable, "takes keys, but is not focusable"},
        {values && value < values->minimumValue().toDouble(), "has a value below the range"},
        {values && value > values->maximumValue().toDouble(), "has a value above the range"},
        {QStringList(actionNames).removeDuplicates() > 0, "has an action twice"},
        {isPressable && actionNames.isEmpty(), "is a button without an action"},
        {widget && !isList && state.disabled == widget->isEnabled(), "has a wrong disabled state"},
        {hasCheck && state.checked != button->isChecked(), "has a wrong checked state"},
    };
    QStringList faults;
    for (const auto& [isFault, text] : checks) {
        if (isFault)
            faults += Describe(interface) + ' ' + text;
    }
    return faults;
}

int CountContrastingPixels(const QImage& before, const QImage& after)
{
    if (before.size() != after.size())
        return after.width() * after.height();
    int count = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x)
            count += before.pixel(x, y) != after.pixel(x, y) &&
                     Contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= LEAST_CONTRAST;
    }
    return count;
}

// Removes a tab stop from `left`, and the buttons of its exclusive group, which the arrow keys reach from there.
void RemoveTabStop(QWidget* part, QVector<QPointer<QWidget>>& left)
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
        if (!EnableAccessibility())
            QSKIP("Qt's private headers are not installed");
        QApplication::setCursorFlashTime(0);
        ApplySheet("dark");
    }

    void roleNameStateAndValueAreRight_data() { AddRows(); }

    void roleNameStateAndValueAreRight()
    {
        const auto scene = WindowOfRow();
        scene->Show();
        const auto keyboardParts = scene->KeyboardParts();
        QFETCH(QString, className);
        int visited = 0;
        QStringList faults;
        VisitAccessible(QAccessible::queryAccessibleInterface(scene->widget), [&](auto& interface, auto*, auto&) {
            auto* part = qobject_cast<QWidget*>(interface.object());
            const bool takesKeyboard = part && keyboardParts.contains(part);
            visited += takesKeyboard;
            const bool isSubject = part && QString(part->metaObject()->className()).section("::", -1) == className;
            faults += FaultsOf(interface, takesKeyboard, isSubject);
        });
        QCOMPARE(faults.join("; "), QString());
        QCOMPARE(visited, keyboardParts.size());
    }

    void namesLackMnemonics_data() { AddRows(); }

    void namesLackMnemonics()
    {
        const auto scene = WindowOfRow();
        scene->Show();
        const QString text = "&Zoom";
        for (QObject* part : QObjectList{scene->widget} + scene->widget->findChildren<QObject*>()) {
            if (part->inherits("QAbstractButton") || part->inherits("QAction"))
                part->setProperty("text", text);
            if (auto* widget = qobject_cast<QWidget*>(part)) {
                for (QAction* action : widget->actions())
                    action->setText(text);
            }
        }
        for (const AccessiblePart& part : SnapshotOf(scene->widget)) {
            QVERIFY2(!part.name.contains(text), qPrintable(part.name));
            QVERIFY2(!part.description.contains(text), qPrintable(part.description));
        }
    }

    void valuesCanBeSet_data() { AddRows(); }

    void valuesCanBeSet()
    {
        const auto scene = WindowOfRow();
        scene->Show();
        VisitAccessible(QAccessible::queryAccessibleInterface(scene->widget), [&](auto& interface, auto*, auto&) {
            QAccessibleValueInterface* value = interface.valueInterface();
            if (!value || interface.state().disabled || interface.state().readOnly || !interface.state().focusable)
                return;
            for (const QVariant& end : {value->maximumValue(), value->minimumValue()}) {
                CheckEvents(*scene, Describe(interface), [&] { value->setCurrentValue(end); });
                QCOMPARE(value->currentValue().toDouble(), end.toDouble());
            }
        });
    }

    void tabReachesAllPartsAndLeaves_data() { AddRows(AllStates, {"Tab", "Backtab"}); }

    void tabReachesAllPartsAndLeaves()
    {
        QFETCH(int, variant);
        const bool forwards = variant == 0;
        const auto scene = WindowOfRow();
        scene->Show();
        QWidget* const end = forwards ? scene->after : scene->before;
        (forwards ? scene->before : scene->after)->setFocus();
        QVector<QPointer<QWidget>> left = scene->KeyboardParts();
        for (int i = 0; i < MOST_TAB_STOPS && !end->hasFocus(); ++i) {
            // An editor inserts tabs; Ctrl+Tab moves the focus.
            const auto* editor = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
            Qt::KeyboardModifiers modifiers = forwards ? Qt::NoModifier : Qt::ShiftModifier;
            if (editor && !editor->tabChangesFocus())
                modifiers |= Qt::ControlModifier;
            scene->Type(forwards ? Qt::Key_Tab : Qt::Key_Backtab, modifiers);
            QVERIFY(QApplication::focusWidget());
            RemoveTabStop(QApplication::focusWidget(), left);
        }
        QVERIFY2(end->hasFocus(), QApplication::focusWidget()->metaObject()->className());
        QVERIFY2(left.isEmpty(), left.isEmpty() ? "" : left.first()->metaObject()->className());
    }

    void focusIsVisible_data() { AddRows(AllStates, SHEETS); }

    void focusIsVisible()
    {
        QFETCH(int, variant);
        ApplySheet(SHEETS[variant]);
        const auto scene = WindowOfRow();
        scene->Show();
        const auto pictureWithFocusOn = [&scene](QWidget* focused) {
            focused->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
            return scene->window->grab(scene->widget->geometry()).toImage();
        };
        for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
            const QImage before = pictureWithFocusOn(scene->before);
            const int pixels = CountContrastingPixels(before, pictureWithFocusOn(part));
            QVERIFY2(pixels >= LEAST_FOCUS_PIXELS, part->metaObject()->className());
        }
    }

    void keysHaveAnEffectAndSendEvents_data() { AddRows(); }

    // Each part with Qt::TabFocus emits a signal or opens a pop-up for one of the usual keys.
    void keysHaveAnEffectAndSendEvents()
    {
        const auto scene = WindowOfRow();
        scene->Show();
        for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
            QVERIFY2(part, "deleted by keys for another part");
            part->setFocus(Qt::TabFocusReason);
            int effects = 0;
            const Support::AnySignalSpy spy(part, [&effects](auto&) { ++effects; });
            const QString name = QStringLiteral("%1 %2 ").arg(part->metaObject()->className(), part->objectName());
            for (const Qt::Key key : KEYS)
                effects += CheckEvents(*scene, name + QKeySequence(key).toString(), [&] { scene->Type(key); });
            QVERIFY2(effects > 0, qPrintable(name + "ignores all keys"));
        }
    }

private:
    // A widget with a pop-up reports that as expanded while it is open.
    static void CheckExpanded(EntryWindow& scene)
    {
        QAccessibleInterface* opener = QAccessible::queryAccessibleInterface(scene.window->focusWidget());
        if (opener && opener->state().hasPopup)
            QVERIFY2(opener->state().expanded, qPrintable(Describe(*opener) + ": is not expanded"));
    }

    /// Checks that each change by `input`, and by closing what it opens, sends an event. Returns whether it opens
    /// something.
    static bool CheckEvents(EntryWindow& scene, const QString& name, const std::function<void()>& input)
    {
        AccessibleEventLog events;
        bool opened = false;
        AccessibleSnapshot last = SnapshotOf(scene.widget);
        QStringList faults;
        const auto compare = [&] {
            const AccessibleSnapshot now = SnapshotOf(scene.widget);
            faults += events.MissingEvents(last, now);
            events.Clear();
            last = now;
        };
        const Support::UrlHandlerStub links;
        const Support::ModalWatcher watcher([&](QWidget* window) {
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
        [&] { QVERIFY2(faults.isEmpty(), qPrintable(name + " sends no event for " + faults.join("; "))); }();
        return opened;
    }
};

VX_TEST_MAIN(tst_CatalogueAccessibility)
#include "tst_CatalogueAccessibility.moc"
