#include <Catalogue/Scene.h>

#include <Gallery/StyleSheet.h>

#include <Support/LinkTrap.h>
#include <Support/LoopWatch.h>
#include <Support/SignalTap.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QButtonGroup>
#include <QPlainTextEdit>

#include <deque>

using namespace Zelkor::Gallery;

namespace {

constexpr int LARGEST_STEP_COUNT = 100; ///< of Tab, which also visits links in a text and the parts of a time
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

// Empty, or what is wrong with what assistive technology hears of this one.
QString Fault(QAccessibleInterface& interface, bool takesKeyboard)
{
    if (!interface.isValid() || interface.role() == QAccessible::NoRole)
        return QStringLiteral("says nothing of itself");
    if (takesKeyboard && interface.role() == QAccessible::Client)
        return QStringLiteral("takes input, but does not say as what");
    if (takesKeyboard && interface.text(QAccessible::Name).isEmpty())
        return QStringLiteral("takes input, but has no name");
    if (takesKeyboard && !interface.state().focusable)
        return QStringLiteral("takes input, but is not focusable");
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
        QAccessible::setActive(true);
        QString error;
        ApplyStyleSheet(*LoadStyleSheet("dark", error));
    }

    void tellsWhatItIs_data() { AddRowsOfAllStates(); }

    void tellsWhatItIs()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        const auto keyboardParts = scene->KeyboardParts();
        std::deque<QAccessibleInterface*> toVisit{QAccessible::queryAccessibleInterface(scene->widget)};
        int heard = 0;
        for (; !toVisit.empty(); toVisit.pop_front()) {
            QAccessibleInterface* interface = toVisit.front();
            QVERIFY(interface);
            if (interface->state().invisible)
                continue;
            auto* part = qobject_cast<QWidget*>(interface->object());
            const bool takesKeyboard = part && keyboardParts.contains(part);
            heard += takesKeyboard;
            const QString fault = Fault(*interface, takesKeyboard);
            QVERIFY2(fault.isEmpty(), qPrintable(Describe(*interface) + ": " + fault));
            for (int i = 0; i < interface->childCount(); ++i) {
                QAccessibleInterface* child = interface->child(i);
                QVERIFY2(child, qPrintable(QStringLiteral("%1: no child %2").arg(Describe(*interface)).arg(i)));
                toVisit.push_back(child);
            }
        }
        QCOMPARE(heard, keyboardParts.size());
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

    void keysWorkIt_data() { AddRowsOfAllStates(); }

    // Each part that takes the keyboard answers to one of the usual keys: with a signal, or with something that
    // opens.
    void keysWorkIt()
    {
        const auto scene = SceneOfThisRow();
        scene->Show();
        const Support::LinkTrap links;
        int answers = 0;
        const Support::LoopWatch loops([&answers](QWidget* window) {
            ++answers;
            Support::Dismiss(window);
        });
        for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
            QVERIFY2(part, "gone after keys for another part");
            part->setFocus(Qt::TabFocusReason);
            answers = 0;
            const Support::SignalTap tap(part, [&answers] { ++answers; });
            for (int i = 0; i < int(std::size(KEYS)) && answers == 0; ++i) {
                scene->Type(KEYS[i]);
                QCoreApplication::processEvents();
                answers += QApplication::activePopupWidget() ? 1 : 0;
            }
            const QString name = part ? part->metaObject()->className() + (' ' + part->objectName()) : QString();
            QVERIFY2(answers > 0, qPrintable(name + " answers to no key"));
            while (QWidget* popUp = QApplication::activePopupWidget())
                popUp->close();
        }
    }
};

VX_TEST_MAIN(tst_CatalogueAccessibility)
#include "tst_CatalogueAccessibility.moc"
