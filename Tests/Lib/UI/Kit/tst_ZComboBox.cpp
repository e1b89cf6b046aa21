#include <UI/Kit/AdvancedComboView.h>
#include <UI/Kit/ZComboBox.h>

#include <Support/TestCase.h>

#include <QScreen>
#include <QScrollBar>

#include <memory>

const QString LONG_TEXT = QStringLiteral("An item too long for its combo box");

class tst_ZComboBox : public Support::TestCase
{
    Q_OBJECT

private:
    static void prepare(QComboBox& combo)
    {
        combo.addItems({"Short", LONG_TEXT});
        combo.setCurrentIndex(1);
        combo.resize(120, 30);
    }

private Q_SLOTS:
    void faceLooksLikeThatOfQt_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("style") << QString();
        QTest::newRow("style sheet") << "QComboBox { border: 2px solid red; padding: 5px 11px; color: green }";
    }

    void faceLooksLikeThatOfQt()
    {
        QFETCH(QString, sheet);
        ZComboBox combo;
        QComboBox plain;
        for (QComboBox* box : {static_cast<QComboBox*>(&combo), &plain}) {
            box->setStyleSheet(sheet);
            box->setLayoutDirection(sheet.isEmpty() ? Qt::LeftToRight : Qt::RightToLeft);
            box->setPlaceholderText("Choose");
            prepare(*box);
        }
        const auto looksLikeQt = [&] { return combo.grab().toImage() == plain.grab().toImage(); };
        combo.setEliding(false);
        QVERIFY(looksLikeQt());
        combo.setEliding(true);
        combo.setToolTip("set by the application");
        QVERIFY(!looksLikeQt());
        QCOMPARE(combo.toolTip(), QString());
        // The elided face equals that of an item with the elided text.
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        const QFontMetrics metrics = combo.fontMetrics();
        const int room =
            combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).width();
        plain.setItemText(1, metrics.elidedText(LONG_TEXT, Qt::ElideRight, room));
        QVERIFY(looksLikeQt());
        combo.setDisplayText("Mine");
        plain.setItemText(1, "Mine");
        QVERIFY(looksLikeQt());
        QCOMPARE(combo.currentText(), LONG_TEXT);
        const int width = combo.minimumSizeHint().width() - metrics.horizontalAdvance("Mine");
        combo.setDisplayText(LONG_TEXT);
        QCOMPARE(combo.minimumSizeHint().width(), width + metrics.horizontalAdvance(LONG_TEXT));
        combo.setDisplayText(QString());
        combo.setCurrentIndex(-1);
        plain.setCurrentIndex(-1);
        QVERIFY(looksLikeQt());
    }

    // The change comes from a signal of the old view.
    void changeOfWidePopupReplacesTheOpenView()
    {
        ZComboBox combo;
        prepare(combo);
        combo.setWidePopupEnabled(false);
        combo.show();
        combo.showPopup();
        const QPointer<QAbstractItemView> old = combo.view();
        connect(old->verticalScrollBar(), &QScrollBar::rangeChanged, &combo, [&] { combo.setWidePopupEnabled(true); });
        old->verticalScrollBar()->setRange(0, 9);
        QVERIFY(old);
        QVERIFY(!old->isVisible());
        QVERIFY(combo.view() != old);
        QVERIFY(combo.view()->isVisible());
        QCOMPARE(combo.view()->textElideMode(), Qt::ElideNone);
        QTRY_VERIFY(!old);
    }

    void listLooksLikeThatOfQt_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("menu") << "Fusion" << QString();
        QTest::newRow("list") << "Windows" << QString();
        QTest::newRow("style sheet") << "Fusion"
                                     << "QComboBox { combobox-popup: 0 } QComboBox QAbstractItemView { padding: 3px }"
                                        "QComboBox QAbstractItemView::item { color: blue; min-height: 30px }";
    }

    void listLooksLikeThatOfQt()
    {
        QFETCH(QString, style);
        QFETCH(QString, sheet);
        ZComboBox combo;
        QComboBox plain;
        const auto picture = [&](QComboBox& box) {
            box.setStyleSheet(sheet);
            box.insertSeparator(1);
            box.view()->setTextElideMode(Qt::ElideRight);
            box.show();
            box.showPopup();
            const QImage image = box.view()->grab().toImage();
            box.hidePopup();
            return image;
        };
        prepare(combo);
        prepare(plain);
        combo.setWidePopupEnabled(false);
        QApplication::setStyle(style);
        QCOMPARE(picture(combo), picture(plain));
    }

    void widePopUpStaysOnTheScreen()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        ZComboBox combo;
        prepare(combo);
        combo.show();
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            combo.setLayoutDirection(direction);
            for (const int length : {1, 20}) { // the second one is wider than the screen
                combo.setItemText(1, LONG_TEXT.repeated(length));
                combo.move(screen.center().x(), 100);
                combo.showPopup();
                const QWidget* popUp = combo.view()->window();
                const int items = combo.fontMetrics().horizontalAdvance(combo.itemText(1));
                QTRY_VERIFY(popUp->width() >= std::min(items, screen.width()));
                QTRY_VERIFY(screen.contains(popUp->geometry()));
                const QRect mirrored = QStyle::visualRect(direction, combo.geometry(), popUp->geometry());
                QVERIFY(mirrored.left() == combo.geometry().left() || length > 1);
                combo.hidePopup();
            }
        }
    }

    void popUpWidgetOpensWhereTheScreenHasRoom()
    {
        ZComboBox combo;
        prepare(combo);
        combo.move(40, 100);
        combo.show();
        auto* panel = new QWidget(nullptr, Qt::Popup);
        combo.setPopupWidget(panel);
        const int top = combo.mapToGlobal(QPoint()).y();
        for (const int height : {80, top - 1, top}) {
            panel->setFixedSize(90, height);
            combo.showPopup();
            QVERIFY(panel->isVisible());
            QVERIFY(!combo.view()->isVisible());
            QCOMPARE(panel->pos(), combo.mapToGlobal(QPoint(0, height < top ? -height : combo.height())));
            combo.hidePopup();
            QVERIFY(!panel->isVisible());
        }
        delete panel;
        combo.showPopup();
        QVERIFY(combo.view()->isVisible());
    }

    void itemsAreLaidOutAgainLater()
    {
        auto combo = std::make_unique<ZComboBox>();
        prepare(*combo);
        auto* view = static_cast<QListView*>(combo->view());
        QCoreApplication::processEvents();
        view->setFlow(QListView::LeftToRight);
        view->setFont(QFont(view->font().family(), 30));
        QCOMPARE(view->flow(), QListView::LeftToRight);
        QTRY_COMPARE(view->flow(), QListView::TopToBottom);
        // Views and combo box may be destroyed before that, also an open view that was replaced.
        view->setFont(QFont());
        combo->showPopup();
        const QPointer<QAbstractItemView> old = combo->view();
        combo->setWidePopupEnabled(false);
        combo->view()->setFont(QFont(combo->font().family(), 20));
        combo.reset();
        QVERIFY(!old);
        QCoreApplication::processEvents(); // without a warning
    }
};

VX_TEST_MAIN(tst_ZComboBox)
#include "tst_ZComboBox.moc"
