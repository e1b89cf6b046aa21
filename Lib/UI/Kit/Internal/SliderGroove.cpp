#include <UI/Kit/Internal/SliderGroove.h>

#include <UI/Common/ClampToWidgetSize.h>

#include <QSlider>
#include <QtMath>

namespace Zelkor::Vx::UI::Kit {

namespace {

// In pixels of the device. A picture with a longer side cannot be painted on; a larger one is larger than any screen.
constexpr int LONGEST_SIDE = 0x7fff;
constexpr qint64 LARGEST_AREA = qint64(1) << 25;

const QString HORIZONTAL_SHEET =
    QStringLiteral(" QSlider                    { background:rgba(0,0,0,0); } "
                   " QSlider::groove:horizontal { width:%1; %2 } "
                   " QSlider::handle:horizontal { image:none; border:none; background:none; } "
                   " QSlider::add-page:horizontal { %3 } "
                   " QSlider::sub-page:horizontal { %4 } ");

// The pages of an upright slider have no part in it: these selectors find nothing there.
const QString VERTICAL_SHEET = QStringLiteral(" QSlider                  { background:rgba(0,0,0,0); } "
                                              " QSlider::groove:vertical { height:%1; %2 } "
                                              " QSlider::handle:vertical { image:none; border:none; background:none; } "
                                              " QSlider::add-page:horizontal { %3 } "
                                              " QSlider::sub-page:horizontal { %4 } ");

// Whether `text`, put into a rule, leaves the reader of the sheet inside of one rule.
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
        } else if (character == QLatin1Char('/') && text.midRef(i + 1, 1) == QLatin1String("*")) {
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

QSize PictureSize(const QSize& size, qreal ratio)
{
    return {qCeil(size.width() * ratio), qCeil(size.height() * ratio)};
}

bool CanBePictured(const QSize& size)
{
    const bool isInReach = size.width() <= LONGEST_SIDE && size.height() <= LONGEST_SIDE;
    return !size.isEmpty() && isInReach && qint64(size.width()) * size.height() <= LARGEST_AREA;
}

} // namespace

bool SliderGroove::Scene::operator==(const Scene& other) const
{
    return size == other.size && qFuzzyCompare(ratio, other.ratio) && orientation == other.orientation &&
           minimum == other.minimum && maximum == other.maximum && enabled == other.enabled;
}

SliderGroove::SliderGroove(const QSlider& slider) : owner(slider) {}

SliderGroove::~SliderGroove()
{
    for (const Canvas& canvas : canvases)
        delete canvas.slider;
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
    for (Canvas& canvas : canvases) {
        canvas.styled = false;
        canvas.followsValue.reset();
        canvas.isCurrent = false;
    }
}

bool SliderGroove::followsValue()
{
    bool follows = false;
    for (Canvas& canvas : canvases)
        follows |= canvas.isCurrent && followsValue(canvas);
    return follows;
}

// Pages may be the application's, and a groove without a style is drawn by the system: the pictures tell best.
bool SliderGroove::followsValue(Canvas& canvas)
{
    if (!canvas.slider)
        return true; // gone with the application
    if (!canvas.followsValue) {
        const int middle = int((qint64(scene.minimum) + scene.maximum) / 2);
        std::array<QPixmap, 3> pictures;
        render(*canvas.slider, scene.minimum, pictures[0]);
        render(*canvas.slider, middle, pictures[1]);
        render(*canvas.slider, scene.maximum, pictures[2]);
        const QImage first = pictures[0].toImage();
        canvas.followsValue = first != pictures[1].toImage() || first != pictures[2].toImage();
    }
    return *canvas.followsValue;
}

// Drops the pictures that the slider, as it is now, has put out of date.
void SliderGroove::refresh()
{
    const Scene now{owner.size(),    owner.devicePixelRatioF(), owner.orientation(),
                    owner.minimum(), owner.maximum(),           owner.isEnabled()};
    if (!(now == scene)) {
        scene = now;
        invalidate();
    }
    if (shownValue == owner.value())
        return;
    shownValue = owner.value();
    for (Canvas& canvas : canvases)
        canvas.isCurrent = canvas.isCurrent && !followsValue(canvas);
}

QPixmap SliderGroove::pixmap(Part look)
{
    refresh();
    Canvas& canvas = canvases.at(look);
    if (!CanBePictured(PictureSize(scene.size, scene.ratio)))
        return {};
    if (canvas.isCurrent)
        return canvas.pixmap;
    if (!canvas.styled || !canvas.slider)
        prepare(canvas, look);
    render(*canvas.slider, shownValue, canvas.pixmap);
    canvas.isCurrent = true;
    return canvas.pixmap;
}

void SliderGroove::prepare(Canvas& canvas, Part look)
{
    if (!canvas.slider)
        canvas.slider = new QSlider;
    QSlider& slider = *canvas.slider;
    slider.setFocusPolicy(Qt::NoFocus);
    slider.setOrientation(owner.orientation());
    slider.setRange(scene.minimum, scene.maximum);
    // Values grow from the left and from the top, as the thumbs have it.
    slider.setLayoutDirection(Qt::LeftToRight);
    slider.setInvertedAppearance(owner.orientation() == Qt::Vertical);
    slider.setEnabled(scene.enabled);
    slider.setFont(owner.font());
    slider.setPalette(owner.palette());
    slider.setStyleSheet(sheet(look));
    // The application's style sheet may want another size.
    slider.ensurePolished();
    slider.setFixedSize(scene.size);
    slider.resize(scene.size);
    canvas.styled = true;
}

void SliderGroove::render(QSlider& slider, int value, QPixmap& pixmap) const
{
    const QSize size = PictureSize(scene.size, scene.ratio);
    if (pixmap.size() != size)
        pixmap = QPixmap(size);
    pixmap.setDevicePixelRatio(scene.ratio);
    pixmap.fill(Qt::transparent);
    slider.setValue(value);
    slider.render(&pixmap, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
}

QString SliderGroove::sheet(Part look) const
{
    const bool isHorizontal = owner.orientation() == Qt::Horizontal;
    const int length = (isHorizontal ? scene.size.width() : scene.size.height()) - 2 * Common::ClampToWidgetSize(inset);
    // All at once: a fragment may have a per cent sign in it.
    return (isHorizontal ? HORIZONTAL_SHEET : VERTICAL_SHEET)
        .arg(QString::number(length), usableStyles[look], usableStyles[ADD_PAGE], usableStyles[SUB_PAGE]);
}

} // namespace Zelkor::Vx::UI::Kit
