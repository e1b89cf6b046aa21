#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Browser/WidgetPage.h>
#include <Gallery/Inspector/Inspector.h>
#include <Gallery/Inspector/ObjectTree.h>
#include <Gallery/Inspector/PropertyPanel.h>
#include <Gallery/Inspector/PropertyValue.h>
#include <Gallery/Inspector/SignalLog.h>
#include <Gallery/Inspector/StyleSheetLine.h>
#include <UI/Kit/ZLineEdit.h>
#include <UI/Widgets/ColorButton.h>

#include <Support/TestCase.h>

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidgetItemIterator>

#include <memory>

using namespace Zelkor;
using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;
using Zelkor::Examples::LoadStyleSheet;

namespace {

/// Has what means something in a style sheet, and is one.
const QString TEXT = QString::fromUtf8("spacing: 5; /* \"ä\\b\" */");

/// A widget of an entry in a window that is not shown, with the object that the entry is about.
struct Subject
{
    explicit Subject(const Entry& entry)
        : widget(CreateInState(entry, entry.states.first(), &window)), object(FindObject(widget, entry.className))
    {
        widget->ensurePolished();
    }

    QWidget window;
    QWidget* widget;
    QObject* object;
};

/// To a value far off, for a property that takes not every number: a time, whose box has whole numbers without end.
void Change(QAbstractSpinBox* box)
{
    const double number = box->property("value").toDouble();
    const int up = box->property("decimals") == QVariant(0) ? 1000 : 1;
    box->setProperty("value", number > 1 ? number / 2 : number + up);
}

/// Enters another value as a person would, with the control's own means.
void Enter(QWidget* control, const QString& picture)
{
    if (auto* box = qobject_cast<QCheckBox*>(control)) {
        box->click();
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
    } else if (auto* button = qobject_cast<Vx::ColorButton*>(control)) {
        button->SetColor(QColor(12, 34, 56, 78));
    } else if (auto* flags = qobject_cast<QToolButton*>(control)) {
        flags->menu()->actions().last()->trigger();
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(control)) {
        lines->setPlainText("a \"line\"");
        QFocusEvent leaving(QEvent::FocusOut);
        QApplication::sendEvent(lines, &leaving);
    } else if (auto* edit = qobject_cast<ZLineEdit*>(control)) {
        edit->setOriginalText(TEXT);
    } else if (auto* time = qobject_cast<QTimeEdit*>(control)) {
        time->setTime(QTime(0, 0, 1, 250));
    } else if (auto* spin = qobject_cast<QAbstractSpinBox*>(control)) {
        Change(spin);
    } else if (auto* path = control->findChild<ZLineEdit*>()) {
        path->setOriginalText(picture);
    } else {
        for (auto* part : control->findChildren<QAbstractSpinBox*>())
            Change(part);
    }
}

void UnfoldAll(const PropertyPanel& panel)
{
    for (auto* heading : panel.findChildren<QToolButton*>(QRegularExpression("^group:")))
        heading->setChecked(true);
}

bool IsEdited(const QMetaProperty& property)
{
    static const QSet<int> TYPES = {QMetaType::Bool,    QMetaType::Int,         QMetaType::UInt,   QMetaType::LongLong,
                                    QMetaType::Double,  QMetaType::QColor,      QMetaType::QPoint, QMetaType::QImage,
                                    QMetaType::QString, QMetaType::QStringList, QMetaType::QRect,  QMetaType::QSize,
                                    QMetaType::QPixmap, QMetaType::QTime,       QMetaType::QPointF};
    return property.isEnumType() || TYPES.contains(property.userType());
}

/// The value that a fresh widget has with this line after those of its own style sheet.
QVariant StyledValue(const Entry& entry, const QMetaProperty& property, const QString& line)
{
    Subject fresh(entry);
    auto* widget = qobject_cast<QWidget*>(fresh.object);
    const QString selector = QString(widget->metaObject()->className()).replace("::", "--");
    widget->setStyleSheet(widget->styleSheet() + selector + " { " + line + " }");
    return property.read(widget);
}

/// Whether the object, as it is now, can be anything else than what the property says.
bool TakesAnother(const QMetaProperty& property, const QObject& object)
{
    const QByteArray name = property.name();
    const auto* widget = qobject_cast<const QWidget*>(&object);
    if (name == "visible")
        return widget->window()->isVisible();
    if (name == "windowOpacity")
        return widget->isWindow();
    if (name == "size")
        return widget->minimumSize() != widget->size();
    if (name == "checked")
        return object.property("checkable").toBool();
    if (name == "currentText")
        return object.property("editable").toBool();
    // A row has no distance between rows.
    if (name == "layoutHSpacing" || name == "layoutVSpacing")
        return property.read(&object) != -1;
    // Times are read from left to right, and have no day.
    return !object.inherits("ZTimeEdit") || (name != "layoutDirection" && name != "currentSection");
}

} // namespace

class tst_Inspector : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        LoadStyleSheet("dark")->apply();
        QImage image(3, 2, QImage::Format_ARGB32);
        image.fill(Qt::red);
        picture = folder.filePath("a picture.png");
        QVERIFY(image.save(picture));
    }

    void everyProperty_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries())
            QTest::newRow(qPrintable(entry.className)) << entry.className;
    }

    void everyProperty()
    {
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className);
        Subject subject(entry);
        PropertyPanel panel;
        panel.SetObject(subject.object, {});
        UnfoldAll(panel);
        const auto* line = panel.findChild<QLineEdit*>("styleSheetLine");
        const QMetaObject* meta = subject.object->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (!property.isWritable() || meta->indexOfProperty(property.name()) != i)
                continue;
            InRow(property.name());
            auto* control = panel.findChild<QWidget*>(QString("edit:") + property.name());
            QCOMPARE(control != nullptr, IsEdited(property));
            if (!control) {
                QVERIFY(panel.findChild<QWidget*>(QString("value:") + property.name())->toolTip().contains("only"));
                continue;
            }
            const QVariant before = ReadProperty(property, subject.object);
            const bool takesAnother = TakesAnother(property, *subject.object);
            Enter(control, picture);
            const QVariant after = ReadProperty(property, subject.object);
            QCOMPARE(!AreSame(property, before, after), takesAnother);
            const bool isOurs = *property.enclosingMetaObject()->className() != 'Q';
            QVERIFY(!line->text().isEmpty() || !isOurs || !subject.object->isWidgetType());
            if (!line->text().isEmpty()) {
                const QVariant styled = StyledValue(entry, property, line->text());
                QVERIFY2(AreSame(property, styled, after), qPrintable(line->text()));
            }
            property.write(subject.object, before);
            panel.Refresh();
        }
    }

    // That the lines do what they say, the test above shows.
    void linesOfValues()
    {
        const auto lineOf = [](const char* name, const QVariant& value) {
            const QMetaObject& meta = Vx::ColorButton::staticMetaObject;
            return StyleSheetLine(meta.property(meta.indexOfProperty(name)), value);
        };
        QCOMPARE(lineOf("iconSize", QSize(3, -4)), QString("qproperty-iconSize: 3px -4px;"));
        QCOMPARE(lineOf("colorRect", QRect(-1, 2, 3, 4)), QString("qproperty-colorRect: rect(-1 2 3 4);"));
        QCOMPARE(lineOf("inputMethodHints", int(Qt::ImhDate | Qt::ImhTime)),
                 QString("qproperty-inputMethodHints: \"ImhDate|ImhTime\";"));
        QCOMPARE(lineOf("mouseTracking", true) + lineOf("pos", QPoint(1, 2)) + lineOf("locale", QLocale()), QString());
    }

    void marksWhatIsNotTheDefaultAndGoesBack()
    {
        Vx::ColorButton button;
        // The style sheet has had its say.
        button.ensurePolished();
        PropertyPanel panel;
        panel.SetObject(&button, PropertyValues(button));
        panel.show();
        auto* color = panel.findChild<Vx::ColorButton*>("edit:colorRectBorderNormal");
        auto* reset = panel.findChild<QToolButton*>("reset:colorRectBorderNormal");
        const QColor original = button.GetColorRectBorderNormal();
        QVERIFY(!reset->isVisible());
        // The panel follows the widget without being told.
        button.SetColorRectBorderNormal(Qt::blue);
        QTRY_VERIFY(reset->isVisible());
        QCOMPARE(color->GetColor(), QColor(Qt::blue));
        reset->click();
        QCOMPARE(button.GetColorRectBorderNormal(), original);
        QVERIFY(!reset->isVisible());
        auto* line = panel.findChild<QLineEdit*>("styleSheetLine");
        panel.findChild<QToolButton*>("copyLine")->click();
        QCOMPARE(QApplication::clipboard()->text(), line->text());
        QVERIFY(line->text().startsWith("qproperty-colorRectBorderNormal: #"));
    }

    void textInWorkGoesToTheWidgetItWasTypedFor()
    {
        auto first = std::make_unique<QLineEdit>();
        QLineEdit second;
        PropertyPanel panel;
        panel.SetObject(first.get(), {});
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        auto* edit = panel.findChild<ZLineEdit*>("edit:placeholderText");
        edit->setFocus();
        QTRY_VERIFY(edit->hasFocus());
        QTest::keyClicks(edit, "typed");
        panel.SetObject(&second, {});
        QCOMPARE(first->placeholderText(), QString("typed"));
        QCOMPARE(second.placeholderText(), QString());

        // A widget that goes takes its rows along, also while one of them writes.
        panel.SetObject(first.get(), {});
        UnfoldAll(panel);
        edit = panel.findChild<ZLineEdit*>("edit:objectName");
        connect(first.get(), &QObject::objectNameChanged, this, [&] { first.reset(); });
        edit->setOriginalText("the end");
        QVERIFY(!first && !panel.findChild<QWidget*>("edit:objectName"));
    }

    void objectTreeFollows()
    {
        QWidget widget;
        ObjectTree tree;
        tree.SetObject(&widget);
        const auto texts = [&] {
            QStringList list;
            for (QTreeWidgetItemIterator it(&tree); *it; ++it)
                list.append((*it)->text(0) + ' ' + (*it)->text(1));
            return list;
        };
        auto* inner = new QWidget(&widget);
        auto* deep = new QTimer(inner);
        QTRY_COMPARE(texts(), QStringList({"QWidget ", "QWidget ", "QTimer "}));
        tree.topLevelItem(0)->child(0)->setExpanded(false);
        deep->setObjectName("deep");
        QTRY_COMPARE(texts().last(), QString("QTimer deep"));
        QVERIFY(!tree.topLevelItem(0)->child(0)->isExpanded());
        delete inner;
        QTRY_COMPARE(texts(), QStringList("QWidget "));
    }

    void pageInspectsTheCardThatIsUsed()
    {
        WidgetPage page(*FindEntry("ColorButton"));
        page.resize(900, 600);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QVERIFY(page.IsInspectorVisible());
        QCOMPARE(page.SelectedState(), 0);
        const auto cards = page.findChildren<StateCard*>();
        // The last widget is disabled and takes no press itself.
        QTest::mouseClick(cards.last()->Widget(), Qt::LeftButton);
        QCOMPARE(page.SelectedState(), cards.size() - 1);
        cards[1]->Widget()->setFocus();
        QTRY_COMPARE(page.SelectedState(), 1);
        page.findChild<Vx::ColorButton*>("edit:colorRectBorderNormal")->SetColor(Qt::green);
        QCOMPARE(cards[1]->Widget()->property("colorRectBorderNormal").value<QColor>(), QColor(Qt::green));
        QCOMPARE(page.findChild<ObjectTree*>()->topLevelItemCount(), 1);

        page.SetWidgetsEnabled(false);
        QVERIFY(!cards[1]->Widget()->isEnabled());
        page.SetWidgetsEnabled(true);
        QVERIFY(cards[1]->Widget()->isEnabled() && !cards.last()->Widget()->isEnabled());
        page.resize(400, 600);
        QVERIFY(!page.IsInspectorVisible());
        page.SetInspectorVisible(true);
        page.resize(900, 600);
        QVERIFY(page.IsInspectorVisible());
    }

private:
    QTemporaryDir folder;
    QString picture;
};

VX_TEST_MAIN(tst_Inspector)
#include "tst_Inspector.moc"
