#include <Catalogue/EntryWindow.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Browser/WidgetPage.h>
#include <Gallery/Inspector/ObjectTree.h>
#include <Gallery/Inspector/PropertyPanel.h>
#include <Gallery/Inspector/PropertyValue.h>
#include <Gallery/Inspector/SignalLog.h>
#include <UI/Kit/ZLineEdit.h>
#include <UI/Widgets/ColorButton.h>

#include <Support/TestCase.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QToolButton>

using namespace Zelkor;
using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;

namespace {

bool IsEditedAsBoolNumberOrEnum(const QMetaProperty& property)
{
    return IsOurs(property) && (property.isEnumType() || property.userType() == QMetaType::Bool ||
                                property.userType() == QMetaType::Int || property.userType() == QMetaType::QColor);
}

// Groups create their controls when they expand.
void ExpandGroups(const PropertyPanel& panel)
{
    for (auto* heading : panel.findChildren<QToolButton*>(QRegularExpression("^group:")))
        heading->setChecked(true);
}

QString LogText(const QWidget& page)
{
    return page.findChild<SignalLog*>()->findChild<QPlainTextEdit*>()->toPlainText();
}

} // namespace

class tst_Inspector : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Examples::LoadStyleSheet("dark")->apply(); }

    void styleSheetLineSetsTheEditedValue_data() { AddRowsOfProperties(IsEditedAsBoolNumberOrEnum); }

    void styleSheetLineSetsTheEditedValue()
    {
        QFETCH(QByteArray, property);
        const Entry& entry = EntryOfRow();
        EntryWindow edited(entry, entry.states.first());
        auto* subject = qobject_cast<QWidget*>(FindObject(edited.widget, entry.className));
        if (!subject)
            QSKIP("an effect");
        subject->ensurePolished();
        PropertyPanel panel;
        panel.SetObject(subject, {});
        ExpandGroups(panel);
        auto* control = panel.findChild<QWidget*>("edit:" + property);
        QVERIFY(control);
        if (auto* box = qobject_cast<QCheckBox*>(control))
            box->click();
        else if (auto* combo = qobject_cast<QComboBox*>(control))
            combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
        else if (auto* button = qobject_cast<Vx::ColorButton*>(control))
            button->SetColor(QColor(12, 34, 56, 78));
        else if (control->property("value").isValid())
            control->setProperty("value", control->property("value").toInt() + 1);
        else
            QSKIP("a menu of flags");

        EntryWindow styled(entry, entry.states.first());
        auto* other = qobject_cast<QWidget*>(FindObject(styled.widget, entry.className));
        const QString selector = QString(other->metaObject()->className()).replace("::", "--");
        const QString line = panel.findChild<QLineEdit*>("styleSheetLine")->text();
        other->ensurePolished();
        other->setStyleSheet(other->styleSheet() + selector + " { " + line + " }");
        const QMetaProperty meta = other->metaObject()->property(other->metaObject()->indexOfProperty(property));
        QVERIFY2(AreSame(meta, meta.read(other), meta.read(subject)), qPrintable(line));
    }

    void panelFollowsTheWidgetAndResetsIt()
    {
        Vx::ColorButton button;
        button.ensurePolished();
        PropertyPanel panel;
        panel.SetObject(&button, PropertyValues(button));
        panel.show();
        auto* reset = panel.findChild<QToolButton*>("reset:colorRectBorderNormal");
        const QColor original = button.GetColorRectBorderNormal();
        QVERIFY(!reset->isVisible());
        button.SetColorRectBorderNormal(Qt::blue);
        QTRY_VERIFY(reset->isVisible());
        QCOMPARE(panel.findChild<Vx::ColorButton*>("edit:colorRectBorderNormal")->GetColor(), QColor(Qt::blue));
        reset->click();
        QCOMPARE(button.GetColorRectBorderNormal(), original);
        panel.findChild<QToolButton*>("copyLine")->click();
        QVERIFY(QApplication::clipboard()->text().startsWith("qproperty-colorRectBorderNormal: #"));
    }

    void unfinishedTextIsSetOnItsWidget()
    {
        QLineEdit first;
        QLineEdit second;
        PropertyPanel panel;
        panel.SetObject(&first, {});
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        auto* edit = panel.findChild<ZLineEdit*>("edit:placeholderText");
        edit->setFocus();
        QTRY_VERIFY(edit->hasFocus());
        QTest::keyClicks(edit, "typed");
        panel.SetObject(&second, {});
        QCOMPARE(first.placeholderText(), QString("typed"));
        QCOMPARE(second.placeholderText(), QString());
    }

    void rowsDisappearWithTheirWidget()
    {
        auto edited = std::make_unique<QLineEdit>();
        PropertyPanel panel;
        panel.SetObject(edited.get(), {});
        ExpandGroups(panel);
        connect(edited.get(), &QObject::objectNameChanged, this, [&] { edited.reset(); });
        panel.findChild<ZLineEdit*>("edit:objectName")->setOriginalText("deletes it");
        QVERIFY(!edited);
        QVERIFY(!panel.findChild<QWidget*>("edit:objectName"));
    }

    void objectTreeFollowsTheWidget()
    {
        QWidget widget;
        ObjectTree tree;
        tree.SetObject(&widget);
        auto* child = new QWidget(&widget);
        QTRY_COMPARE(tree.topLevelItem(0)->childCount(), 1);
        child->setObjectName("named");
        QTRY_COMPARE(tree.topLevelItem(0)->child(0)->text(1), QString("named"));
        delete child;
        QTRY_COMPARE(tree.topLevelItem(0)->childCount(), 0);
    }

    void pageInspectsTheClickedCardAndLogsItsSignals()
    {
        WidgetPage page(*FindEntry("ColorButton"));
        page.resize(900, 600);
        page.show();
        const auto cards = page.findChildren<StateCard*>();
        // The last widget is disabled, so that the card receives the click.
        QTest::mouseClick(cards.last()->Widget(), Qt::LeftButton);
        QCOMPARE(page.SelectedState(), cards.size() - 1);
        page.SelectState(1);
        page.findChild<Vx::ColorButton*>("edit:colorRectBorderNormal")->SetColor(Qt::green);
        QCOMPARE(cards[1]->Widget()->property("colorRectBorderNormal").value<QColor>(), QColor(Qt::green));
        QVERIFY(LogText(page).isEmpty());
        static_cast<Vx::ColorButton*>(cards[0]->Widget())->SetColor(Qt::black);
        QVERIFY2(LogText(page).trimmed().endsWith("Opaque   ColorChanged(#ff000000)"), qPrintable(LogText(page)));
    }

    void logKeepsTheLastLines()
    {
        SignalLog log;
        QCheckBox box;
        log.Watch(&box, "QCheckBox", "Box");
        for (int i = 0; i < 600; ++i)
            box.toggle();
        const QPlainTextEdit* lines = log.findChild<QPlainTextEdit*>();
        QCOMPARE(lines->blockCount(), 500);
        QVERIFY(lines->toPlainText().endsWith("Box   stateChanged(0)"));
        log.findChild<QToolButton*>()->click();
        QVERIFY(lines->toPlainText().isEmpty());
    }

    void logIsDeletedBySlotOfAWatchedSignal()
    {
        auto log = std::make_unique<SignalLog>();
        QCheckBox box;
        log->Watch(&box, "QCheckBox", "Box");
        connect(&box, &QCheckBox::stateChanged, this, [&log] { log.reset(); });
        box.click();
        QVERIFY(!log);
        box.click();
    }
};

VX_TEST_MAIN(tst_Inspector)
#include "tst_Inspector.moc"
