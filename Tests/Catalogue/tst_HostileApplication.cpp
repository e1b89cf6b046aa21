#include <Catalogue/EntryWindow.h>
#include <Catalogue/SignalRecorder.h>

#include <Support/EventSpy.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QAbstractSlider>
#include <QMetaEnum>
#include <QSet>

#include <array>
#include <utility>

using namespace Zelkor::Catalogue;

namespace {

constexpr Qt::Key KEYS[] = {Qt::Key_Space,  Qt::Key_Right, Qt::Key_Left,   Qt::Key_Up, Qt::Key_Down,
                            Qt::Key_Return, Qt::Key_Home,  Qt::Key_Delete, Qt::Key_7,  Qt::Key_Tab};

// Sends keys and mouse events to each part while the window exists. Types a different digit at each call, so that a
// text changes each time.
void Operate(EntryWindow& scene)
{
    static int calls = 0;
    ++calls;
    for (const QPointer<QWidget>& part : scene.KeyboardParts()) {
        if (!part)
            continue;
        part->setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : KEYS) {
            if (!scene.Type(key == Qt::Key_7 ? Qt::Key(Qt::Key_0 + calls % 10) : key))
                return;
        }
    }
    for (const QPointer<QWidget>& part : PartsOf(scene.widget)) {
        if (!part || !part->isVisible() || part->window() != scene.window)
            continue;
        // Returns to the start, so that a dragged part keeps its place.
        const QPoint center = part->mapTo(scene.window, part->rect().center());
        QTest::mousePress(scene.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
        for (const QPoint& point : {center + QPoint(9, 9), center}) {
            if (scene.window)
                QTest::mouseMove(scene.window->windowHandle(), point);
        }
        if (scene.window)
            QTest::mouseRelease(scene.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
    }
    while (QWidget* popUp = QApplication::activePopupWidget())
        popUp->close();
    Settle();
}

EmittedSignals SignalsOfOperating(EntryWindow& scene)
{
    SignalRecorder recorder(scene.widget);
    Operate(scene);
    return recorder.emitted;
}

/// What a widget does without interference.
struct Baseline
{
    EmittedSignals first;    ///< when it is operated for the first time
    EmittedSignals repeated; ///< the same without signals that it does not emit the second time
    QSet<QEvent::Type> events;
};

// Sliders are excluded: QAbstractSlider emits inside its own event handlers and then continues.
bool MayDeleteIn(const QMetaMethod& signal, const QWidget* part)
{
    const QString declaredBy = signal.enclosingMetaObject()->className();
    return (!declaredBy.startsWith('Q') || FindEntry(declaredBy)) && !qobject_cast<const QAbstractSlider*>(part);
}

/// What a slot of the application does to the sender.
struct Attack
{
    const char* name;
    void (*act)(EntryWindow& scene, QWidget* elsewhere);
};

const Attack ATTACKS[] = {
    {"deleted", [](EntryWindow& scene, QWidget*) { delete scene.widget; }},
    {"deleted later", [](EntryWindow& scene, QWidget*) { scene.widget->deleteLater(); }},
    {"disabled", [](EntryWindow& scene, QWidget*) { scene.widget->setEnabled(false); }},
    {"hidden", [](EntryWindow& scene, QWidget*) { scene.widget->hide(); }},
    {"moved to another window", [](EntryWindow& scene, QWidget* elsewhere) { scene.widget->setParent(elsewhere); }},
    {"operated again", [](EntryWindow& scene, QWidget*) { scene.Type(Qt::Key_Down); }},
    {"event loop", [](EntryWindow&, QWidget*) { QCoreApplication::processEvents(); }},
};

// Returns an event filter that calls a function for the events of widgets and of objects that widgets own.
auto ForWidgets(const std::function<bool(QEvent::Type)>& filter)
{
    return [filter](QObject* object, QEvent* event) {
        while (object && !object->isWidgetType())
            object = object->parent();
        return object && filter(event->type());
    };
}

} // namespace

/// Widgets survive slots that delete, hide or reparent them, and event filters that swallow events.
class tst_HostileApplication : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Without a style sheet, which would take most of the time.
    void initTestCase() { ApplySheet(""); }

    void worksAfterAttackInSlot_data() { AddRows(TestedStates, NamesOf(ATTACKS)); }

    void worksAfterAttackInSlot()
    {
        const Support::LeakCheck leakCheck;
        const Support::UrlHandlerStub links;
        const Support::ModalWatcher watcher(Support::Dismiss);
        QFETCH(int, variant);
        const Attack& attack = ATTACKS[variant];
        const Baseline baseline = BaselineOfRow();
        QStringList missing;
        for (auto target = baseline.first.begin(); target != baseline.first.end(); ++target) {
            const auto scene = WindowOfRow();
            scene->Show();
            QWidget* sender = PartsOf(scene->widget).value(target->part);
            if (!sender || (variant == 0 && !MayDeleteIn(target->signal, sender)))
                continue;
            QWidget elsewhere;
            elsewhere.show();
            {
                bool isOver = false;
                const Support::AnySignalSpy spy(sender, [&](const QMetaMethod& signal) {
                    if (signal == target->signal && !std::exchange(isOver, true) && scene->widget)
                        attack.act(*scene, &elsewhere);
                });
                Operate(*scene);
            }
            if (!scene->widget)
                continue;
            scene->window->layout()->addWidget(scene->widget);
            scene->widget->setEnabled(true);
            scene->widget->show();
            scene->Show();
            for (const QString& name : Missing(baseline.repeated, SignalsOfOperating(*scene)))
                missing += target.key() + QStringLiteral(" -> ") + name;
        }
        QCOMPARE(missing.join("; "), QString());
    }

    void worksAfterLosingAnEvent_data() { AddRows(TestedStates); }

    void worksAfterLosingAnEvent()
    {
        const Support::UrlHandlerStub links;
        const Baseline baseline = BaselineOfRow();
        QStringList missing;
        for (const QEvent::Type lost : baseline.events) {
            bool isLost = false;
            auto filter = std::make_unique<Support::EventFilter>(
                qApp, ForWidgets([&](QEvent::Type type) { return type == lost && !std::exchange(isLost, true); }));
            // Installed later, so that it sees each event before the filter.
            const Support::ModalWatcher watcher(Support::Dismiss);
            const auto scene = WindowOfRow();
            scene->Show();
            Operate(*scene);
            filter.reset();
            scene->window->hide();
            scene->widget->show();
            scene->Show();
            const QString event = QMetaEnum::fromType<QEvent::Type>().valueToKey(lost);
            for (const QString& name : Missing(baseline.repeated, SignalsOfOperating(*scene)))
                missing += event + QStringLiteral(" -> ") + name;
        }
        QCOMPARE(missing.join("; "), QString());
    }

    void windowIsDeletedWhilePopUpIsOpen_data() { AddRows(AllStates, {"Space", "Down", "F4"}); }

    // Dialogs and menus lose their parent inside exec().
    void windowIsDeletedWhilePopUpIsOpen()
    {
        const Support::LeakCheck leakCheck;
        QFETCH(int, variant);
        const auto scene = WindowOfRow();
        scene->Show();
        const Support::ModalWatcher watcher([&scene](QWidget*) { delete scene->window; });
        for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
            if (!part)
                continue;
            part->setFocus(Qt::TabFocusReason);
            scene->Type(std::array{Qt::Key_Space, Qt::Key_Down, Qt::Key_F4}[size_t(variant)]);
            Settle();
        }
    }

private:
    // Cached for each state.
    Baseline BaselineOfRow()
    {
        const auto key = qMakePair(EntryOfRow().className, StateOfRow().name);
        if (!baselines.contains(key)) {
            Baseline baseline;
            const auto collect = [&baseline](QEvent::Type type) {
                // QWidget updates its actions by events only, and a closing window ignores event filters.
                if (type != QEvent::ActionAdded && type != QEvent::ActionRemoved && type != QEvent::Close)
                    baseline.events.insert(type);
                return false;
            };
            const Support::EventFilter filter(qApp, ForWidgets(collect));
            const Support::ModalWatcher watcher(Support::Dismiss);
            const auto scene = WindowOfRow();
            scene->Show();
            baseline.first = SignalsOfOperating(*scene);
            baseline.repeated = baseline.first;
            for (const QString& name : Missing(baseline.first, SignalsOfOperating(*scene)))
                baseline.repeated.remove(name);
            baselines[key] = baseline;
        }
        return baselines[key];
    }

    QMap<QPair<QString, QString>, Baseline> baselines;
};

VX_TEST_MAIN(tst_HostileApplication)
#include "tst_HostileApplication.moc"
