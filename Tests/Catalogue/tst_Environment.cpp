#include <Catalogue/EntryWindow.h>

#include <Support/TestCase.h>

#include <QPainter>

#include <cmath>

using namespace Zelkor::Catalogue;

namespace {

constexpr QRgb BACKDROP = 0xffff00ff; ///< a colour of no style sheet
constexpr QPoint PLACE(25, 23);       ///< between physical pixels at a scale of 1.25
constexpr int MARGIN = 24;
constexpr int GRID = 4;   ///< its multiples are whole pixels at every scale
constexpr QSize OWN_SIZE; ///< stands for the size hint
constexpr QSize SMALL_SIZES[] = {{0, 0}, {1, 1}, {7, 300}, {300, 7}};
constexpr QSize HUGE_SIZE(4000, 3000);
constexpr int FONT_SIZES[] = {6, 11, 40};
const QStringList STYLES{"dark", "light", ""};

/// A widget that fills itself with a known colour.
class Backdrop : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(BACKDROP)); }
};

// Overrides the size constraints of the widget.
void ForceSize(QWidget& widget, const QSize& size)
{
    widget.ensurePolished();
    if (size == OWN_SIZE)
        return widget.adjustSize();
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    // The same number of physical pixels at each scale, to limit the time.
    widget.resize(size == HUGE_SIZE ? size / std::ceil(widget.devicePixelRatioF()) : size);
}

} // namespace

class tst_Environment : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paintsOnlyInsideItself_data() { AddRows(AllStates, STYLES); }

    // Each state at its own size and at one other, with a font size and direction that vary over states and styles.
    void paintsOnlyInsideItself()
    {
        QFETCH(int, state);
        QFETCH(int, variant);
        ApplySheet(STYLES[variant]);
        const int turn = state + variant + int(&EntryOfRow() - Entries().data());
        QFont font = QApplication::font();
        font.setPointSize(FONT_SIZES[turn % 3]);
        QApplication::setFont(font);
        QApplication::setLayoutDirection(turn % 2 ? Qt::RightToLeft : Qt::LeftToRight);
        CheckAtSize(OWN_SIZE, !STYLES[variant].isEmpty());
        CheckAtSize(SMALL_SIZES[turn % 4], false);
        if (state == EntryOfRow().pictured && turn % 3 == 0)
            CheckAtSize(HUGE_SIZE, false);
        Settle();
    }

private:
    static void CheckAtSize(const QSize& size, bool mustPaint)
    {
        Backdrop backdrop;
        delete CreateInState(EntryOfRow(), StateOfRow(), &backdrop);
        QVERIFY2(backdrop.children().isEmpty(), "left an object before it was shown");
        QWidget& widget = *CreateInState(EntryOfRow(), StateOfRow(), &backdrop);
        QCOMPARE(widget.parentWidget(), static_cast<QWidget*>(&backdrop));
        ForceSize(widget, size);
        widget.move(PLACE);
        const QSize least = widget.size() + QSize(PLACE.x() + MARGIN, PLACE.y() + MARGIN);
        backdrop.resize((least.width() / GRID + 1) * GRID, (least.height() / GRID + 1) * GRID);
        backdrop.show();
        QCoreApplication::processEvents();
        QVERIFY(widget.isVisible());
        for (const QSize& hint : {widget.sizeHint(), widget.minimumSizeHint()}) {
            QVERIFY(hint.width() < QWIDGETSIZE_MAX);
            QVERIFY(hint.height() < QWIDGETSIZE_MAX);
        }

        QImage image = backdrop.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const qreal ratio = image.devicePixelRatio();
        QCOMPARE(QSizeF(image.size()), QSizeF(backdrop.size()) * ratio);
        image.setDevicePixelRatio(1);
        QImage blank(image.size(), image.format());
        blank.fill(BACKDROP);
        QVERIFY2(!mustPaint || image != blank, "nothing was painted");
        // The widget may have moved or resized itself.
        const QRectF area = QTransform::fromScale(ratio, ratio).mapRect(QRectF(widget.geometry()));
        QPainter(&image).fillRect(area.toAlignedRect(), QColor(BACKDROP));
        QVERIFY2(image == blank, "painted outside of its rectangle");
        delete &widget;
        QVERIFY2(backdrop.children().isEmpty(), "left an object after it was shown");
    }
};

VX_TEST_MAIN(tst_Environment)
#include "tst_Environment.moc"
