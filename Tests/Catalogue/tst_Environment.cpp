#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/TestCase.h>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr QRgb BACKDROP = 0xffff00ff; ///< a colour that no style has
constexpr QPoint PLACE(25, 23);       ///< on no whole pixel at a scale of 1.25
constexpr int MARGIN = 24;
constexpr int GRID = 4; ///< what is a multiple of it is whole pixels at every scale that we run at
constexpr int PROPER_SIZE = 0;
constexpr int HUGE_SIZE = 5;
constexpr QSize SIZES[] = {{-1, -1}, {0, 0}, {1, 1}, {7, 300}, {300, 7}, {4000, 3000}}; ///< the first: its own
constexpr int FONT_SIZES[] = {6, 11, 40};
const char* const STYLES[] = {"dark", "light", ""};

/// What a widget is put into.
struct Scene
{
    const State* state;
    int size;
    int fontSize;
    bool rightToLeft;
};

// The scenes of an entry in one of the styles. Pairs, not all combinations: each state meets each size, style, font
// size and direction, and so do each two of these among themselves. In the order of `round`, style and font size go
// round at different speeds, and the direction changes from one to the next; six rounds bring every remainder. A huge
// window costs as much as hundreds of others, so that an entry has one of them, each entry in the style after that of
// the one before.
QVector<Scene> ScenesInStyle(const Entry& entry, int style)
{
    constexpr int LEAST_ROUNDS = 6;
    const int first = int(&entry - Entries().data());
    QVector<Scene> scenes;
    for (int round = first; round < first + std::max(LEAST_ROUNDS, entry.states.size()); ++round) {
        for (int size = 0; size < int(std::size(SIZES)); ++size) {
            const bool isTooMuch = size == HUGE_SIZE && round > first;
            if ((round + size) % 3 == style && !isTooMuch) {
                scenes.append({&entry.states[round % entry.states.size()], size, FONT_SIZES[(round + size / 2) % 3],
                               (round + size) % 2 == 1});
            }
        }
    }
    return scenes;
}

QString Describe(const Scene& scene)
{
    return QStringLiteral("%1, %2x%3, %4 pt%5")
        .arg(scene.state->name)
        .arg(SIZES[scene.size].width())
        .arg(SIZES[scene.size].height())
        .arg(scene.fontSize)
        .arg(scene.rightToLeft ? ", right to left" : "");
}

/// A place for a widget, whose own pixels are known.
class Backdrop : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(BACKDROP)); }
};

// However small or large the widget wants to be, it has the size of the scene.
void ForceSize(QWidget& widget, int size)
{
    widget.ensurePolished();
    if (size == PROPER_SIZE) {
        widget.adjustSize();
        return;
    }
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    // So many pixels of the device, and not more of them for their being smaller.
    widget.resize(size == HUGE_SIZE ? SIZES[size] / std::ceil(widget.devicePixelRatioF()) : SIZES[size]);
}

// The pixels that lie in `rect` even if just in part.
QRect CoveredPixels(const QRect& rect, qreal ratio)
{
    const QPoint first(int(std::floor(rect.left() * ratio)), int(std::floor(rect.top() * ratio)));
    const QPoint end(int(std::ceil((rect.left() + rect.width()) * ratio)),
                     int(std::ceil((rect.top() + rect.height()) * ratio)));
    return {first, end - QPoint(1, 1)};
}

int TouchedPixels(const QImage& image, const QRect& area)
{
    int touched = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = area.left(); x <= area.right(); ++x)
            touched += line[x] != BACKDROP;
    }
    return touched;
}

int TouchedOutside(const QImage& image, const QRect& inside)
{
    int touched = 0;
    for (const QRect& area : QRegion(image.rect()).subtracted(inside))
        touched += TouchedPixels(image, area);
    return touched;
}

} // namespace

class tst_Environment : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void everyStatePaintsInsideItself_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("style");
        for (int style = 0; style < int(std::size(STYLES)); ++style) {
            for (const Entry& entry : Entries()) {
                const char* name = *STYLES[style] != '\0' ? STYLES[style] : "no style sheet";
                QTest::addRow("%s, %s", qPrintable(entry.className), name) << entry.className << style;
            }
        }
    }

    void everyStatePaintsInsideItself()
    {
        QFETCH(QString, className);
        QFETCH(int, style);
        Wear(style);
        const Entry& entry = *FindEntry(className);
        for (const Scene& scene : ScenesInStyle(entry, style)) {
            InRow(Describe(scene));
            QFont font = QApplication::font();
            font.setPointSize(scene.fontSize);
            QApplication::setFont(font);
            QApplication::setLayoutDirection(scene.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            Backdrop backdrop;
            QWidget* widget = CreateInState(entry, *scene.state, &backdrop);
            ForceSize(*widget, scene.size);
            const bool showsSomething = scene.size == PROPER_SIZE && *STYLES[style] != '\0';
            ShowAndCheck(backdrop, *widget, showsSomething);
            if (QTest::currentTestFailed())
                return;
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

private:
    // A style sheet takes long to parse, so that the rows are sorted by it.
    void Wear(int style)
    {
        if (style == worn)
            return;
        worn = style;
        ZStyleSheet sheet = LoadStyleSheet(*STYLES[style] != '\0' ? STYLES[style] : "light").value();
        if (*STYLES[style] == '\0')
            sheet.text.clear();
        sheet.apply();
    }

    static void ShowAndCheck(Backdrop& backdrop, QWidget& widget, bool showsSomething)
    {
        widget.move(PLACE);
        const QSize least = widget.size() + QSize(PLACE.x() + MARGIN, PLACE.y() + MARGIN);
        backdrop.resize((least.width() / GRID + 1) * GRID, (least.height() / GRID + 1) * GRID);
        backdrop.show();
        // Waiting the usual way would sleep for most of the test.
        QCoreApplication::processEvents();
        QVERIFY(QTest::qWaitForWindowExposed(&backdrop));
        QVERIFY(widget.isVisible());
        for (const QSize& hint : {widget.sizeHint(), widget.minimumSizeHint()})
            QVERIFY(hint.width() < QWIDGETSIZE_MAX && hint.height() < QWIDGETSIZE_MAX);

        const QImage image = backdrop.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const qreal ratio = image.devicePixelRatio();
        QCOMPARE(QSizeF(image.size()), QSizeF(backdrop.size()) * ratio);
        // The widget may have moved or grown since, by its own doing.
        const QRect inside = CoveredPixels(widget.geometry(), ratio);
        QCOMPARE(TouchedOutside(image, inside), 0);
        QVERIFY2(!showsSomething || TouchedPixels(image, inside) > 0, "nothing was painted");
    }

    int worn = -1;
};

VX_TEST_MAIN(tst_Environment)
#include "tst_Environment.moc"
