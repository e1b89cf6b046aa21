#include <Catalogue/EntryWindow.h>

#include <Support/Input.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QFileDialog>

#include <array>
#include <random>

using namespace Zelkor::Catalogue;

namespace {

constexpr int EVENTS_IN_ONE_STATE = 1000; ///< then a new widget in a random state
constexpr int MARGIN = 6;                 ///< around the widget, for the mouse
constexpr std::array BUTTONS{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
constexpr std::array MODIFIERS{Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
constexpr std::array KEYS{Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,    Qt::Key_Backtab,
                          Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Home,
                          Qt::Key_End,   Qt::Key_PageUp, Qt::Key_Delete, Qt::Key_Insert, Qt::Key_F4,
                          Qt::Key_Menu,  Qt::Key_Plus,   Qt::Key_7,      Qt::Key_A,      Qt::Key_Backspace};

/// Sends random input and changes to a widget and to the windows that it opens.
class RandomEvents
{
public:
    RandomEvents(EntryWindow& scene, quint32 seed) : scene(scene), random(seed)
    {
        // Painting would take most of the time.
        scene.window->setUpdatesEnabled(false);
    }

    void Next()
    {
        QWidget* window = TopWindow();
        const int kind = Below(100);
        if (kind < 30)
            SendMouse(window, QTest::MouseMove);
        else if (kind < 45)
            SendMouse(window, QTest::MousePress);
        else if (kind < 60)
            SendMouse(window, QTest::MouseRelease);
        else if (kind < 62)
            SendMouse(window, QTest::MouseDClick);
        else if (kind < 68)
            Support::TurnWheel(Part(), QPoint(0, Below(721) - 360));
        else if (kind < 93)
            QTest::keyClick(window, Pick(KEYS), Pick(MODIFIERS));
        else
            Change();
    }

    QWidget* TopWindow() const
    {
        if (QWidget* popUp = QApplication::activePopupWidget())
            return popUp;
        QWidget* modal = QApplication::activeModalWidget();
        return modal ? modal : scene.window.data();
    }

private:
    int Below(int count) { return int(random() % unsigned(count)); }

    template<class Value, size_t size>
    Value Pick(const std::array<Value, size>& array)
    {
        return array[size_t(Below(int(size)))];
    }

    QWidget* Part()
    {
        const auto parts = PartsOf(scene.widget);
        return parts[Below(parts.size())];
    }

    void SendMouse(QWidget* window, QTest::MouseAction action)
    {
        const QRect around = (window == scene.window ? scene.widget->geometry() : window->rect())
                                 .adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
        const QPoint place = around.topLeft() + QPoint(Below(around.width()), Below(around.height()));
        if (window->windowHandle() && window->rect().contains(place))
            QTest::mouseEvent(action, window->windowHandle(), Pick(BUTTONS), Pick(MODIFIERS), place);
    }

    void Change()
    {
        QWidget* widget = scene.widget;
        const std::array<std::function<void()>, 7> changes{
            [&] { widget->resize(Below(640), Below(400)); },
            [&] { widget->setEnabled(Below(8)); },
            [&] { (Below(8) ? widget : scene.window.data())->setVisible(Below(8)); },
            [&] { widget->setLayoutDirection(Below(2) ? Qt::LeftToRight : Qt::RightToLeft); },
            [&] { Part()->setFocus(Below(2) ? Qt::TabFocusReason : Qt::MouseFocusReason); },
            [&] { Support::SetActiveWindow(Below(3) ? scene.window.data() : nullptr); },
            Settle,
        };
        Pick(changes)();
    }

    EntryWindow& scene;
    std::mt19937 random;
};

} // namespace

/// Sends seeded random events to every widget. The environment variables VX_SEED and VX_EVENTS set the sequence and its
/// length.
class tst_CatalogueRandomEvents : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data() { AddRowsOfEntries(); }

    void survives()
    {
        const Entry& entry = EntryOfRow();
        const Support::UrlHandlerStub links;
        const quint32 seed = qEnvironmentVariable("VX_SEED", "1").toUInt();
        const int eventCount = qEnvironmentVariable("VX_EVENTS", "20000").toInt();
        // Printed first: a crash prints nothing.
        qInfo("VX_SEED=%u VX_EVENTS=%d survives:%s", seed, eventCount, qPrintable(entry.className));
        std::mt19937 random(seed + quint32(&entry - Entries().data()));
        const Support::LeakCheck leakCheck;
        // Qt's about a colour that was edited in the style sheet editor.
        AllowWarnings("QCssParser::parseHexColor: ");
        ApplySheet("dark");
        for (int sent = 0; sent < eventCount && !QTest::currentTestFailed(); sent += EVENTS_IN_ONE_STATE)
            SendTo(entry, entry.states[int(random() % unsigned(entry.states.size()))], random());
    }

private:
    static void SendTo(const Entry& entry, const State& state, quint32 seed)
    {
        EntryWindow scene(entry, state);
        scene.Show();
        RandomEvents events(scene, seed);
        const Support::ModalWatcher watcher([&](QWidget* window) {
            const QPointer<QWidget> guard(window);
            // A file dialog could change files.
            for (int i = 0; i < 4 && guard && guard->isVisible() && !qobject_cast<QFileDialog*>(guard); ++i)
                events.Next();
            if (guard)
                Support::Dismiss(guard);
        });
        for (int i = 0; i < EVENTS_IN_ONE_STATE && scene.widget; ++i) {
            if (qobject_cast<QFileDialog*>(events.TopWindow()))
                Settle();
            else
                events.Next();
        }
        QVERIFY2(scene.widget, "the widget deleted itself");
        scene.widget->resize(scene.widget->sizeHint());
        scene.window->setUpdatesEnabled(true);
        scene.window->show();
        Settle();
        QVERIFY(!scene.window->grab().isNull());
    }
};

VX_TEST_MAIN(tst_CatalogueRandomEvents)
#include "tst_CatalogueRandomEvents.moc"
