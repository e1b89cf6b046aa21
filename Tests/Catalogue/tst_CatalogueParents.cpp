#include <Catalogue/Homes.h>
#include <Catalogue/Scene.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/AnySignalSpy.h>
#include <Support/LeakCheck.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QPointer>
#include <QWindow>

#include <ui_FormOfAll.h>

#include <algorithm>
#include <deque>
#include <memory>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr QSize WINDOW_SIZE(800, 720);
constexpr Qt::Key KEYS[] = {Qt::Key_Right, Qt::Key_Up, Qt::Key_Space, Qt::Key_7, Qt::Key_End};

/// A place in a window of the window system.
struct Place
{
    QWindow* window;
    QPoint point;
};

// Where a point of a widget is on the screen, also inside a graphics view.
Place PlaceOf(const QWidget* widget, const QPoint& point)
{
    QWidget* window = widget->window();
    QPoint there = widget->mapTo(window, point);
    if (const QGraphicsProxyWidget* proxy = window->graphicsProxyWidget()) {
        const QGraphicsView* view = proxy->scene()->views().first();
        window = view->window();
        there = view->viewport()->mapTo(window, view->mapFromScene(proxy->mapToScene(there)));
    }
    return {window->windowHandle(), there};
}

// The style sheet editor applies by a timer, and takes its text from the windows that are open.
bool IsOfSheetEditor(const QWidget* part)
{
    if (part->inherits("ZRuntimeStylesheetEditor"))
        return true;
    while (part && !part->inherits("QPlainTextEdit"))
        part = part->parentWidget();
    return part;
}

/// Works a widget with mouse and keys, and lists what it answers.
class Worker
{
public:
    Worker(QWidget* widget, const Home& home) : widget(widget), home(home)
    {
        const auto parts = PartsOf(widget);
        for (const QPointer<QWidget>& part : parts) {
            // What a pop-up of the widget emits depends on where it opens.
            if (part->window() != widget->window() || IsOfSheetEditor(part))
                continue;
            for (const QMetaMethod& signal : Support::SignalsOf(part)) {
                // What has a title or an icon is a matter of the container; what is selected, of what was typed before.
                if (signal.enclosingMetaObject() != &QWidget::staticMetaObject && signal.name() != "selectionChanged")
                    taps.emplace_back(part, QVector<QMetaMethod>{signal}, [this, text = Text(part, signal)] {
                        if (isListening)
                            answers.append(text);
                    });
            }
        }
    }

    QStringList Work()
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
        answers.sort();
        answers.removeDuplicates();
        return answers;
    }

private:
    static QString Text(const QWidget* part, const QMetaMethod& signal)
    {
        return QStringLiteral("%1 %2").arg(part->metaObject()->className(), QString(signal.methodSignature()));
    }

    // Some keys and presses close what the widget is in, or open something else.
    void Prepare()
    {
        for (const QPointer<QWidget>& part : PartsOf(widget)) {
            if (part && part->windowType() == Qt::Popup && part->isVisible())
                QTest::keyPress(PlaceOf(part, {}).window, Qt::Key_Escape);
        }
        home.open();
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
        const Place start = PlaceOf(widget, from);
        isListening = true;
        const Place end = PlaceOf(widget, to);
        QTest::mousePress(start.window, Qt::LeftButton, {}, start.point);
        if (from != to)
            QTest::mouseMove(start.window, end.point);
        QTest::mouseRelease(start.window, Qt::LeftButton, {}, end.point);
        isListening = false;
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
        isListening = true;
        QTest::keyClick(PlaceOf(widget, {}).window, key);
        isListening = false;
    }

    QWidget* widget;
    const Home& home;
    QStringList answers;
    bool isListening = false; ///< while a press or a key is delivered, and not what leads to it
    std::deque<Support::AnySignalSpy> taps;
};

// Empty when both lists have the same answers.
QString Difference(const QStringList& answers, const QStringList& expected)
{
    QString text;
    for (const QString& answer : answers) {
        if (!expected.contains(answer))
            text += "more: " + answer + '\n';
    }
    for (const QString& answer : expected) {
        if (!answers.contains(answer))
            text += "lost: " + answer + '\n';
    }
    return text;
}

void Open(QWidget& window, const Home& home)
{
    window.resize(WINDOW_SIZE);
    window.show();
    QApplication::setActiveWindow(&window);
    home.open();
    QCoreApplication::processEvents();
}

} // namespace

/// Every widget works in every container as it does in a plain window.
class tst_CatalogueParents : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { sheet = *LoadStyleSheet("dark"); }

    void worksWhereItIsMade_data() { AddRows(0); }

    void worksWhereItIsMade()
    {
        const Support::LeakCheck census;
        QFETCH(int, home);
        const QStringList expected = AnswersInPlainWindow();
        QWidget window;
        const Home place = HomeKinds()[size_t(home)].make(&window);
        QWidget* widget = Create(place.parent);
        place.take(widget);
        Open(window, place);
        QCOMPARE(Difference(Work(widget, place), expected), QString());
    }

    void worksWhereItIsMovedTo_data() { AddRows(1); }

    void worksWhereItIsMovedTo()
    {
        const Support::LeakCheck census;
        QFETCH(int, home);
        const QStringList expected = AnswersInPlainWindow();
        QWidget plain;
        const Home before = HomeKinds().front().make(&plain);
        QWidget* widget = Create(before.parent);
        before.take(widget);
        Open(plain, before);
        QWidget window;
        const Home place = HomeKinds()[size_t(home)].make(&window);
        window.resize(WINDOW_SIZE);
        window.show();
        place.take(widget);
        Open(window, place);
        QCOMPARE(Difference(Work(widget, place), expected), QString());
    }

    void worksInACompiledForm_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries()) {
            if (entry.form.metaObject)
                QTest::newRow(qPrintable(entry.className)) << entry.className;
        }
    }

    // As well as one that is made by hand like it.
    void worksInACompiledForm()
    {
        const Support::LeakCheck census;
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className);
        QWidget window;
        Ui::FormOfAll form;
        form.setupUi(&window);
        QString name = className;
        name[0] = name[0].toLower();
        auto* widget = window.findChild<QWidget*>(name);
        QVERIFY(widget);
        QCOMPARE(widget->metaObject(), entry.form.metaObject);
        const Home home{&window, {}, [] {}, nullptr};
        Open(window, home);

        QWidget plain;
        const Home place = HomeKinds().front().make(&plain);
        QWidget* byHand = MakeByHand(entry, place.parent);
        place.take(byHand);
        // At the size that the form gives it.
        byHand->setFixedSize(widget->size());
        Open(plain, place);
        const QStringList expected = Work(byHand, place);
        QApplication::setActiveWindow(&window);
        QCOMPARE(Difference(Work(widget, home), expected), QString());
    }

private:
    static QWidget* MakeByHand(const Entry& entry, QWidget* parent)
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

    // Every state meets every container, in turns made there or moved there, so that every widget is both.
    static void AddRows(size_t turn)
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("home");
        for (const Entry& entry : Entries()) {
            for (const int i : TestedStates(entry)) {
                for (size_t home = 1 + (size_t(i) + turn) % 2; home < HomeKinds().size(); home += 2)
                    QTest::addRow("%s, %s, %s", qPrintable(entry.className), qPrintable(entry.states[i].name),
                                  HomeKinds()[home].name)
                        << entry.className << i << int(home);
            }
        }
    }

    // At the size that it has in a plain window.
    QWidget* Create(QWidget* parent)
    {
        // The style sheet editor can take the sheet from the application.
        if (qApp->styleSheet() != sheet.text)
            sheet.apply();
        QFETCH(QString, className);
        QFETCH(int, state);
        const Entry& entry = *FindEntry(className);
        QWidget* widget = CreateInState(entry, entry.states[state], parent);
        widget->ensurePolished();
        widget->setFixedSize(widget->sizeHint().expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize()));
        return widget;
    }

    QStringList AnswersInPlainWindow()
    {
        QFETCH(QString, className);
        QFETCH(int, state);
        const QString key = QStringLiteral("%1 %2").arg(className).arg(state);
        if (!plainAnswers.contains(key)) {
            QWidget window;
            const Home home = HomeKinds().front().make(&window);
            QWidget* widget = Create(home.parent);
            home.take(widget);
            Open(window, home);
            plainAnswers[key] = Work(widget, home);
        }
        return plainAnswers[key];
    }

    static QStringList Work(QWidget* widget, const Home& home)
    {
        const Support::UrlHandlerStub links;
        const Support::ModalWatcher loops([&home](QWidget* window) {
            if (window != home.popUp)
                Support::Dismiss(window);
        });
        return Worker(widget, home).Work();
    }

    ZStyleSheet sheet;
    QMap<QString, QStringList> plainAnswers;
};

VX_TEST_MAIN(tst_CatalogueParents)
#include "tst_CatalogueParents.moc"
