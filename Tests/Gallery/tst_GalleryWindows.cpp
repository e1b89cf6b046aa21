#include <Catalogue/Catalogue.h>
#include <Examples/Support/Appearance.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Gallery/Browser/CodePane.h>
#include <Gallery/Browser/GalleryWindow.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Browser/WidgetPage.h>
#include <Gallery/Inspector/ColorField.h>
#include <Gallery/Inspector/Inspector.h>
#include <Gallery/Inspector/ObjectTree.h>
#include <Gallery/Inspector/PropertyPanel.h>
#include <Gallery/Inspector/SignalLog.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/ColorButton.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

#include <memory>

using namespace Zelkor;
using namespace Zelkor::Gallery;

namespace {

// Groups create their controls when they expand.
void ExpandGroups(const PropertyPanel& panel)
{
    for (auto* heading : panel.findChildren<QToolButton*>(QRegularExpression("^group:")))
        heading->setChecked(true);
}

} // namespace

class tst_GalleryWindows : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        Examples::LoadStyleSheet("dark")->apply();
        gallery = std::make_unique<GalleryWindow>(&appearance);
        gallery->show();
        list = gallery->findChild<QListWidget*>("pageList");
    }

    void cleanup()
    {
        gallery.reset();
        TestCase::cleanup();
    }

    void controlsHaveAccessibleNames()
    {
        gallery->OpenPage("ColorButton");
        for (QWidget* widget : gallery->findChildren<QWidget*>()) {
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy()) {
                const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
                QVERIFY2(!name.isEmpty(), widget->metaObject()->className());
            }
        }
    }

    void pagesDoNotScrollSideways_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("start size") << GalleryWindow(&appearance).width();
        QTest::newRow("narrow") << 700;
    }

    void pagesDoNotScrollSideways()
    {
        QFETCH(int, width);
        gallery->resize(width, gallery->height());
        QCOMPARE(gallery->width(), width);
        for (const Catalogue::Entry& entry : Catalogue::Entries()) {
            gallery->OpenPage(entry.className);
            gallery->layout()->activate();
            for (const auto* area : Page()->findChildren<QScrollArea*>())
                QVERIFY2(!area->horizontalScrollBar()->maximum(), qPrintable(entry.className));
        }
    }

    void namesAndEnumeratorsFitAtTheStartWidth()
    {
        for (const Catalogue::Entry& entry : Catalogue::Entries()) {
            gallery->OpenPage(entry.className);
            gallery->layout()->activate();
            for (const QWidget* part : Page()->findChild<PropertyPanel*>()->findChildren<QWidget*>()) {
                if (part->isVisible() && (qobject_cast<const QLabel*>(part) || qobject_cast<const QComboBox*>(part)))
                    QVERIFY2(part->sizeHint().width() <= part->width(), qPrintable(entry.className));
            }
        }
    }

    void searchRanksHits_data()
    {
        QTest::addColumn<QStringList>("hits");
        QTest::newRow("colorb") << QStringList{"By name", "ColorButton", "By property, signal or part",
                                               "VolumeSlider\ncolorBackground"};
        QTest::newRow("meter level") << QStringList{"By description", "VolumeSlider"};
        QTest::newRow("qtreeview") << QStringList{"By description", "QtWidgets"};
        QTest::newRow("countdownind") << QStringList{"By name", "CountdownIndicatorWidget"};
        QTest::newRow("maskanchor") << QStringList{"By property, signal or part", "PixmapWidget\nmaskAnchor"};
        QTest::newRow("#popUpC") << QStringList{"By property, signal or part",
                                                "ButtonWithPopUpContainer\n#popUpContainer"};
        QTest::newRow("no such thing") << QStringList{"Nothing found"};
    }

    void searchRanksHits()
    {
        QFETCH(QStringList, hits);
        QTest::keyClicks(gallery->findChild<QLineEdit*>("pageSearch"), QTest::currentDataTag());
        QCOMPARE(VisiblePages(), hits);
    }

    void searchIsWalkedWithTheKeys()
    {
        QVERIFY(QTest::qWaitForWindowActive(gallery.get()));
        auto* search = gallery->findChild<QLineEdit*>("pageSearch");
        const QStringList pages = VisiblePages();
        QTest::keyClick(gallery.get(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(search->hasFocus());
        QTest::keyClicks(search, "combob");
        QTest::keyClick(search, Qt::Key_Down);
        QVERIFY(list->hasFocus());
        QCOMPARE(list->currentItem()->text(), QString("ClickSoundComboBox"));
        QVERIFY(list->currentItem()->isSelected());
        QVERIFY(Page());
        QTest::keyClick(list, Qt::Key_X);
        QVERIFY(search->hasFocus());
        QCOMPARE(search->text(), QString("combobx"));
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(VisiblePages(), pages);
        QCOMPARE(list->currentItem()->text(), QString("ClickSoundComboBox"));
    }

    void codePaneCopiesTheCodeOfTheSelectedState()
    {
        gallery->OpenPage("VolumeSlider", 2);
        auto* pane = Page()->findChild<CodePane*>();
        pane->findChild<QToolButton*>("copyCode")->click();
        QVERIFY(QApplication::clipboard()->text().endsWith("slider->SetVolumes(1, 1);\n"));
        pane->findChild<QTabBar*>()->setCurrentIndex(1);
        pane->findChild<QToolButton*>("copyCode")->click();
        QVERIFY(QApplication::clipboard()->text().startsWith("<ui version"));
        pane->findChild<QToolButton*>("copyLink")->click();
        QVERIFY(QApplication::clipboard()->text().endsWith("--page VolumeSlider --state 3"));
    }

    void languageChangesWhileAPageIsOpen()
    {
        connect(&appearance, &Examples::Appearance::LanguageChanged, gallery.get(),
                [] { Catalogue::RetranslateEntries(); });
        gallery->OpenPage("ColorButton");
        Page()->SelectState(2);
        const auto leftToRight = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(appearance.SetLanguage("de"));
        QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
        QTRY_COMPARE(Page()->findChildren<StateCard*>().last()->accessibleName(), QString("Deaktiviert"));
        QCOMPARE(Page()->SelectedState(), 2);
        appearance.SetLanguage("en");
        QTRY_COMPARE(Page()->findChildren<StateCard*>().last()->accessibleName(), QString("Disabled"));
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
        QCOMPARE(panel.findChild<ColorField*>("edit:colorRectBorderNormal")->Color(), QColor(Qt::blue));
        reset->click();
        QCOMPARE(button.GetColorRectBorderNormal(), original);
        panel.findChild<QToolButton*>("copyLine")->click();
        QVERIFY(QApplication::clipboard()->text().startsWith("qproperty-colorRectBorderNormal: #"));
    }

    void controlsSetTheProperty()
    {
        Vx::UI::ButtonWithPopUpContainer button;
        PropertyPanel panel;
        panel.SetObject(&button, {});
        ExpandGroups(panel);
        panel.findChild<QCheckBox*>("edit:showPopupOnClick")->click();
        QVERIFY(!button.property("showPopupOnClick").toBool());
        panel.findChild<QSpinBox*>("edit:popupVOffset")->setValue(5);
        QCOMPARE(button.property("popupVOffset").toInt(), 5);
        panel.findChild<QComboBox*>("edit:layoutDirection")->setCurrentIndex(1);
        QCOMPARE(button.property("layoutDirection").toInt(), 1);
        const auto* line = panel.findChild<QLineEdit*>("styleSheetLine");
        QCOMPARE(line->text(), QString("qproperty-layoutDirection: \"LAYOUT_RIGHT_TO_LEFT\";"));
    }

    void pageInspectsTheClickedCardAndLogsItsSignals()
    {
        gallery->OpenPage("ColorButton");
        const auto cards = Page()->findChildren<StateCard*>();
        // The last widget is disabled, so that the card receives the click.
        QTest::mouseClick(cards.last()->Widget(), Qt::LeftButton);
        QCOMPARE(Page()->SelectedState(), cards.size() - 1);
        Page()->SelectState(1);
        auto* field = Page()->findChild<ColorField*>("edit:colorRectBorderNormal");
        field->clear();
        QTest::keyClicks(field, "no colour\r");
        QCOMPARE(field->text(), field->Color().name());
        field->clear();
        QTest::keyClicks(field, "#00ff00\r");
        QCOMPARE(cards[1]->Widget()->property("colorRectBorderNormal").value<QColor>(), QColor(Qt::green));
        const auto* log = Page()->findChild<SignalLog*>()->findChild<QPlainTextEdit*>();
        QCOMPARE(log->toPlainText(), QString());
        static_cast<Vx::ColorButton*>(cards[0]->Widget())->SetColor(Qt::black);
        const QString text = log->toPlainText();
        QVERIFY2(text.trimmed().endsWith("Opaque   ColorChanged(#ff000000)"), qPrintable(text));
    }

    void objectTreeFollowsSizeAndAccessibility()
    {
        gallery->OpenPage("ZCustomSlider");
        auto* slider = static_cast<QSlider*>(Page()->findChild<StateCard*>()->Widget());
        auto* inspector = Page()->findChild<Inspector*>();
        inspector->setCurrentIndex(2);
        const auto* item = inspector->Objects()->topLevelItem(0);
        const auto field = [&](const char* name) { return inspector->findChild<QLineEdit*>(name)->text(); };
        QCOMPARE(field("accessibleRole"), QString("Slider"));
        QCOMPARE(field("accessibleValue").toInt(), slider->value());
        slider->setAccessibleName("Volume");
        slider->setValue(slider->value() + 1);
        slider->setFixedSize(111, 22);
        QTRY_COMPARE(item->text(1), QString::fromUtf8("111 × 22"));
        QCOMPARE(field("accessibleName"), QString("Volume"));
        QCOMPARE(field("accessibleValue").toInt(), slider->value());
    }

    void frameResizesTheWidgetWithinItsLimits()
    {
        gallery->OpenPage("ZCustomSlider");
        gallery->layout()->activate();
        auto* card = Page()->findChild<StateCard*>();
        QWidget* widget = card->Widget();
        widget->setMaximumHeight(60);
        auto* frame = card->findChild<QWidget*>("resizeFrame");
        QTRY_COMPARE(widget->height(), widget->sizeHint().height());
        const QSize original = widget->size();
        const QPoint corner = frame->rect().bottomRight() - QPoint(2, 2);
        const QPoint global = frame->mapToGlobal(corner);
        const auto drag = [&](const QPoint& way) {
            const QPoint place = frame->mapFromGlobal(global + way);
            QMouseEvent move(QEvent::MouseMove, place, place, global + way, Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(frame, &move);
        };
        QTest::mousePress(frame, Qt::LeftButton, {}, corner);
        drag({20, 10});
        QTRY_COMPARE(widget->size(), original + QSize(20, 10));
        drag({-999, 999});
        QTRY_COMPARE(widget->size(), QSize(widget->minimumSizeHint().width(), 60));
        QTest::mouseRelease(frame, Qt::LeftButton);
        QTest::keyClick(frame, Qt::Key_Right);
        QTRY_COMPARE(widget->width(), widget->minimumSizeHint().width() + 1);
        QTest::mouseDClick(frame, Qt::LeftButton, {}, frame->rect().bottomRight() - QPoint(2, 2));
        QTRY_COMPARE(widget->size(), original);
    }

    void forcedStateIsPaintedUntilItIsSwitchedOff_data()
    {
        QTest::addColumn<QString>("page");
        for (const char* state : {"HOVER", "PRESSED", "FOCUS", "DISABLED"}) {
            for (const char* page : {"ColorButton", "ZSlider"})
                QTest::addRow("%s %s", page, state) << page;
        }
        QTest::newRow("ZCustomSlider HOVER") << "ZCustomSlider";
        QTest::newRow("ButtonWithLabels CHECKED") << "ButtonWithLabels";
    }

    void forcedStateIsPaintedUntilItIsSwitchedOff()
    {
        QFETCH(QString, page);
        QVERIFY(QTest::qWaitForWindowActive(gallery.get()));
        gallery->OpenPage(page);
        gallery->layout()->activate();
        QWidget* widget = Page()->findChild<StateCard*>()->Widget();
        if (page == "ButtonWithLabels")
            widget->setProperty("checkable", true);
        const QImage normal = widget->grab().toImage();
        const QString state = QString(QTest::currentDataTag()).section(' ', 1);
        auto* button = Page()->findChild<QToolButton*>("force:" + state);
        button->setFocus();
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(button->parentWidget(), &enter);
        button->click();
        QVERIFY(widget->grab().toImage() != normal);
        const QImage changed = widget->grab().toImage();
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(widget, &leave);
        Page()->findChild<QLineEdit*>("styleSheetLine")->setFocus();
        QCOMPARE(widget->grab().toImage(), changed);
        button->click();
        QCOMPARE(widget->grab().toImage(), normal);
    }

    void returnInACardLeadsToItsTools()
    {
        QVERIFY(QTest::qWaitForWindowActive(gallery.get()));
        gallery->OpenPage("VolumeSlider");
        gallery->layout()->activate();
        auto* card = Page()->findChildren<StateCard*>()[1];
        card->setFocus();
        QTest::keyClick(card, Qt::Key_Return);
        QVERIFY(Page()->findChild<QToolButton*>("force:HOVER")->hasFocus());
        QCOMPARE(Page()->SelectedState(), 1);
    }

    void fieldWithForcedFocusTakesTheFocus()
    {
        QVERIFY(QTest::qWaitForWindowActive(gallery.get()));
        gallery->OpenPage("ZLineEdit");
        gallery->layout()->activate();
        auto* field = Page()->findChild<StateCard*>()->findChild<QLineEdit*>();
        auto* button = Page()->findChild<QToolButton*>("force:FOCUS");
        button->setFocus();
        button->click();
        QTest::mouseClick(field, Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), field);
        button->setFocus();
        QVERIFY(field->hasFocus());
    }

    void forcedStatesKeepTheValue()
    {
        gallery->OpenPage("ZDoubleSlider");
        gallery->layout()->activate();
        const auto* slider = Page()->findChild<StateCard*>()->findChild<QSlider*>();
        const int value = slider->value();
        for (const char* state : {"HOVER", "PRESSED", "HOVER", "PRESSED"}) {
            Page()->findChild<QToolButton*>(QString("force:%1").arg(state))->click();
            QCOMPARE(slider->value(), value);
        }
    }

private:
    WidgetPage* Page() const { return gallery->findChild<WidgetPage*>(); }

    QStringList VisiblePages() const
    {
        QStringList names;
        for (int row = 0; row < list->count(); ++row) {
            if (!list->item(row)->isHidden())
                names.append(list->item(row)->text());
        }
        return names;
    }

    Examples::Appearance appearance{"VxGallery"};
    std::unique_ptr<GalleryWindow> gallery;
    QListWidget* list = nullptr;
};

VX_TEST_MAIN(tst_GalleryWindows)
#include "tst_GalleryWindows.moc"
