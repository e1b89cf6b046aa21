#include <Catalogue/Comparison.h>
#include <Catalogue/SamplePictures.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Support/Picture.h>

#include <QAccessible>
#include <QElapsedTimer>

#include <cstring>

using namespace Zelkor;

namespace {

constexpr int LONGEST_ANIMATION_MS = 1000;
constexpr int MARGIN = 8; ///< around the widget, which must not paint there
constexpr QSize FRAME_SIZE(160, 120);

// One line for each visible interface, with its rectangle relative to the widget.
void AppendAccessibleTree(QAccessibleInterface* interface, const QPoint& origin, QStringList& lines)
{
    const QAccessible::State state = interface->state();
    const QObject* object = interface->object();
    const bool isHidden = object && object->isWidgetType() && !static_cast<const QWidget*>(object)->isVisible();
    if (state.invisible || isHidden)
        return;
    quint64 bits = 0;
    std::memcpy(&bits, &state, sizeof bits);
    QString line;
    QDebug(&line) << (object ? object->metaObject()->className() : "no object") << "role" << interface->role() << "name"
                  << interface->text(QAccessible::Name) << "description" << interface->text(QAccessible::Description)
                  << "value" << interface->text(QAccessible::Value) << "state" << bits
                  << interface->rect().translated(-origin);
    lines.append(line);
    for (int i = 0; i < interface->childCount(); ++i) {
        if (QAccessibleInterface* child = interface->child(i))
            AppendAccessibleTree(child, origin, lines);
    }
}

QStringList AccessibleTree(QWidget* widget)
{
    QStringList lines;
    AppendAccessibleTree(QAccessible::queryAccessibleInterface(widget), widget->mapToGlobal(QPoint()), lines);
    return lines;
}

QImage Picture(EntryWindow& scene, qreal pixelRatio)
{
    // Replaces live video, which differs between two pictures.
    for (const auto* stream : scene.window->findChildren<Vx::WebCameraPreviewStream*>())
        static_cast<Vx::UI::VideoPreviewWidget*>(stream->parent())->UpdateView(Catalogue::ColorBarsFrame(FRAME_SIZE));
    const QRect area = scene.widget->geometry().adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
    QImage picture((QSizeF(area.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(pixelRatio);
    scene.window->render(&picture, QPoint(), area);
    return picture;
}

QString DifferenceNow(EntryWindow& changed, EntryWindow& made, qreal pixelRatio)
{
    const QStringList tree = AccessibleTree(changed.widget);
    const QStringList expected = AccessibleTree(made.widget);
    for (int i = 0; i < qMax(tree.size(), expected.size()); ++i) {
        if (tree.value(i) != expected.value(i))
            return QStringLiteral("accessible:\n%1\ninstead of\n%2").arg(tree.value(i), expected.value(i));
    }
    if (changed.widget->geometry() != made.widget->geometry())
        return QStringLiteral("different geometry");
    const int difference = Support::LargestDifference(Picture(changed, pixelRatio), Picture(made, pixelRatio));
    return difference == 0 ? QString() : QStringLiteral("pixels differ by up to %1").arg(difference);
}

} // namespace

QString Difference(EntryWindow& changed, EntryWindow& made, qreal pixelRatio)
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
