#include <UI/Widgets/CustomTabWidget.h>
#include <UI/Widgets/HorizontalTabBar.h>

#include <Support/Input.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QStyle>
#include <QTemporaryDir>

using Zelkor::Vx::CustomTabWidget;
using Zelkor::Vx::HorizontalTabBar;

namespace {

// Tabs are 100 by 40, without a look of their own.
const char* const SHEET = "QTabBar::tab { background: white; width: 100px; height: 40px }"
                          "QTabBar { outline: none; qproperty-iconSize: 10px 10px; qproperty-xPosTabIcon: 2;"
                          "  qproperty-yPosTabIcon: 4; qproperty-paddingLeft: 20; qproperty-paddingRight: 20;"
                          "  qproperty-normalTextColor: blue; qproperty-selectedTextColor: red;"
                          "  qproperty-hoverTextColor: lime }";

// Where in `area` something is of about this colour.
QRect Where(QWidget& widget, const QColor& color, const QRect& area)
{
    const QImage image = Support::Render(widget, Qt::white).copy(area);
    const QRect ink = Support::InkOf(image, [&](const QColor& pixel) {
        const QPoint difference(pixel.red() - color.red(), pixel.blue() - color.blue());
        return qAbs(pixel.green() - color.green()) + difference.manhattanLength() < 200;
    });
    return ink.translated(area.topLeft());
}

} // namespace

class tst_HorizontalTabBar : public Support::TestCase
{
    Q_OBJECT

    QTemporaryDir folder;

    QString File(const QString& color)
    {
        QPixmap pixmap(10, 10);
        pixmap.fill(QColor(color));
        pixmap.save(folder.filePath(color + ".png"));
        return folder.filePath(color + ".png");
    }

private Q_SLOTS:
    void iconsFollowPositionAndSelection()
    {
        HorizontalTabBar bar(nullptr);
        const QString normal = File("lime") + ";" + folder.filePath("no.svg") + ";" + File("magenta") + ";";
        bar.SetPathsNormalIcons(normal);
        bar.SetPathsSelectedIcons(File("cyan"));
        const auto icons = [&] {
            QString all;
            for (int i = 0; i < bar.count(); ++i) {
                const QImage icon = bar.tabIcon(i).pixmap(10, 10).toImage();
                all += icon.isNull() ? "-" : icon.pixelColor(5, 5).name() == "#00ffff" ? "s" : QString::number(i);
            }
            return all;
        };
        for (const char* text : {"a", "b", "c"})
            bar.addTab(text);
        QCOMPARE(icons(), "s-2");
        bar.setCurrentIndex(2); // beyond the list
        QCOMPARE(icons(), "0-2");
        for (const char* color : {"lime", "magenta", "cyan"}) // each was read, and is not read again
            QVERIFY(QFile::remove(folder.filePath(QString(color) + ".png")));
        bar.setCurrentIndex(0);
        QCOMPARE(icons(), "s-2");
        bar.moveTab(2, 1);
        QCOMPARE(icons(), "s-2");
        bar.insertTab(0, "d"); // the second one is selected now, and keeps its icon
        QCOMPARE(icons(), "0s2-");
        bar.removeTab(0);
        QCOMPARE(icons(), "s-2");
        bar.SetPathsNormalIcons(normal); // reads anew
        QCOMPARE(icons(), "---");
    }

    void textAndIconHaveTheirPlace()
    {
        for (const auto direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            InRow(direction == Qt::RightToLeft ? "right to left" : "left to right");
            CustomTabWidget tabs(nullptr);
            auto& bar = *qobject_cast<HorizontalTabBar*>(tabs.tabBar());
            tabs.tabBar()->setStyleSheet(SHEET);
            QApplication::setLayoutDirection(direction);
            for (const char* text : {"ll", "ll", "lllllllllllllllllllllllllllll"})
                tabs.addTab(new QWidget, text);
            tabs.setTabEnabled(1, false);
            bar.SetPathsSelectedIcons(File("magenta"));
            tabs.resize(400, 100);
            tabs.show();
            // In pixels from the leading edge of the tab.
            const QRect whole(0, 0, 100, 40);
            const auto where = [&](const QColor& color, int index, const QRect& part) {
                const QRect tab = bar.tabRect(index);
                const QRect area = QStyle::visualRect(direction, tab, part.translated(tab.topLeft()));
                return QStyle::visualRect(direction, tab, Where(bar, color, area)).translated(-tab.topLeft());
            };
            const auto hover = [&](int index) {
                QHoverEvent event(QEvent::HoverMove, bar.tabRect(index).center(), QPoint());
                QApplication::sendEvent(&bar, &event);
            };
            hover(0);
            QCOMPARE(where(Qt::magenta, 0, whole), QRect(2, 4, 10, 10));
            const QRect selected = where(Qt::red, 0, QRect(0, 0, 100, 22));
            const QRect disabled = where(Qt::blue, 1, QRect(0, 0, 100, 22));
            QVERIFY(selected.left() >= 20 && selected.left() < 24 && selected.top() > 10);
            QVERIFY(qAbs(selected.width() - disabled.width()) <= 2);
            QVERIFY(where(Qt::blue, 0, whole).isNull() && where(Qt::green, 0, whole).isNull());
            // A text too long fills its place but for a part of a letter; elided, this one ends at the right in dots.
            hover(2);
            const QRect end = QStyle::visualRect(direction, whole, QRect(70, 0, 10, 22));
            const int last = where(Qt::green, 2, whole).right();
            QVERIFY(last >= 76 && last <= 79);
            QVERIFY(!where(Qt::green, 2, end).isNull());
            bar.setElideMode(Qt::ElideRight);
            QVERIFY(!where(Qt::green, 2, whole).isNull() && where(Qt::green, 2, end).isNull());
            bar.SetAlignText(Qt::AlignRight | Qt::AlignTop);
            QVERIFY(where(Qt::red, 0, whole).right() >= 76 && where(Qt::red, 0, whole).top() < selected.top());
        }
    }

    void hoverColorIsForEnabledTabs()
    {
        HorizontalTabBar bar(nullptr);
        for (const char* text : {"a", "b", "c"})
            bar.addTab(text);
        bar.setTabEnabled(2, false);
        bar.SetHoverTextColor(Qt::blue);
        bar.SetNormalTextColor(Qt::red);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QTest::mouseMove(bar.windowHandle(), bar.tabRect(1).center());
        QTRY_VERIFY(!Where(bar, Qt::blue, bar.tabRect(1)).isNull());
        QTest::mouseMove(bar.windowHandle(), bar.tabRect(2).center());
        QTRY_VERIFY(Where(bar, Qt::blue, bar.rect()).isNull());
        QVERIFY(!Where(bar, Qt::red, bar.tabRect(2)).isNull());
    }

    // QTabBar makes no room for an ampersand, which it takes for the mark of a mnemonic.
    void ampersandIsShown_data()
    {
        QTest::addColumn<int>("alignment");
        for (const int alignment : {int(Qt::AlignLeft), int(Qt::AlignHCenter), int(Qt::AlignRight)})
            QTest::addRow("alignment %d", alignment) << alignment;
    }

    void ampersandIsShown()
    {
        QFETCH(int, alignment);
        HorizontalTabBar bar(nullptr);
        bar.setElideMode(Qt::ElideRight);
        bar.SetAlignText(Qt::Alignment(alignment) | Qt::AlignVCenter);
        bar.addTab("H&M");
        const QString sheet = "QTabBar::tab { background: white; padding: 0px 14px; %1 }"
                              "QTabBar { outline: none; qproperty-paddingLeft: 14; qproperty-paddingRight: 14 }";
        const auto inkWidth = [&](const char* tabWidth) {
            bar.setStyleSheet(sheet.arg(tabWidth));
            bar.resize(bar.sizeHint());
            return Where(bar, Qt::black, bar.rect()).width();
        };
        QCOMPARE(inkWidth(""), inkWidth("width: 100px"));
        const int shown = inkWidth("");
        bar.setTabText(0, "HM");
        QVERIFY(shown > inkWidth("") + 5);
    }

    void verticalTextIsTurnedWhereItDoesNotFit()
    {
        for (const auto shape : {QTabBar::RoundedWest, QTabBar::RoundedEast}) {
            HorizontalTabBar bar(nullptr);
            bar.setShape(shape);
            bar.addTab("A text");
            bar.resize(bar.sizeHint());
            const QRect turned = Where(bar, Qt::black, bar.rect());
            QVERIFY(turned.height() > 2 * turned.width());
            bar.setStyleSheet("QTabBar::tab { width: 100px; height: 30px; background: white }");
            bar.resize(bar.sizeHint());
            const QRect level = Where(bar, Qt::black, bar.rect());
            QVERIFY(level.width() > 2 * level.height());
        }
    }

    void draggedTabIsPaintedAsTheOthers()
    {
        HorizontalTabBar bar(nullptr);
        bar.setStyleSheet(SHEET);
        bar.setMovable(true);
        for (const char* text : {"a", "b", "c"})
            bar.addTab(text);
        bar.resize(300, 40);
        bar.show();
        const QRect before = Where(bar, Qt::red, bar.rect());
        for (const int start : {0, 100}) {
            const QPoint from(start + 50, 20);
            QTest::mousePress(&bar, Qt::LeftButton, {}, from);
            for (const int distance : {20, 30, 70}) {
                Support::MoveMouse(&bar, from + QPoint(distance, 9));
                QCOMPARE(Where(bar, Qt::red, bar.rect()), before.translated(start + distance, 0));
            }
            QTest::mouseRelease(&bar, Qt::LeftButton, {}, from + QPoint(70, 9));
            QCOMPARE(Where(bar, Qt::red, bar.rect()), before.translated(start + 100, 0));
        }
    }
};

VX_TEST_MAIN(tst_HorizontalTabBar)
#include "tst_HorizontalTabBar.moc"
