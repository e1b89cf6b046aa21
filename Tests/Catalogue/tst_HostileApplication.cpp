#include <Catalogue/Scene.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/AnySignalSpy.h>
#include <Support/LeakCheck.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QAbstractSlider>
#include <QMetaEnum>
#include <QSet>

#include <deque>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr Qt::Key KEYS[] = {Qt::Key_Space,  Qt::Key_Right, Qt::Key_Left,   Qt::Key_Up, Qt::Key_Down,
                            Qt::Key_Return, Qt::Key_Home,  Qt::Key_Delete, Qt::Key_7,  Qt::Key_Tab};

// What a person does before the next thing: closes what is open.
void CloseAll()
{
    while (QWidget* popUp = QApplication::activePopupWidget())
        popUp->close();
    Settle();
}

// Operates each part with keys and mouse, as long as the scene exists; types another digit each time, which changes a
// text that is typed once more.
void Work(Scene& scene)
{
    static int times = 0;
    ++times;
    for (const QPointer<QWidget>& part : scene.KeyboardParts()) {
        if (!part)
            continue;
        part->setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : KEYS) {
            if (!scene.Type(key == Qt::Key_7 ? Qt::Key(Qt::Key_0 + times % 10) : key))
                return;
        }
    }
    for (const QPointer<QWidget>& part : PartsOf(scene.widget)) {
        if (!part || !part->isVisible() || part->window() != scene.window)
            continue;
        // There and back, which leaves what can be dragged in its place.
        const QPoint center = part->mapTo(scene.window, part->rect().center());
        QTest::mousePress(scene.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
        for (const QPoint& place : {center + QPoint(9, 9), center}) {
            if (scene.window)
                QTest::mouseMove(scene.window->windowHandle(), place);
        }
        if (scene.window)
            QTest::mouseRelease(scene.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
    }
}

/// The signals that a widget and its parts emit, each with the first part that does; the same signal of other parts of
/// the same class is not distinguished.
using PartSignals = QMap<QString, int>;

QString NameOf(const QWidget* part, const QMetaMethod& signal)
{
    return QStringLiteral("%1::%2").arg(part->metaObject()->className(), QString(signal.methodSignature()));
}

// Parts in pop-ups are left out: where a pop-up covers the widget depends on what is open. So are signals about what
// can be copied or undone: they depend on what was selected and typed before.
PartSignals SignalsOfWork(Scene& scene)
{
    PartSignals emitted;
    std::deque<Support::AnySignalSpy> loggers;
    const auto parts = PartsOf(scene.widget);
    for (int i = 0; i < parts.size(); ++i) {
        if (parts[i]->window() != scene.window)
            continue;
        for (const QMetaMethod& signal : Support::SignalsOf(parts[i])) {
            if (signal.name().endsWith("Available"))
                continue;
            loggers.emplace_back(parts[i], QVector<QMetaMethod>{signal},
                                 [&emitted, i, name = NameOf(parts[i], signal)] {
                                     if (!emitted.contains(name))
                                         emitted[name] = i;
                                 });
        }
    }
    Work(scene);
    CloseAll();
    return emitted;
}

QMetaMethod SignalOf(const QWidget* part, const QString& name)
{
    for (const QMetaMethod& signal : part ? Support::SignalsOf(part) : QVector<QMetaMethod>()) {
        if (NameOf(part, signal) == name)
            return signal;
    }
    return {};
}

/// What a widget does in a calm application.
struct Calm
{
    PartSignals first;   ///< what it emits when it is operated for the first time
    PartSignals answers; ///< the same without what it does not emit the second time
    QSet<QEvent::Type> kinds;
};

QStringList Lost(const PartSignals& expected, const PartSignals& now)
{
    QStringList lost;
    for (const QString& name : expected.keys()) {
        if (!now.contains(name))
            lost += name;
    }
    return lost;
}

// Sliders are left out: they emit in the middle of the work of Qt's own slider, which continues afterwards.
bool MayDeleteIn(const QMetaMethod& signal, const QWidget* part)
{
    const QString declaredBy = signal.enclosingMetaObject()->className();
    return (!declaredBy.startsWith('Q') || FindEntry(declaredBy)) && !qobject_cast<const QAbstractSlider*>(part);
}

/// What a slot of the application does to the widget that called it.
struct Attack
{
    const char* name;
    void (*act)(Scene& scene, QWidget* elsewhere);
};

const Attack ATTACKS[] = {
    {"deleted", [](Scene& scene, QWidget*) { delete scene.widget; }},
    {"deleted later", [](Scene& scene, QWidget*) { scene.widget->deleteLater(); }},
    {"disabled", [](Scene& scene, QWidget*) { scene.widget->setEnabled(false); }},
    {"hidden", [](Scene& scene, QWidget*) { scene.widget->hide(); }},
    {"moved to another window", [](Scene& scene, QWidget* elsewhere) { scene.widget->setParent(elsewhere); }},
    {"operated again", [](Scene& scene, QWidget*) { scene.Type(Qt::Key_Down); }},
    {"event loop", [](Scene&, QWidget*) { QCoreApplication::processEvents(); }},
};

/// Swallows the first event of one kind that goes to a widget or to something that a widget owns; to the whole
/// application it looks as if that event had never been sent.
class EventThief : public QObject
{
public:
    explicit EventThief(QEvent::Type type) : type(type) { qApp->installEventFilter(this); }

    bool hasStolen = false;

private:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (hasStolen || event->type() != type)
            return false;
        for (; object; object = object->parent())
            hasStolen = hasStolen || object->isWidgetType();
        return hasStolen;
    }

    QEvent::Type type;
};

/// Collects the kinds of event that a widget and its parts receive.
class EventKinds : public QObject
{
public:
    EventKinds() { qApp->installEventFilter(this); }

    QSet<QEvent::Type> kinds;

private:
    // Left out: Qt's own widgets learn of their actions by events alone, and a window closes that cannot refuse to.
    static bool MustArrive(QEvent::Type type)
    {
        return type == QEvent::ActionAdded || type == QEvent::ActionRemoved || type == QEvent::Close;
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (MustArrive(event->type()))
            return false;
        if (object->isWidgetType() || (object->parent() && object->parent()->isWidgetType()))
            kinds.insert(event->type());
        return false;
    }
};

} // namespace

/// The widget in an application that does its worst: slots that take the widget away or run the event loop in the
/// middle of its work, and an event filter that swallows what it needs.
class tst_HostileApplication : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Without a sheet: most of the time would go into applying it to each of the many widgets.
    void initTestCase() { ZStyleSheet{QString(), LoadStyleSheet("dark")->iconFolder}.apply(); }

    void worksAfterAttackInSlot_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("attack");
        for (const Entry& entry : Entries()) {
            for (const int state : TestedStates(entry)) {
                for (int attack = 0; attack < int(std::size(ATTACKS)); ++attack)
                    QTest::addRow("%s, %s, %s", qPrintable(entry.className), qPrintable(entry.states[state].name),
                                  ATTACKS[attack].name)
                        << entry.className << state << attack;
            }
        }
    }

    void worksAfterAttackInSlot()
    {
        const Support::LeakCheck census;
        const Support::UrlHandlerStub links;
        const Support::ModalWatcher loops(Support::Dismiss);
        QFETCH(int, attack);
        const bool isDeletion = attack == 0;
        const Calm calm = CalmOfThisRow();
        QStringList deaf;
        for (auto target = calm.first.begin(); target != calm.first.end(); ++target) {
            const auto scene = SceneOfThisRow();
            scene->Show();
            QWidget* sender = PartsOf(scene->widget).value(target.value());
            const QMetaMethod signal = SignalOf(sender, target.key());
            if (!signal.isValid() || (isDeletion && !MayDeleteIn(signal, sender)))
                continue;
            QWidget elsewhere;
            elsewhere.show();
            {
                bool isOver = false;
                const Support::AnySignalSpy tap(sender, {signal}, [&] {
                    if (!std::exchange(isOver, true) && scene->widget)
                        ATTACKS[attack].act(*scene, &elsewhere);
                });
                Work(*scene);
                CloseAll();
            }
            if (!scene->widget)
                continue;
            scene->window->layout()->addWidget(scene->widget);
            scene->widget->setEnabled(true);
            scene->widget->show();
            scene->Show();
            for (const QString& lost : Lost(calm.answers, SignalsOfWork(*scene)))
                deaf += target.key() + QStringLiteral(" -> ") + lost;
        }
        QCOMPARE(deaf.join("; "), QString());
    }

    void worksAfterLosingAnEvent_data() { AddRowsOfStates(TestedStates); }

    void worksAfterLosingAnEvent()
    {
        const Support::UrlHandlerStub links;
        const Calm calm = CalmOfThisRow();
        QStringList deaf;
        for (const QEvent::Type kind : calm.kinds) {
            auto thief = std::make_unique<EventThief>(kind);
            // Sees each event before the thief does, or no dialog would ever close.
            const Support::ModalWatcher loops(Support::Dismiss);
            const auto scene = SceneOfThisRow();
            scene->Show();
            Work(*scene);
            CloseAll();
            thief.reset();
            scene->window->hide();
            scene->widget->show();
            scene->Show();
            const QString name = QMetaEnum::fromType<QEvent::Type>().valueToKey(kind);
            for (const QString& lost : Lost(calm.answers, SignalsOfWork(*scene)))
                deaf += name + QStringLiteral(" -> ") + lost;
        }
        QCOMPARE(deaf.join("; "), QString());
    }

private:
    // Found once for each state.
    const Calm& CalmOfThisRow()
    {
        QFETCH(QString, className);
        QFETCH(int, state);
        const QString key = QStringLiteral("%1 %2").arg(className).arg(state);
        if (!calms.contains(key)) {
            const EventKinds seen;
            const Support::ModalWatcher loops(Support::Dismiss);
            const auto scene = SceneOfThisRow();
            scene->Show();
            const PartSignals first = SignalsOfWork(*scene);
            PartSignals answers = first;
            for (const QString& lost : Lost(answers, SignalsOfWork(*scene)))
                answers.remove(lost);
            calms[key] = {first, answers, seen.kinds};
        }
        return calms[key];
    }

    QMap<QString, Calm> calms;
};

VX_TEST_MAIN(tst_HostileApplication)
#include "tst_HostileApplication.moc"
