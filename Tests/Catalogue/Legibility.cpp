#include "Legibility.h"
#include "Contrast.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace {

// Stems of letters are several pixels wide at this scale, so that antialiasing does not pale their colour.
constexpr int SCALE = 4;

constexpr double LEGIBLE = 4.5;
constexpr double VISIBLE = 3;
// Five times the lightness difference (CIE L*) that is just noticeable, on black and on white.
constexpr double NOTICEABLE = 1.15;

// Pixels of a colour that make it part of a text: a square logical pixel.
constexpr int SPECK = SCALE * SCALE;

struct TextRun
{
    QString text;
    QRect rect; ///< in the window
    QString widget;
    bool isDisabled;
};

/// Records where and by which widget texts are drawn, and draws nothing.
class TextRecorder : public QPaintEngine, public QPaintDevice, public QObject
{
public:
    explicit TextRecorder(QWidget& window) : QPaintEngine(AllFeatures), window(window)
    {
        qApp->installEventFilter(this);
        window.render(this);
    }

    QVector<TextRun> runs;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType())
            current = static_cast<QWidget*>(watched);
        return false;
    }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        const QRectF line(position.x(), position.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        QRectF rect = state->transform().mapRect(line);
        if (!systemClip().isEmpty())
            rect &= systemClip().boundingRect();
        if (painter()->hasClipping())
            rect &= state->transform().mapRect(painter()->clipBoundingRect());
        const bool isOfOtherMonth =
            current->parentWidget()->inherits("QCalendarView") &&
            state->pen().color() == current->palette().color(QPalette::Disabled, QPalette::Text);
        const bool isDisabled = !current->isEnabled() || item.text().contains("isabled") || isOfOtherMonth;
        const bool isViewport = current->objectName() == "qt_scrollarea_viewport";
        const QWidget* widget = isViewport ? current->parentWidget() : current;
        if (rect.width() >= 4 && rect.height() >= 4 && !item.text().trimmed().isEmpty())
            runs.append({item.text(), rect.toAlignedRect(), widget->metaObject()->className(), isDisabled});
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    Type type() const override { return User; }
    QPaintEngine* paintEngine() const override { return const_cast<TextRecorder*>(this); }
    int metric(PaintDeviceMetric metric) const override { return WidgetMetric(window, metric); }

private:
    struct Access : QWidget
    {
        using QWidget::metric;
    };
    static int WidgetMetric(const QWidget& widget, PaintDeviceMetric metric)
    {
        return (widget.*&Access::metric)(metric);
    }

    QWidget& window;
    QWidget* current = nullptr;
};

QImage Picture(QWidget& window, const QRect& rect, int scale = SCALE)
{
    QImage image(rect.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(window.palette().color(QPalette::Window));
    window.render(&image, QPoint(), rect);
    return image;
}

// Returns the contrast of the most frequent colour, the background, to the colour that differs most.
double TextContrast(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const QRgb background = std::max_element(counts.keyValueBegin(), counts.keyValueEnd(),
                                             [](const auto& a, const auto& b) { return a.second < b.second; })
                                .base()
                                .key();
    double contrast = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() >= SPECK)
            contrast = qMax(contrast, Contrast(QColor(it.key()), QColor(background)));
    }
    return contrast;
}

// Returns the contrast that at least `count` pixels have in two pictures.
double Change(const QImage& before, const QImage& after, int count)
{
    QVector<double> changes;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                changes.append(Contrast(before.pixelColor(x, y), after.pixelColor(x, y)));
        }
    }
    if (changes.size() < count)
        return 1;
    std::nth_element(changes.begin(), changes.begin() + count - 1, changes.end(), std::greater<double>());
    return changes[count - 1];
}

QString Describe(const QWidget& widget)
{
    const QVariant text = widget.property("text").isValid() ? widget.property("text") : widget.property("title");
    return widget.metaObject()->className() + (" '" + text.toString().left(24) + "'");
}

template<class... Classes>
bool IsA(const QWidget* widget)
{
    return (... || qobject_cast<const Classes*>(widget));
}

QList<QWidget*> Controls(QWidget& window, bool (*isWanted)(const QWidget*))
{
    QList<QWidget*> controls;
    for (auto* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && isWanted(widget))
            controls.append(widget);
    }
    return controls;
}

// Returns the part of a control whose edge must be visible, in its own coordinates.
QRect Framed(QWidget* widget)
{
    QStyleOptionButton button;
    button.initFrom(widget);
    if (qobject_cast<QCheckBox*>(widget))
        return widget->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &button, widget);
    if (qobject_cast<QRadioButton*>(widget))
        return widget->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &button, widget);
    return widget->rect();
}

bool HasFrame(const QWidget* widget)
{
    const bool isPart = IsA<QAbstractSpinBox, QComboBox, QKeySequenceEdit, QTabBar, QLineEdit>(widget->parentWidget());
    const bool isBare = widget->property("flat").toBool() || widget->property("autoRaise").toBool() ||
                        widget->property("readOnly").toBool() || IsA<QCommandLinkButton>(widget) ||
                        widget->inherits("QToolBarExtension") || widget->inherits("QDockWidgetTitleButton") ||
                        widget->inherits("QTableCornerButton") || widget->objectName().startsWith("qt_calendar");
    const auto* slider = qobject_cast<const QAbstractSlider*>(widget);
    const bool isIdle = slider && slider->minimum() == slider->maximum();
    return !isPart && !isBare && !isIdle &&
           IsA<QAbstractButton, QLineEdit, QAbstractSpinBox, QComboBox, QTextEdit, QPlainTextEdit, QAbstractSlider>(
               widget);
}

// Returns the largest contrast between the surroundings and the pixels within `depth` of an edge of the rectangle.
double EdgeContrast(QWidget& window, const QRect& rect, int depth)
{
    const QImage picture = Picture(window, rect.adjusted(-2, -2, 2, 2));
    const QPoint center = picture.rect().center();
    double contrast = 1;
    for (int i = 0; i < (depth + 2) * SCALE; ++i) {
        for (const QPoint& place : {QPoint(i, center.y()), QPoint(center.x(), i)}) {
            if (picture.valid(place))
                contrast = qMax(contrast, Contrast(picture.pixelColor(1, 1), picture.pixelColor(place)));
        }
    }
    return contrast;
}

// Qt paints calendars, column views and the icons in fields without regard to the pointer.
bool RespondsToPointer(const QWidget* widget)
{
    for (const char* name : {"QCalendarView", "QColumnView", "QLineEditIconButton", "QTableCornerButton"}) {
        for (const QWidget* part = widget; part; part = part->parentWidget()) {
            if (part->inherits(name))
                return false;
        }
    }
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (button && button->isDown())
        return false;
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    return HasFrame(widget) || IsA<QAbstractButton, QTabBar, QMenuBar>(widget) ||
           (view && view->model() && view->model()->rowCount() > 0);
}

void MovePointer(QWidget* widget, const QPoint& place)
{
    QTest::mouseMove(widget->window()->windowHandle(), widget->mapTo(widget->window(), place));
}

} // namespace

Findings TextContrasts(QWidget& window)
{
    Findings findings;
    for (const TextRun& run : TextRecorder(window).runs)
        findings.append({run.widget + " '" + run.text.left(24) + "'", TextContrast(Picture(window, run.rect)),
                         run.isDisabled ? VISIBLE : LEGIBLE});
    return findings;
}

Findings EdgeContrasts(QWidget& window)
{
    Findings findings;
    for (QWidget* widget : Controls(window, HasFrame)) {
        const QRect rect = Framed(widget);
        // Handles are somewhere in their sliders.
        const int depth = IsA<QAbstractSlider>(widget) ? qMax(rect.width(), rect.height()) : 3;
        const QRect inWindow(widget->mapTo(&window, rect.topLeft()), rect.size());
        findings.append({Describe(*widget), EdgeContrast(window, inWindow, depth), VISIBLE});
    }
    return findings;
}

Findings FocusContrasts(QWidget& window)
{
    Findings findings;
    const auto takesFocus = [](const QWidget* widget) {
        const auto* area = qobject_cast<const QScrollArea*>(widget);
        return widget->focusPolicy() & Qt::TabFocus && !(area && area->frameShape() == QFrame::NoFrame);
    };
    for (QWidget* widget : Controls(window, takesFocus)) {
        window.setFocus();
        const QImage before = Picture(window, window.rect(), 1);
        widget->setFocus(Qt::TabFocusReason);
        // A line of two pixels at least around a check box.
        findings.append({Describe(*widget), Change(before, Picture(window, window.rect(), 1), 32), VISIBLE});
    }
    return findings;
}

Findings HoverContrasts(QWidget& window)
{
    Findings findings;
    for (QWidget* widget : Controls(window, RespondsToPointer)) {
        auto* area = qobject_cast<QAbstractItemView*>(widget);
        QWidget* receiver = area ? area->viewport() : widget;
        const QWidget* top = window.childAt(receiver->mapTo(&window, receiver->rect().center()));
        if (top != receiver && !receiver->isAncestorOf(top))
            continue; // scrolled out of view
        // QTest takes a null point for the centre.
        MovePointer(&window, QPoint(1, 1));
        // Of the window, because the background of a control can be transparent.
        const QRect inWindow(widget->mapTo(&window, QPoint()), widget->size());
        const QImage before = Picture(window, inWindow, 1);
        double contrast = 1;
        const QSize size = receiver->size();
        const QPoint center = receiver->rect().center();
        // The handles of sliders and the rows of views are somewhere in them.
        QVector<QPoint> places{center, QPoint(30, 14)};
        for (int i = 0; i < 20; ++i)
            places << QPoint(size.width() * i / 20, center.y()) << QPoint(center.x(), size.height() * i / 20);
        for (const QPoint& place : places) {
            if (contrast >= NOTICEABLE || !receiver->rect().contains(place))
                continue;
            MovePointer(receiver, place);
            contrast = qMax(contrast, Change(before, Picture(window, inWindow, 1), 24));
        }
        findings.append({Describe(*widget), contrast, NOTICEABLE});
    }
    return findings;
}
