#include <Catalogue/AccessibleEvents.h>
#include <Catalogue/EntryWindow.h>
#include <Catalogue/OtherValue.h>
#include <Catalogue/SamplePictures.h>
#include <Gallery/Inspector/PropertyValue.h>
#include <Gallery/Inspector/SignalLog.h>
#include <Gallery/Inspector/StyleSheetLine.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QStyle>
#include <QTranslator>

#include <algorithm>

using namespace Zelkor;
using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;

namespace {

constexpr int NARROW = 48;
constexpr int LONGEST_ANIMATION_MS = 1000;
constexpr int MARGIN = 8;    ///< around the widget, which must not paint there
constexpr int FONT_STEP = 7; ///< points between the two font sizes

/// The settings of the application that affect every widget.
struct Environment
{
    QString sheet = QStringLiteral("dark");
    QString language = {};
    int fontStep = 0;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

void Nothing(EntryWindow&) {}

template<bool on>
void Enable(EntryWindow& scene)
{
    scene.window->setEnabled(on);
}

template<QPointer<QWidget> EntryWindow::*part>
void HideAndShow(EntryWindow& scene)
{
    (scene.*part)->hide();
    Settle();
    (scene.*part)->show();
}

void NarrowAndWiden(EntryWindow& scene)
{
    const QSize size = scene.window->size();
    scene.window->resize(NARROW, NARROW);
    Settle();
    scene.window->grab();
    scene.window->resize(size);
}

/// A change of a visible widget, and of a new one before it is shown.
struct Change
{
    const char* name;
    Environment from;
    Environment to;
    void (*prepare)(EntryWindow& changed) = Nothing; ///< before it is shown
    void (*change)(EntryWindow& changed) = Nothing;
    void (*make)(EntryWindow& made) = Nothing;
};

const Change CHANGES[] = {
    {"right to left", {}, {"dark", {}, 0, Qt::RightToLeft}},
    {"left to right", {"dark", {}, 0, Qt::RightToLeft}, {}},
    {"German", {}, {"dark", "de"}},
    {"French after Japanese", {"dark", "ja"}, {"dark", "fr"}},
    // Qt ignores QApplication::setFont() while the application has a style sheet with fonts.
    {"larger application font", {""}, {"", {}, FONT_STEP}},
    {"smaller application font", {"", {}, FONT_STEP}, {""}},
    {"light", {}, {"light"}},
    {"dark", {"light"}, {}},
    {"disabled", {}, {}, Nothing, Enable<false>, Enable<false>},
    {"enabled", {}, {}, Enable<false>, Enable<true>},
    {"hidden and shown", {}, {}, Nothing, HideAndShow<&EntryWindow::widget>},
    {"window hidden and shown", {}, {}, Nothing, HideAndShow<&EntryWindow::window>},
    {"narrow and wide", {}, {}, Nothing, NarrowAndWiden},
};

QVector<int> StatesToApply(const Entry& entry)
{
    QVector<int> states = TestedStates(entry);
    states.erase(std::remove_if(states.begin(), states.end(), [&](int i) { return bool(entry.states[i].create); }),
                 states.end());
    return states;
}

// One line for each visible interface, with its rectangle relative to the widget.
QStringList AccessibleTree(QWidget* widget)
{
    QStringList lines;
    const QPoint origin = widget->mapToGlobal(QPoint());
    VisitAccessible(QAccessible::queryAccessibleInterface(widget), [&](auto& interface, QObject* owner, auto& path) {
        const auto* part = qobject_cast<QWidget*>(owner);
        if (part && !part->isVisible())
            return;
        QString line;
        QDebug(&line) << owner->metaObject()->className() << path << "role" << interface.role() << "name"
                      << interface.text(QAccessible::Name) << "description" << interface.text(QAccessible::Description)
                      << "value" << interface.text(QAccessible::Value) << "state" << StateBits(interface.state())
                      << interface.rect().translated(-origin);
        lines.append(line);
    });
    return lines;
}

QImage Picture(EntryWindow& scene, qreal pixelRatio)
{
    // Replaces live video, which differs between two pictures.
    for (const auto* stream : scene.window->findChildren<Vx::WebCameraPreviewStream*>())
        static_cast<Vx::UI::VideoPreviewWidget*>(stream->parent())->UpdateView(ColorBarsFrame({160, 120}));
    const QRect area = scene.widget->geometry().adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
    QImage picture((QSizeF(area.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(pixelRatio);
    scene.window->render(&picture, QPoint(), area);
    return picture;
}

QString DifferenceNow(EntryWindow& changed, EntryWindow& made, qreal pixelRatio)
{
    const QStringList tree = AccessibleTree(changed.widget);
    const QStringList expected = AccessibleTree(made.widget);
    for (int i = 0; i < qMax(tree.size(), expected.size()); ++i) {
        if (tree.value(i) != expected.value(i))
            return QStringLiteral("accessible:\n%1\ninstead of\n%2").arg(tree.value(i), expected.value(i));
    }
    if (changed.widget->geometry() != made.widget->geometry())
        return QStringLiteral("different geometry");
    const int difference = Support::LargestDifference(Picture(changed, pixelRatio), Picture(made, pixelRatio));
    return difference == 0 ? QString() : QStringLiteral("pixels differ by up to %1").arg(difference);
}

// Compares two inactive windows until they are alike or animations must have ended. Returns an empty string, or the
// first difference in accessibility, geometry or pixels. `pixelRatio` is the device pixel ratio of the pictures.
QString Difference(EntryWindow& changed, EntryWindow& made, qreal pixelRatio)
{
    QString difference;
    const bool isAlike = QTest::qWaitFor(
        [&] {
            Settle();
            Support::SetActiveWindow(nullptr);
            difference = DifferenceNow(changed, made, pixelRatio);
            return difference.isEmpty();
        },
        LONGEST_ANIMATION_MS);
    return isAlike ? QString() : difference;
}

} // namespace

/// A widget that changes while it is visible equals one that is created that way.
class tst_CatalogueChanges : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QAccessible::setActive(true);
        QApplication::setCursorFlashTime(0);
        initialFont = QApplication::font();
    }

    void changeIsApplied_data() { AddRows(TestedStates, NamesOf(CHANGES)); }

    void changeIsApplied()
    {
        QFETCH(int, variant);
        const Change& change = CHANGES[variant];
        if (change.from.fontStep != change.to.fontStep && EntryOfRow().className == "ZRuntimeStylesheetEditor")
            QSKIP("Qt keeps the font of its sample, which has a style sheet, and the minimum size of its QComboBox");
        Enter(change.from);
        const auto changed = WindowOfRow();
        change.prepare(*changed);
        changed->ShowInactive();
        changed->window->grab();
        Enter(change.to);
        change.change(*changed);
        CompareWithNew(*changed, change.make);
    }

    void pixelRatioChanges_data() { AddRows(); }

    void pixelRatioChanges()
    {
        Enter({});
        const auto changed = WindowOfRow();
        changed->ShowInactive();
        changed->window->grab();
        CompareWithNew(*changed, Nothing, 2);
        CompareWithNew(*changed, Nothing, 1);
    }

    void stateIsAppliedWhileVisible_data() { AddRows(StatesToApply); }

    void stateIsAppliedWhileVisible()
    {
        Enter({});
        EntryWindow changed(EntryOfRow().create);
        changed.ShowInactive();
        changed.window->grab();
        StateOfRow().apply(changed.widget);
        // As Qt documents it, the caller repolishes after a change of a dynamic property in a selector.
        for (const QPointer<QWidget>& part : PartsOf(changed.widget)) {
            part->style()->unpolish(part);
            part->style()->polish(part);
        }
        CompareWithNew(changed);
    }

    void propertyChanges_data() { AddRowsOfProperties(IsOurs); }

    void propertyChanges()
    {
        QFETCH(QByteArray, property);
        ChangeProperty([&](QObject* object, const QMetaProperty&, const QVariant& value) {
            // The application's style sheet sets properties once, before the caller does.
            for (QWidget* widget : QApplication::allWidgets())
                widget->ensurePolished();
            object->setProperty(property, value);
            return true;
        });
    }

    void propertyChangesByStyleSheet_data() { AddRowsOfProperties(IsOurs); }

    void propertyChangesByStyleSheet()
    {
        ChangeProperty([](QObject* object, const QMetaProperty& property, const QVariant& value) {
            auto* widget = qobject_cast<QWidget*>(object);
            const QString line = StyleSheetLine(property, value);
            if (!widget || line.isEmpty())
                return false;
            const QString selector = QString(object->metaObject()->className()).replace("::", "--");
            widget->setStyleSheet(widget->styleSheet() + selector + " { " + line + " }");
            return true;
        });
    }

private:
    static void CompareWithNew(EntryWindow& changed, const std::function<void(EntryWindow&)>& make = Nothing,
                               qreal pixelRatio = 1)
    {
        EntryWindow made(EntryOfRow(), StateOfRow());
        make(made);
        made.ShowInactive();
        const QString difference = Difference(changed, made, pixelRatio);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    /// Changes the property of this row with `set`, which returns false when it cannot.
    void ChangeProperty(const std::function<bool(QObject*, const QMetaProperty&, const QVariant&)>& set)
    {
        QFETCH(QByteArray, property);
        const Entry& entry = EntryOfRow();
        Enter({});
        EntryWindow changed(entry, StateOfRow());
        changed.ShowInactive();
        changed.window->grab();
        QObject* subject = FindObject(changed.widget, entry.className);
        const QMetaProperty meta = subject->metaObject()->property(subject->metaObject()->indexOfProperty(property));
        const QVariant value = OtherValue(meta, ReadProperty(meta, subject));
        if (!value.isValid() || !set(subject, meta, value))
            QSKIP("cannot be set this way");
        CompareWithNew(changed, [&](EntryWindow& made) { set(FindObject(made.widget, entry.className), meta, value); });
    }

    void Enter(const Environment& wanted)
    {
        QApplication::setLayoutDirection(wanted.direction);
        if (wanted.language != now.language) {
            QCoreApplication::removeTranslator(&translator);
            if (!wanted.language.isEmpty()) {
                QVERIFY(translator.load(VX_TRANSLATIONS "/VxUiWidgets_" + wanted.language));
                QCoreApplication::installTranslator(&translator);
            }
        }
        ApplySheet(wanted.sheet);
        if (wanted.fontStep != now.fontStep) {
            QFont font = initialFont;
            font.setPointSize(font.pointSize() + wanted.fontStep);
            QApplication::setFont(font);
        }
        now = wanted;
        Settle();
    }

    QFont initialFont;
    QTranslator translator;
    Environment now{"none yet"};
};

VX_TEST_MAIN(tst_CatalogueChanges)
#include "tst_CatalogueChanges.moc"
