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

// Plain tabs of 100 x 40 pixels.
const char* const SHEET = "QTabBar::tab { background: white; width: 100px; height: 40px }"
                          "QTabBar { outline: none; qproperty-iconSize: 10px 10px; qproperty-xPosTabIcon: 2;"
                          "  qproperty-yPosTabIcon: 4; qproperty-paddingLeft: 20; qproperty-paddingRight: 20;"
                          "  qproperty-normalTextColor: blue; qproperty-selectedTextColor: red }";

// Returns the bounding rectangle of pixels similar to `color`.
QRect InkOf(QWidget& widget, const QColor& color, const QRect& area)
{
    const auto isInk = [&](const QColor& pixel) {
        const int difference = qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green());
        return difference + qAbs(pixel.blue() - color.blue()) < 200;
    };
    return Support::InkOf(Support::Render(widget, Qt::white).copy(area), isInk).translated(area.topLeft());
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

    static void AddTabs(QTabBar& bar)
    {
        for (const char* text : {"a", "b", "c"})
            bar.addTab(text);
        bar.setStyleSheet(SHEET);
        bar.resize(300, 40);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
    }

private Q_SLOTS:
    void iconsFollowPositionAndSelection()
    {
        HorizontalTabBar bar(nullptr);
        bar.SetPathsNormalIcons(File("lime") + ";" + folder.filePath("no.svg") + ";" + File("magenta") + ";");
        bar.SetPathsSelectedIcons(File("cyan"));
        const auto icons = [&] {
            QStringList colors;
            for (int i = 0; i < bar.count(); ++i) {
                const QImage icon = bar.tabIcon(i).pixmap(10, 10).toImage();
                colors += icon.isNull() ? "none" : icon.pixelColor(5, 5).name();
            }
            return colors.join(' ');
        };
        AddTabs(bar);
        QCOMPARE(icons(), QString("#00ffff none #ff00ff"));
        bar.moveTab(2, 1); // icons belong to positions
        QCOMPARE(icons(), QString("#00ffff none #ff00ff"));
        bar.setCurrentIndex(2); // past the end of the list
        QCOMPARE(icons(), QString("#00ff00 none #ff00ff"));
    }

    void textAndIconArePlaced_data() { Support::AddDirectionRows(); }

    void textAndIconArePlaced()
    {
        QFETCH(Qt::LayoutDirection, direction);
        CustomTabWidget tabs(nullptr);
        auto& bar = *qobject_cast<HorizontalTabBar*>(tabs.tabBar());
        bar.setStyleSheet(SHEET);
        tabs.setLayoutDirection(direction);
        for (const char* text : {"ll", "ll", "lllllllllllllllllllllllllllll"})
            tabs.addTab(new QWidget, text);
        bar.SetPathsSelectedIcons(File("magenta"));
        tabs.resize(400, 100);
        tabs.show();
        // In pixels from the leading edge of the tab.
        const auto inkOf = [&](const QColor& color, int index) {
            const QRect tab = bar.tabRect(index);
            return QStyle::visualRect(direction, tab, InkOf(bar, color, tab)).translated(-tab.topLeft());
        };
        QCOMPARE(inkOf(Qt::magenta, 0), QRect(2, 4, 10, 10));
        const QRect selected = inkOf(Qt::red, 0);
        QVERIFY(selected.left() >= 20);
        QVERIFY(selected.left() < 24);
        QVERIFY(selected.top() > 10);
        QCOMPARE(inkOf(Qt::blue, 1).width(), selected.width());
        // Text without an ellipsis fills its area up to a part of a letter.
        QVERIFY(inkOf(Qt::blue, 2).right() >= 76);
        QVERIFY(inkOf(Qt::blue, 2).right() <= 79);
        bar.SetAlignText(Qt::AlignRight | Qt::AlignTop);
        QVERIFY(inkOf(Qt::red, 0).right() >= 76);
        QVERIFY(inkOf(Qt::red, 0).top() < selected.top());
    }

    void draggedTabIsPaintedLikeTheOthers()
    {
        HorizontalTabBar bar(nullptr);
        bar.setMovable(true);
        AddTabs(bar);
        const QRect before = InkOf(bar, Qt::red, bar.rect());
        const QPoint from(50, 20);
        QTest::mousePress(&bar, Qt::LeftButton, {}, from);
        for (const int distance : {20, 30, 70}) {
            Support::MoveMouse(&bar, from + QPoint(distance, 9));
            QCOMPARE(InkOf(bar, Qt::red, bar.rect()), before.translated(distance, 0));
        }
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, from + QPoint(70, 9));
        QCOMPARE(InkOf(bar, Qt::red, bar.rect()), before.translated(100, 0));
    }
};

VX_TEST_MAIN(tst_HorizontalTabBar)
#include "tst_HorizontalTabBar.moc"
