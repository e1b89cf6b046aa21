#include <Catalogue/Containers.h>
#include <Catalogue/EntryWindow.h>
#include <Catalogue/SignalRecorder.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/LeakCheck.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWindow>

#include <ui_FormOfAll.h>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr QSize WINDOW_SIZE(800, 720);
constexpr Qt::Key KEYS[] = {Qt::Key_Right, Qt::Key_Up, Qt::Key_Space, Qt::Key_7, Qt::Key_End};

struct WindowPoint
{
    QWindow* window;
    QPoint point;
};

// Maps a point of a widget to its native window, also from inside a graphics view.
WindowPoint MapToWindow(const QWidget* widget, const QPoint& point)
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

/// Operates a widget in a container with mouse and keys.
class Operator
{
public:
    Operator(QWidget* widget, const Container& container)
        : widget(widget), container(container), recorder(widget, IsIgnored)
    {
        recorder.isActive = false;
    }

    EmittedSignals Operate()
    {
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
                QTest::keyPress(MapToWindow(part, {}).window, Qt::Key_Escape);
        }
        container.open();
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
        const WindowPoint start = MapToWindow(widget, from);
        const WindowPoint end = MapToWindow(widget, to);
        recorder.isActive = true;
        QTest::mousePress(start.window, Qt::LeftButton, {}, start.point);
        if (from != to)
            QTest::mouseMove(start.window, end.point);
        QTest::mouseRelease(start.window, Qt::LeftButton, {}, end.point);
        recorder.isActive = false;
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
        recorder.isActive = true;
        QTest::keyClick(MapToWindow(widget, {}).window, key);
        recorder.isActive = false;
    }

    QWidget* widget;
    const Container& container;
    SignalRecorder recorder;
};

void Open(QWidget& window, const Container& container)
{
    window.resize(WINDOW_SIZE);
    window.show();
    QApplication::setActiveWindow(&window);
    container.open();
    QCoreApplication::processEvents();
}

EmittedSignals Operate(QWidget* widget, const Container& container)
{
    const Support::UrlHandlerStub links;
    const Support::ModalWatcher watcher([&container](QWidget* window) {
        if (window != container.popUp)
            Support::Dismiss(window);
    });
    return Operator(widget, container).Operate();
}

void Compare(const EmittedSignals& emitted, const EmittedSignals& expected)
{
    QCOMPARE(Missing(expected, emitted).join("; "), QString());
    QCOMPARE(Missing(emitted, expected).join("; "), QString());
}

QStringList ContainerNames()
{
    return NamesOf(ContainerKinds()).mid(1);
}

} // namespace

/// Every widget emits the same signals in every container as in a plain window.
class tst_CatalogueParents : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { sheet = *LoadStyleSheet("dark"); }

    void widgetWorksInContainer_data() { AddRows(TestedStates, ContainerNames()); }

    // Alternately creates the widget in the container and moves it there, so that each widget takes both ways.
    void widgetWorksInContainer()
    {
        const Support::LeakCheck leakCheck;
        QFETCH(int, state);
        QFETCH(int, variant);
        const bool isMoved = (state + variant) % 2 == 1;
        const EmittedSignals expected = SignalsInPlainWindow();
        QWidget plain;
        QWidget window;
        const Container container = ContainerKinds()[size_t(variant) + 1].create(&window);
        QWidget* widget = nullptr;
        if (isMoved) {
            widget = CreateIn(plain, PlainContainer(plain));
            window.resize(WINDOW_SIZE);
            window.show();
        } else {
            widget = CreateAtOwnSize(container.parent);
        }
        container.take(widget);
        Open(window, container);
        Compare(Operate(widget, container), expected);
    }

    void widgetWorksInCompiledForm_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries()) {
            if (entry.form.metaObject)
                QTest::newRow(qPrintable(entry.className)) << entry.className;
        }
    }

    void widgetWorksInCompiledForm()
    {
        const Support::LeakCheck leakCheck;
        const Entry& entry = EntryOfRow();
        QWidget window;
        Ui::FormOfAll form;
        form.setupUi(&window);
        QString name = entry.className;
        name[0] = name[0].toLower();
        auto* widget = window.findChild<QWidget*>(name);
        QVERIFY(widget);
        QCOMPARE(widget->metaObject(), entry.form.metaObject);
        const Container container{&window, {}};
        Open(window, container);

        QWidget plain;
        const Container place = PlainContainer(plain);
        QWidget* other = CreateLikeForm(entry, place.parent);
        place.take(other);
        other->setFixedSize(widget->size());
        Open(plain, place);
        const EmittedSignals expected = Operate(other, place);
        QApplication::setActiveWindow(&window);
        Compare(Operate(widget, container), expected);
    }

private:
    static Container PlainContainer(QWidget& window) { return ContainerKinds().front().create(&window); }

    static QWidget* CreateLikeForm(const Entry& entry, QWidget* parent)
    {
        auto* widget = static_cast<QWidget*>(CreateBare(entry, parent));
        for (auto it = entry.form.properties.begin(); it != entry.form.properties.end(); ++it)
            widget->setProperty(it.key().toLatin1(), it.value());
        for (const QString title : {"Tab 1", "Tab 2"}) {
            if (auto* tabs = qobject_cast<QTabWidget*>(widget))
                tabs->addTab(new QWidget, title);
            else if (auto* stack = qobject_cast<QStackedWidget*>(widget))
                stack->addWidget(new QWidget);
        }
        return widget;
    }

    QWidget* CreateAtOwnSize(QWidget* parent)
    {
        // The style sheet editor may have replaced the application's sheet.
        if (qApp->styleSheet() != sheet.text)
            sheet.apply();
        QWidget* widget = CreateInState(EntryOfRow(), StateOfRow(), parent);
        widget->ensurePolished();
        widget->setFixedSize(widget->sizeHint().expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize()));
        return widget;
    }

    QWidget* CreateIn(QWidget& window, const Container& container)
    {
        QWidget* widget = CreateAtOwnSize(container.parent);
        container.take(widget);
        Open(window, container);
        return widget;
    }

    // Cached for each state.
    EmittedSignals SignalsInPlainWindow()
    {
        const auto key = qMakePair(EntryOfRow().className, StateOfRow().name);
        if (!plainSignals.contains(key)) {
            QWidget window;
            const Container container = PlainContainer(window);
            plainSignals[key] = Operate(CreateIn(window, container), container);
        }
        return plainSignals[key];
    }

    ZStyleSheet sheet;
    QMap<QPair<QString, QString>, EmittedSignals> plainSignals;
};

VX_TEST_MAIN(tst_CatalogueParents)
#include "tst_CatalogueParents.moc"
