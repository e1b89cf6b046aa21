#include <Catalogue/Look.h>
#include <Catalogue/SamplePictures.h>
#include <Catalogue/Scene.h>
#include <Gallery/Inspector/SignalLog.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Support/Picture.h>

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QVBoxLayout>
#include <QtTest>

#include <cstring>

using namespace Zelkor;
using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;

namespace {

constexpr QSize STAGE_SIZE(760, 680);
constexpr QPoint STAGE_PLACE(40, 40);
constexpr int LONGEST_ANIMATION_MS = 1000;
constexpr int MARGIN = 8; ///< around the widget, where nothing of it belongs
constexpr QSize FRAME_SIZE(160, 120);

void Describe(QAccessibleInterface* interface, const QPoint& origin, int depth, QStringList& lines)
{
    const QAccessible::State state = interface->state();
    const QObject* object = interface->object();
    const bool isHidden = object && object->isWidgetType() && !static_cast<const QWidget*>(object)->isVisible();
    if (state.invisible || isHidden)
        return;
    quint64 bits = 0;
    std::memcpy(&bits, &state, sizeof bits);
    const QRect rect = interface->rect().translated(-origin);
    lines.append(QStringLiteral("%1%2, role %3, name \"%4\", description \"%5\", value \"%6\", state %7, %8,%9 %10x%11")
                     .arg(QString(depth, ' '), object ? object->metaObject()->className() : "no object")
                     .arg(interface->role(), 0, 16)
                     .arg(interface->text(QAccessible::Name), interface->text(QAccessible::Description),
                          interface->text(QAccessible::Value))
                     .arg(bits, 0, 16)
                     .arg(rect.x())
                     .arg(rect.y())
                     .arg(rect.width())
                     .arg(rect.height()));
    for (int i = 0; i < interface->childCount(); ++i) {
        if (QAccessibleInterface* child = interface->child(i))
            Describe(child, origin, depth + 1, lines);
    }
}

// A live picture moves on between two looks, so that both get the same frame in its place.
void HoldLivePictures(const Stage& stage)
{
    for (const auto* stream : stage.findChildren<Vx::WebCameraPreviewStream*>())
        static_cast<Vx::UI::VideoPreviewWidget*>(stream->parent())->UpdateView(ColorBarsFrame(FRAME_SIZE));
}

QImage Picture(Stage& stage, qreal pixelRatio)
{
    HoldLivePictures(stage);
    const QRect area = stage.widget->geometry().adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
    QImage picture((QSizeF(area.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(pixelRatio);
    stage.render(&picture, QPoint(), area);
    return picture;
}

QString DifferenceNow(Stage& changed, Stage& made, qreal pixelRatio)
{
    const QStringList heard = AccessibleTree(changed.widget);
    const QStringList expected = AccessibleTree(made.widget);
    for (int i = 0; i < qMax(heard.size(), expected.size()); ++i) {
        if (heard.value(i) != expected.value(i))
            return QStringLiteral("heard:\n%1\ninstead of\n%2").arg(heard.value(i), expected.value(i));
    }
    if (changed.widget->geometry() != made.widget->geometry())
        return QStringLiteral("another place or size");
    const QImage seen = Picture(changed, pixelRatio);
    const QImage wanted = Picture(made, pixelRatio);
    if (seen == wanted)
        return {};
    QRect area;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width() && seen.size() == wanted.size(); ++x) {
            if (seen.pixel(x, y) != wanted.pixel(x, y))
                area |= QRect(x, y, 1, 1);
        }
    }
    return QStringLiteral("another picture at %1,%2 %3x%4, by up to %5")
        .arg(area.x())
        .arg(area.y())
        .arg(area.width())
        .arg(area.height())
        .arg(Support::LargestDifference(seen, wanted));
}

} // namespace

Stage::Stage(std::function<QWidget*(QWidget*)> create)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    widget = create(this);
    layout->addWidget(widget, 0, Qt::AlignLeading | Qt::AlignTop);
    move(STAGE_PLACE);
    resize(STAGE_SIZE);
    // The platform without a display activates each window that is shown.
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
}

Stage::Stage(const Entry& entry, const State& state)
    : Stage([&](QWidget* parent) { return CreateInState(entry, state, parent); })
{}

void Stage::Show()
{
    show();
    Settle();
    QApplication::setActiveWindow(nullptr);
}

QObject* Stage::Subject(const Entry& entry) const
{
    return FindObject(widget, entry.className);
}

QStringList AccessibleTree(QWidget* widget)
{
    QStringList lines;
    Describe(QAccessible::queryAccessibleInterface(widget), widget->mapToGlobal(QPoint()), 0, lines);
    return lines;
}

QString Difference(Stage& changed, Stage& made, qreal pixelRatio)
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        Settle();
        QApplication::setActiveWindow(nullptr);
        const QString difference = DifferenceNow(changed, made, pixelRatio);
        if (difference.isEmpty() || timer.hasExpired(LONGEST_ANIMATION_MS))
            return difference;
        QTest::qWait(20);
    }
}
