#pragma once

#include <Catalogue/AccessibleEvents.h>
#include <Catalogue/EntryWindow.h>
#include <Catalogue/SamplePictures.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Support/Picture.h>

constexpr int LONGEST_ANIMATION_MS = 1000;
constexpr int MARGIN = 8; ///< around the widget, which must not paint there

// One line for each visible interface, with its rectangle relative to the widget.
inline QStringList AccessibleTree(QWidget* widget)
{
    QStringList lines;
    const QPoint origin = widget->mapToGlobal(QPoint());
    VisitAccessible(QAccessible::queryAccessibleInterface(widget), [&](auto& interface, QObject* owner, auto& path) {
        const auto* part = qobject_cast<QWidget*>(owner);
        if (part && !part->isVisible())
            return;
        QString line;
        QDebug(&line) << owner->metaObject()->className() << path << "role" << interface.role() << "name"
                      << interface.text(QAccessible::Name) << "description" << interface.text(QAccessible::Description)
                      << "value" << interface.text(QAccessible::Value) << "state" << StateBits(interface.state())
                      << interface.rect().translated(-origin);
        lines.append(line);
    });
    return lines;
}

inline QImage Picture(EntryWindow& scene, qreal pixelRatio)
{
    // Replaces live video, which differs between two pictures.
    for (const auto* stream : scene.window->findChildren<Zelkor::Vx::WebCameraPreviewStream*>())
        static_cast<Zelkor::Vx::UI::VideoPreviewWidget*>(stream->parent())
            ->UpdateView(Zelkor::Catalogue::ColorBarsFrame({160, 120}));
    const QRect area = scene.widget->geometry().adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
    QImage picture((QSizeF(area.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(pixelRatio);
    scene.window->render(&picture, QPoint(), area);
    return picture;
}

inline QString DifferenceNow(EntryWindow& changed, EntryWindow& made, qreal pixelRatio)
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

/// Compares two inactive windows until they are alike or animations must have ended. Returns an empty string, or the
/// first difference in accessibility, geometry or pixels. `pixelRatio` is the device pixel ratio of the pictures.
inline QString Difference(EntryWindow& changed, EntryWindow& made, qreal pixelRatio = 1)
{
    QString difference;
    const bool isAlike = QTest::qWaitFor(
        [&] {
            Settle();
            QApplication::setActiveWindow(nullptr);
            difference = DifferenceNow(changed, made, pixelRatio);
            return difference.isEmpty();
        },
        LONGEST_ANIMATION_MS);
    return isAlike ? QString() : difference;
}
