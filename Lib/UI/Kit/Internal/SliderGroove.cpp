#include <UI/Kit/Internal/SliderGroove.h>

#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Common/PlainLook.h>

#include <QApplication>
#include <QSlider>
#include <QtMath>

#include <algorithm>

namespace Zelkor::Vx::UI::Kit {

namespace {

// In device pixels. QPainter cannot paint on a longer pixmap; a larger area exceeds any screen.
constexpr int LONGEST_SIDE = 0x7fff;
constexpr qint64 LARGEST_AREA = qint64(1) << 25;

const QString HORIZONTAL_SHEET =
    QStringLiteral(" QSlider                    { background:rgba(0,0,0,0); } "
                   " QSlider::groove:horizontal { width:%1; %2 } "
                   " QSlider::handle:horizontal { image:none; border:none; background:none; } "
                   " QSlider::add-page:horizontal { %3 } "
                   " QSlider::sub-page:horizontal { %4 } ");

// The selectors of the pages match nothing in a vertical slider, which has no pages.
const QString VERTICAL_SHEET = QStringLiteral(" QSlider                  { background:rgba(0,0,0,0); } "
                                              " QSlider::groove:vertical { height:%1; %2 } "
                                              " QSlider::handle:vertical { image:none; border:none; background:none; } "
                                              " QSlider::add-page:horizontal { %3 } "
                                              " QSlider::sub-page:horizontal { %4 } ");

// Returns whether the braces, quotes and comments of `text` match, so that it may be inserted into a rule. It may end
// the rule and begin another one.
bool KeepsInsideOfRule(const QString& text)
{
    int depth = 1;
    QChar quote;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (!quote.isNull()) {
            if (character == QLatin1Char('\\'))
                ++i;
            else if (character == quote)
                quote = QChar();
        } else if (character == QLatin1Char('"') || character == QLatin1Char('\'')) {
            quote = character;
        } else if (character == QLatin1Char('/') && QStringView(text).mid(i + 1, 1) == QLatin1String("*")) {
            const int end = text.indexOf(QLatin1String("*/"), i + 2);
            if (end < 0)
                return false;
            i = end + 1;
        } else if (character == QLatin1Char('{')) {
            ++depth;
        } else if (character == QLatin1Char('}')) {
            --depth;
        }
        if (depth < 0 || depth > 1)
            return false;
    }
    return depth == 1 && quote.isNull();
}

QSize PixmapSize(const QSize& size, qreal ratio)
{
    return {qCeil(size.width() * ratio), qCeil(size.height() * ratio)};
}

bool CanBeRendered(const QSize& size)
{
    const bool isPaintable = size.width() <= LONGEST_SIDE && size.height() <= LONGEST_SIDE;
    return !size.isEmpty() && isPaintable && qint64(size.width()) * size.height() <= LARGEST_AREA;
}

} // namespace

bool SliderGroove::RenderInput::operator==(const RenderInput& other) const
{
    return size == other.size && qFuzzyCompare(ratio, other.ratio) && orientation == other.orientation &&
           minimum == other.minimum && maximum == other.maximum && enabled == other.enabled;
}

SliderGroove::SliderGroove(const QSlider& slider) : owner(slider) {}

SliderGroove::~SliderGroove()
{
    for (const Layer& layer : layers)
        delete layer.slider;
}

void SliderGroove::setStyle(Part part, const QString& text)
{
    styles[part] = text;
    usableStyles[part] = text;
    if (!KeepsInsideOfRule(text)) {
        qWarning("ZSlider: braces or quotes do not match in a style of the groove: %s", qPrintable(text));
        usableStyles[part].clear();
    }
    invalidate();
}

void SliderGroove::setOffset(int pixels)
{
    inset = pixels;
    invalidate();
}

void SliderGroove::invalidate()
{
    for (Layer& layer : layers) {
        layer.isPrepared = false;
        layer.followsValue.reset();
        layer.isCurrent = false;
    }
}

bool SliderGroove::followsValue()
{
    bool follows = false;
    for (Layer& layer : layers)
        follows |= layer.isCurrent && followsValue(layer);
    return follows;
}

// The style sheet of the application may style pages, and the style draws a groove without one, so only a comparison of
// the rendered pixmaps shows whether the groove depends on the value.
bool SliderGroove::followsValue(Layer& layer)
{
    if (!layer.slider)
        return true; // deleted with the application
    if (!layer.followsValue) {
        const int middle = int((qint64(input.minimum) + input.maximum) / 2);
        std::array<QPixmap, 3> renderings;
        render(*layer.slider, input.minimum, renderings[0]);
        render(*layer.slider, middle, renderings[1]);
        render(*layer.slider, input.maximum, renderings[2]);
        const QImage first = renderings[0].toImage();
        layer.followsValue = first != renderings[1].toImage() || first != renderings[2].toImage();
    }
    return *layer.followsValue;
}

// Invalidates the pixmaps that no longer match the slider.
void SliderGroove::refresh()
{
    const RenderInput now{owner.size(),    owner.devicePixelRatioF(), owner.orientation(),
                          owner.minimum(), owner.maximum(),           owner.isEnabled()};
    if (!(now == input)) {
        input = now;
        invalidate();
    }
    if (shownValue == owner.value())
        return;
    shownValue = owner.value();
    for (Layer& layer : layers)
        layer.isCurrent = layer.isCurrent && !followsValue(layer);
}

QPixmap SliderGroove::pixmap(Part look)
{
    refresh();
    Layer& layer = layers.at(look);
    if (!CanBeRendered(PixmapSize(input.size, input.ratio)))
        return {};
    if (layer.isCurrent)
        return layer.pixmap;
    if (!layer.isPrepared || !layer.slider)
        prepare(layer, look);
    render(*layer.slider, shownValue, layer.pixmap);
    layer.isCurrent = true;
    return layer.pixmap;
}

void SliderGroove::prepare(Layer& layer, Part look)
{
    if (!layer.slider)
        layer.slider = new QSlider;
    QSlider& slider = *layer.slider;
    slider.setFocusPolicy(Qt::NoFocus);
    slider.setOrientation(owner.orientation());
    slider.setRange(input.minimum, input.maximum);
    // Values grow from the left or from the top, like those of the thumbs.
    slider.setLayoutDirection(Qt::LeftToRight);
    slider.setInvertedAppearance(owner.orientation() == Qt::Vertical);
    slider.setEnabled(input.enabled);
    slider.setFont(owner.font());
    slider.setPalette(owner.palette());
    slider.setStyleSheet(sheet(look));
    // The style sheet of the application may set another size.
    slider.ensurePolished();
    slider.setFixedSize(input.size);
    slider.resize(input.size);
    layer.isPrepared = true;
}

void SliderGroove::render(QSlider& slider, int value, QPixmap& pixmap) const
{
    const QSize size = PixmapSize(input.size, input.ratio);
    if (pixmap.size() != size)
        pixmap = QPixmap(size);
    pixmap.setDevicePixelRatio(input.ratio);
    pixmap.fill(Qt::transparent);
    slider.setValue(value);
    slider.render(&pixmap, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
}

// Returns declarations in the colours of the palette while neither a part nor the application has a style. The sheet of
// the owner itself only hides what QSlider draws.
QString SliderGroove::plainStyle(Part look) const
{
    const QWidget* parent = owner.parentWidget();
    const bool hasSheet = parent ? Common::HasStyleSheet(*parent) : !qApp->styleSheet().isEmpty();
    if (hasSheet || std::any_of(std::begin(styles), std::end(styles), [](auto& style) { return !style.isEmpty(); }))
        return {};
    // That of the owner has the transparent background of its sheet.
    const QPalette palette = parent ? parent->palette() : QApplication::palette();
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const auto mixed = [&](double share) {
        return QColor::fromRgbF(window.redF() + share * (text.redF() - window.redF()),
                                window.greenF() + share * (text.greenF() - window.greenF()),
                                window.blueF() + share * (text.blueF() - window.blueF()));
    };
    const QColor colors[] = {mixed(0.3), mixed(0.6), palette.color(QPalette::Highlight), text};
    static_assert(std::size(colors) == LOOKS);
    return QStringLiteral("%1:4px; background:%2;")
        .arg(QLatin1String(owner.orientation() == Qt::Horizontal ? "height" : "width"), colors[look].name());
}

QString SliderGroove::sheet(Part look) const
{
    const bool isHorizontal = owner.orientation() == Qt::Horizontal;
    const int length = (isHorizontal ? input.size.width() : input.size.height()) - 2 * Common::ClampToWidgetSize(inset);
    // In one call, because a fragment may contain a per cent sign.
    return (isHorizontal ? HORIZONTAL_SHEET : VERTICAL_SHEET)
        .arg(QString::number(length), plainStyle(look) + usableStyles[look], usableStyles[ADD_PAGE],
             usableStyles[SUB_PAGE]);
}

} // namespace Zelkor::Vx::UI::Kit
