#include <Catalogue/Contrast.h>
#include <Catalogue/EntryWindow.h>
#include <Catalogue/TextRecorder.h>

#include <Support/TestCase.h>

#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>

using namespace Zelkor::Catalogue;

namespace {

constexpr double SMALLEST_GAP = 2;
constexpr double SMALLEST_INSET = 2;
constexpr double LOWEST_CONTRAST = 3;

struct Surroundings
{
    const char* name;
    const char* style;
    bool isDark;
    Qt::LayoutDirection direction;
    double fontScale;
};
const Surroundings SURROUNDINGS[] = {{"Fusion", "Fusion", false, Qt::LeftToRight, 1},
                                     {"Fusion, dark, right-to-left", "Fusion", true, Qt::RightToLeft, 1},
                                     {"Windows, large font", "Windows", false, Qt::LeftToRight, 2}};

QPalette DarkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Link, QColor(0x2a, 0x82, 0xda));
    return palette;
}

QRect InWindow(const QWidget& widget, const QRect& rect)
{
    return {widget.mapTo(widget.window(), rect.topLeft()), rect.size()};
}

struct Text
{
    PaintedText painted;
    QWidget* widget;
    QRectF box; ///< what the text must not touch: the button of its label, or its tab; otherwise empty
};

QVector<Text> TextsIn(QWidget& root)
{
    QVector<Text> texts;
    for (const QPointer<QWidget>& widget : PartsOf(&root)) {
        if (!widget->isVisible() || widget->window() != root.window())
            continue;
        for (const PaintedText& painted : TextRecorder::TextsOf(*widget)) {
            Text text{painted, widget, {}};
            text.painted.rect &= InWindow(*widget, widget->visibleRegion().boundingRect());
            // Half of a line shows little of its letters.
            if (text.painted.rect.height() <= painted.rect.height() / 2)
                continue;
            const QPoint center = painted.rect.center().toPoint();
            if (const auto* button = qobject_cast<QAbstractButton*>(widget->parentWidget()))
                text.box = InWindow(*button, button->rect());
            else if (const auto* bar = qobject_cast<QTabBar*>(widget))
                text.box = InWindow(*bar, bar->tabRect(bar->tabAt(bar->mapFrom(bar->window(), center))));
            texts.append(text);
        }
    }
    return texts;
}

// Texts of different widgets in one row.
bool Touch(const Text& a, const Text& b)
{
    const QRectF first = a.painted.rect.adjusted(-SMALLEST_GAP, 0, 0, 0);
    const QRectF common = first.intersected(b.painted.rect.adjusted(-SMALLEST_GAP, 0, 0, 0));
    return a.widget != b.widget && common.height() > first.height() / 2;
}

// Whether the button shows anything that a button without content does not.
bool HasContent(QToolButton& button)
{
    class Empty : public QToolButton
    {
    public:
        using QToolButton::QToolButton;
        void Paint(const QToolButton& like, QPaintDevice* device)
        {
            QStyleOptionToolButton option;
            setAutoRaise(like.autoRaise());
            initStyleOption(&option);
            const QStyle::State raised = option.state & (QStyle::State_Raised | QStyle::State_AutoRaise);
            option.initFrom(&like);
            option.state |= raised;
            option.features = QStyleOptionToolButton::None;
            QPainter painter(device);
            style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
        }
    };
    const auto imageOf = [&](auto paint) {
        QImage image(button.size(), QImage::Format_RGB32);
        image.fill(button.palette().color(QPalette::Window));
        paint(image);
        return image.copy(image.rect().adjusted(4, 4, -4, -4));
    };
    Empty empty(button.parentWidget());
    return imageOf([&](QImage& image) { button.render(&image, QPoint(), QRegion(), QWidget::RenderFlags()); }) !=
           imageOf([&](QImage& image) { empty.Paint(button, &image); });
}

} // namespace

/// Without a style sheet, every widget is plain but whole.
class tst_PlainLook : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // For its icons; it applies the style Fusion.
        ApplySheet("");
        font = QApplication::font();
        light = QApplication::style()->standardPalette();
    }

    void textsDoNotTouchAndCanBeRead_data() { AddRows(TestedStates, NamesOf(SURROUNDINGS)); }

    void textsDoNotTouchAndCanBeRead()
    {
        const auto window = WindowInSurroundings();
        const QImage picture = window->window->grab().toImage();
        const QVector<Text> texts = TextsIn(*window->widget);
        for (int i = 0; i < texts.size(); ++i) {
            const Text& text = texts[i];
            const QByteArray shown = text.painted.text.toUtf8();
            for (int other = 0; other < i; ++other)
                QVERIFY2(!Touch(text, texts[other]), shown + " / " + texts[other].painted.text.toUtf8());
            if (!text.box.isEmpty() && !shown.endsWith("\u2026")) {
                QVERIFY2(text.painted.rect.left() - text.box.left() >= SMALLEST_INSET, shown);
                QVERIFY2(text.box.right() - text.painted.rect.right() >= SMALLEST_INSET, shown);
            }
            // A tab may be disabled in an enabled bar.
            const QColor disabled = text.widget->palette().color(QPalette::Disabled, QPalette::WindowText);
            if (text.widget->isEnabled() && text.painted.color != disabled)
                QVERIFY2(ContrastOf(text, picture) >= LOWEST_CONTRAST, shown);
        }
    }

    void buttonsHaveTextOrSymbol_data() { AddRows(TestedStates, NamesOf(SURROUNDINGS)); }

    void buttonsHaveTextOrSymbol()
    {
        const auto window = WindowInSurroundings();
        for (auto* button : window->widget->findChildren<QToolButton*>()) {
            if (button->isVisible() && !button->inherits("ZSliderThumb"))
                QVERIFY2(HasContent(*button), qPrintable(button->objectName()));
        }
    }

    void newWidgetShowsWholeTexts_data()
    {
        AddRowsOfEntries([](auto& entry) { return bool(entry.form.metaObject); });
    }

    // At the size of its hint, as a form editor places it.
    void newWidgetShowsWholeTexts()
    {
        QWidget window;
        auto* widget = static_cast<QWidget*>(CreateBare(EntryOfRow(), &window));
        const QVariantMap& properties = EntryOfRow().form.properties;
        for (auto it = properties.begin(); it != properties.end(); ++it)
            widget->setProperty(it.key().toLatin1(), it.value());
        widget->resize(widget->sizeHint());
        window.resize(widget->size());
        window.show();
        for (const Text& text : TextsIn(*widget)) {
            QVERIFY2(!text.painted.text.endsWith(QChar(0x2026)), qPrintable(text.painted.text));
            QVERIFY2(QRectF(widget->rect()).contains(text.painted.rect), qPrintable(text.painted.text));
        }
    }

    void cleanup()
    {
        QApplication::setStyle("Fusion");
        QApplication::setPalette(QPalette());
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setFont(font);
    }

private:
    std::unique_ptr<EntryWindow> WindowInSurroundings()
    {
        QFETCH(int, variant);
        const Surroundings& surroundings = SURROUNDINGS[variant];
        QApplication::setStyle(surroundings.style);
        QApplication::setPalette(surroundings.isDark ? DarkPalette() : light);
        QApplication::setLayoutDirection(surroundings.direction);
        QFont large = font;
        large.setPointSizeF(font.pointSizeF() * surroundings.fontScale);
        QApplication::setFont(large);
        auto window = WindowOfRow();
        window->ShowInactive();
        return window;
    }

    // The highest contrast between the text and a pixel around its letters.
    static double ContrastOf(const Text& text, const QImage& picture)
    {
        const QRect rect = text.painted.rect.toRect() & picture.rect();
        double highest = 1;
        for (int i = 0; i < rect.width() * rect.height(); ++i) {
            const QPoint point = rect.topLeft() + QPoint(i % rect.width(), i / rect.width());
            highest = std::max(highest, Contrast(text.painted.color, picture.pixelColor(point)));
        }
        return highest;
    }

    QFont font;
    QPalette light;
};

VX_TEST_MAIN(tst_PlainLook)
#include "tst_PlainLook.moc"
