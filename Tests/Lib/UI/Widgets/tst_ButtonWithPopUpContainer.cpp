#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QBoxLayout>
#include <QFrame>
#include <QSignalSpy>
#include <QTimer>

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace {

QWidget* PopUpOf(const ButtonWithPopUpContainer& button)
{
    return button.findChild<QWidget*>("popUpWindow");
}

} // namespace

class tst_ButtonWithPopUpContainer : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesInTheirOrderAndByStyleSheet()
    {
        const QMetaObject& meta = ButtonWithPopUpContainer::staticMetaObject;
        const QVector<QPair<const char*, int>> expected{{"layoutDirection", 3},      {"preferredPopupDirection", 5},
                                                        {"preferredPopupAnchor", 2}, {"popupCanOverlapButton", 0},
                                                        {"showPopupOnClick", 0},     {"popupHOffset", -3},
                                                        {"popupVOffset", 8}};
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), expected.size());
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        ButtonWithPopUpContainer button;
        button.setStyleSheet("QToolButton { qproperty-layoutDirection: LAYOUT_BOTTOM_TO_TOP;"
                             " qproperty-preferredPopupDirection: DIRECTION_UP_LEFT;"
                             " qproperty-preferredPopupAnchor: ANCHOR_TOP_RIGHT;"
                             " qproperty-popupCanOverlapButton: false; qproperty-showPopupOnClick: false;"
                             " qproperty-popupHOffset: -3; qproperty-popupVOffset: 8 }");
        button.ensurePolished();
        for (int i = 0; i < expected.size(); ++i) {
            const QMetaProperty property = meta.property(meta.propertyOffset() + i);
            QCOMPARE(property.name(), expected[i].first);
            QCOMPARE(property.read(&button).toInt(), expected[i].second);
        }
    }

    void widgetsComeAndGo()
    {
        Support::LogCapture log;
        ButtonWithPopUpContainer button;
        QCOMPARE(button.WidgetsCount(), 0);
        QCOMPARE(button.GetLayoutDirection(), ButtonWithPopUpContainer::LAYOUT_TOP_TO_BOTTOM);
        QPointer<QWidget> first = new QWidget;
        QPointer<QWidget> second = new QWidget;
        QPointer<QWidget> third = new QWidget;
        button.AppendWidget(second);
        button.InsertWidget(first, 0);
        button.InsertWidget(third, 99);
        QCOMPARE(button.GetWidget(0), first.data());
        QCOMPARE(button.GetWidget(2), third.data());
        QCOMPARE(first->parentWidget()->objectName(), QString("popUpContainer"));

        // Appended again, a widget moves to the end.
        button.AppendWidget(first);
        QCOMPARE(button.WidgetsCount(), 3);
        QCOMPARE(button.GetWidget(2), first.data());

        button.RemoveWidget(0);
        QCOMPARE(button.WidgetsCount(), 2);
        QVERIFY(second);
        QTRY_VERIFY(!second);
        QCOMPARE(log.Lines(), QStringList());
        third->deleteLater();
        QTRY_COMPARE(button.WidgetsCount(), 1);
    }

    void badCallsAreLogged()
    {
        Support::LogCapture log;
        ButtonWithPopUpContainer button;
        const QString prefix(
            "E Lib/UI/Widgets/ButtonWithPopUpContainer:%1 Zelkor::Vx::UI::ButtonWithPopUpContainer::%2");
        button.AppendWidget(nullptr);
        QCOMPARE(log.Take(), QStringList(prefix.arg(273).arg("AppendWidget: widget is NULL")));
        button.InsertWidget(nullptr, 2);
        QCOMPARE(log.Take(), QStringList(prefix.arg(261).arg("InsertWidget: widget is NULL")));
        QVERIFY(!button.GetWidget(-1));
        QCOMPARE(log.Take(), QStringList(prefix.arg(304).arg("GetWidget: item is NULL")));
        button.RemoveWidget(button.WidgetsCount());
        QCOMPARE(log.Take(), QStringList({prefix.arg(304).arg("GetWidget: item is NULL"),
                                          prefix.arg(290).arg("RemoveWidget: widget is NULL")}));
        button.SetLayoutDirection(ButtonWithPopUpContainer::LayoutDirection(9));
        QCOMPARE(button.GetLayoutDirection(), ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT);
    }

    void checkedMirrorsThePopUp()
    {
        QWidget window;
        auto* button = new ButtonWithPopUpContainer(&window);
        auto* content = new QWidget;
        content->setFixedSize(120, 70);
        button->AppendWidget(content);
        window.show();
        QWidget* popUp = PopUpOf(*button);
        QVERIFY(button->isCheckable() && !button->isChecked() && !popUp->isVisible());

        QSignalSpy toggled(button, &QAbstractButton::toggled);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(button->isChecked() && popUp->isVisible());
        QCOMPARE(toggled.size(), 1);
        QCOMPARE(popUp->size(), QSize(120, 70));
        QCOMPARE(popUp->pos(), button->mapToGlobal(QPoint(0, button->height())));
        QVERIFY(!button->testAttribute(Qt::WA_UnderMouse));

        QTest::keyClick(popUp, Qt::Key_Escape);
        QVERIFY(!button->isChecked() && !popUp->isVisible());

        // Content and offsets of the moment count each time it opens.
        content->setFixedSize(60, 40);
        button->SetPopupVOffset(6);
        button->ShowPopup();
        QCOMPARE(popUp->size(), QSize(60, 40));
        QCOMPARE(popUp->pos(), button->mapToGlobal(QPoint(0, button->height() + 6)));
        window.hide();
        QVERIFY(!button->isChecked() && !popUp->isVisible());
    }

    void clickCanBeLeftToTheApplication()
    {
        ButtonWithPopUpContainer button;
        button.setLayoutDirection(Qt::RightToLeft);
        button.SetShowPopupOnClick(false);
        button.show();
        button.click();
        QVERIFY(!button.isChecked() && !PopUpOf(button)->isVisible());
        connect(&button, &QAbstractButton::clicked, &button, &ButtonWithPopUpContainer::ShowPopup);
        button.click();
        QVERIFY(button.isChecked() && PopUpOf(button)->isVisible());
        // A window of its own, it takes the button's direction all the same.
        QCOMPARE(PopUpOf(button)->layoutDirection(), Qt::RightToLeft);
    }

    void destroyedWhileOpen()
    {
        for (const bool later : {false, true}) {
            QWidget window;
            QPointer<ButtonWithPopUpContainer> button = new ButtonWithPopUpContainer(&window);
            const QPointer<QWidget> popUp = PopUpOf(*button);
            if (later)
                connect(button, &QAbstractButton::toggled, button, &QObject::deleteLater);
            window.show();
            button->ShowPopup();
            QVERIFY(popUp->isVisible());
            if (!later)
                delete button;
            QTRY_VERIFY(!button && !popUp);
            QVERIFY(!QApplication::activePopupWidget());
        }
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpContainer)
#include "tst_ButtonWithPopUpContainer.moc"
