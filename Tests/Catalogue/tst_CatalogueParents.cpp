#include <Catalogue/Containers.h>
#include <Catalogue/EntryWindow.h>
#include <Catalogue/SignalRecorder.h>

#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QScopedValueRollback>
#include <QWindow>

#include <ui_FormOfAll.h>

#include <utility>

using namespace Zelkor::Catalogue;

namespace {

constexpr QSize WINDOW_SIZE(800, 720);
constexpr Qt::Key KEYS[] = {Qt::Key_Right, Qt::Key_Up, Qt::Key_Space, Qt::Key_7, Qt::Key_End};

// Maps a point of a widget to its native window, also from inside a graphics view.
std::pair<QWindow*, QPoint> MapToWindow(const QWidget* widget, const QPoint& point)
{
    QWidget* window = widget->window();
    QPoint mapped = widget->mapTo(window, point);
    if (const QGraphicsProxyWidget* proxy = window->graphicsProxyWidget()) {
        const QGraphicsView* view = proxy->scene()->views().first();
        window = view->window();
        mapped = view->viewport()->mapTo(window, view->mapFromScene(proxy->mapToScene(mapped)));
    }
    return {window->windowHandle(), mapped};
}

// Ignores QWidget's title and icon, which belong to the container, selectionChanged(), which depends on earlier input,
// and the style sheet editor, which applies by a timer and takes its text from the open windows.
bool IsIgnored(const QWidget* part, const QMetaMethod& signal)
{
    if (signal.enclosingMetaObject() == &QWidget::staticMetaObject || signal.name() == "selectionChanged" ||
        part->inherits("ZRuntimeStylesheetEditor"))
        return true;
    while (part && !part->inherits("QPlainTextEdit"))
        part = part->parentWidget();
    return part;
}

/// Operates a widget with mouse and keys.
class Operator
{
public:
    Operator(QWidget* widget, const OpenFunction& open) : widget(widget), open(open), recorder(widget, IsIgnored)
    {
        recorder.isActive = false;
    }

    EmittedSignals Operate()
    {
        const Support::UrlHandlerStub links;
        const Support::ModalWatcher watcher([this](QWidget* window) {
            if (window != widget->window())
                Support::Dismiss(window);
        });
        const int width = widget->width();
        const int middle = widget->height() / 2;
        for (const int x : {width / 4, width / 2, width * 3 / 4})
            Drag({x, middle}, {x, middle});
        Drag({width / 4, middle}, {width * 3 / 4, middle});
        for (const QPointer<QWidget>& part : PartsOf(widget)) {
            for (const Qt::Key key : KEYS)
                Type(part, key);
        }
        return recorder.emitted;
    }

private:
    // Earlier input may have closed the container or opened a pop-up.
    void Prepare()
    {
        for (const QPointer<QWidget>& part : PartsOf(widget)) {
            if (part && part->windowType() == Qt::Popup && part->isVisible())
                QTest::keyPress(MapToWindow(part, {}).first, Qt::Key_Escape);
        }
        open();
        Settle();
    }

    void Drag(const QPoint& from, const QPoint& to)
    {
        Prepare();
        for (const QPointer<QWidget>& part : PartsOf(widget)) {
            if (part->isVisible() && (part->focusPolicy() & Qt::TabFocus)) {
                part->setFocus(Qt::MouseFocusReason);
                break;
            }
        }
        const auto [window, start] = MapToWindow(widget, from);
        const QPoint end = MapToWindow(widget, to).second;
        const QScopedValueRollback<bool> recording(recorder.isActive, true);
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        if (from != to)
            QTest::mouseMove(window, end);
        QTest::mouseRelease(window, Qt::LeftButton, {}, end);
    }

    void Type(const QPointer<QWidget>& part, Qt::Key key)
    {
        if (!part || !(part->focusPolicy() & Qt::TabFocus) || part->focusProxy() ||
            (part->isWindow() && part != widget))
            return;
        Prepare();
        if (!part || !part->isVisible() || !part->isEnabled())
            return;
        part->setFocus(Qt::TabFocusReason);
        const QScopedValueRollback<bool> recording(recorder.isActive, true);
        QTest::keyClick(MapToWindow(widget, {}).first, key);
    }

    QWidget* widget;
    const OpenFunction open;
    SignalRecorder recorder;
};

void Show(QWidget& window, const OpenFunction& open)
{
    window.resize(WINDOW_SIZE);
    window.show();
    Support::SetActiveWindow(&window);
    open();
    QCoreApplication::processEvents();
}

// Moves a widget to a container, operates it there and deletes it.
EmittedSignals OperateIn(const Container& container, QWidget* widget)
{
    QWidget window;
    const OpenFunction open = container.create(widget, &window);
    widget->show();
    Show(window, open);
    return Operator(widget, open).Operate();
}

} // namespace

/// Every widget emits the same signals in every container as in a plain window.
class tst_CatalogueParents : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void widgetWorksInContainer_data() { AddRows(TestedStates, NamesOf(CONTAINERS).mid(1)); }

    // Every other widget is moved to the container while it is visible.
    void widgetWorksInContainer()
    {
        const Support::LeakCheck leakCheck;
        QFETCH(int, state);
        QFETCH(int, variant);
        const auto key = qMakePair(EntryOfRow().className, state);
        if (!plainSignals.contains(key))
            plainSignals[key] = OperateIn(CONTAINERS[0], CreateAtOwnSize(nullptr));
        QWidget first;
        QWidget* widget = CreateAtOwnSize(&first);
        if ((state + variant) % 2 == 1)
            Show(first, Fill(&first, PageWith(widget)));
        const EmittedSignals emitted = OperateIn(CONTAINERS[variant + 1], widget);
        QCOMPARE(Missing(plainSignals[key], emitted).join("; "), QString());
        QCOMPARE(Missing(emitted, plainSignals[key]).join("; "), QString());
    }

    void compiledFormShowsTheWidget_data()
    {
        AddRowsOfEntries([](auto& entry) { return bool(entry.form.metaObject); });
    }

    void compiledFormShowsTheWidget()
    {
        const Support::LeakCheck leakCheck;
        const Entry& entry = EntryOfRow();
        QWidget window;
        Ui::FormOfAll().setupUi(&window);
        QString name = entry.className;
        name[0] = name[0].toLower();
        auto* widget = window.findChild<QWidget*>(name);
        QVERIFY(widget);
        QCOMPARE(widget->metaObject(), entry.form.metaObject);
        Show(window, [] {});
        QVERIFY(widget->isVisible());

        // As in the editor, which creates the widget and sets the properties. In one window, both are equally active.
        window.setFocusPolicy(Qt::StrongFocus);
        window.setFocus();
        auto* edited = static_cast<QWidget*>(CreateBare(entry, &window));
        for (auto it = entry.form.properties.begin(); it != entry.form.properties.end(); ++it) {
            const QByteArray property = it.key().toLatin1();
            QVERIFY2(edited->setProperty(property, it.value()), property);
            QCOMPARE(widget->property(property), edited->property(property));
        }
        edited->resize(widget->size());
        edited->move(window.rect().center()); // away from the pointer, which is in a corner
        edited->show();
        Settle();
        if (widget->property("count").toInt() == edited->property("count").toInt()) // otherwise the form adds pages
            QCOMPARE(widget->grab().toImage(), edited->grab().toImage());
    }

private:
    QWidget* CreateAtOwnSize(QWidget* parent)
    {
        // The style sheet editor may have replaced the application's sheet.
        ApplySheet("dark");
        QWidget* widget = CreateInState(EntryOfRow(), StateOfRow(), parent);
        widget->ensurePolished();
        widget->setFixedSize(widget->sizeHint().expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize()));
        return widget;
    }

    QMap<QPair<QString, int>, EmittedSignals> plainSignals; ///< by class and state
};

VX_TEST_MAIN(tst_CatalogueParents)
#include "tst_CatalogueParents.moc"
