#include "PartsEditor.h"
#include "EditorSpinBox.h"
#include "MetaTypes.h"

#include <UI/Kit/ZDoubleSpinBox.h>

#include <QGridLayout>
#include <QPointF>
#include <QRectF>
#include <QSignalBlocker>
#include <QVector>

#include <limits>

namespace Zelkor::Gallery {

namespace {

// The numbers of a point, size or rectangle, one spin box each.
struct Parts
{
    QStringList names;
    std::function<QVector<double>(const QVariant& value)> split;
    std::function<QVariant(const QVector<double>& numbers)> join;
};

Parts PartsOf(int type)
{
    const QStringList place = {"x", "y"};
    const QStringList extent = {Editors::tr("w", "short for width"), Editors::tr("h", "short for height")};
    const auto point = [](const QPointF& p) { return QVector<double>{p.x(), p.y()}; };
    const auto size = [](const QSizeF& s) { return QVector<double>{s.width(), s.height()}; };
    switch (type) {
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return {place, [=](const QVariant& value) { return point(value.toPointF()); },
                [](const QVector<double>& n) { return QPointF(n[0], n[1]); }};
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return {extent, [=](const QVariant& value) { return size(value.toSizeF()); },
                [](const QVector<double>& n) { return QSizeF(n[0], n[1]); }};
    default:
        return {place + extent,
                [=](const QVariant& value) {
                    const QRectF rect = value.toRectF();
                    return point(rect.topLeft()) + size(rect.size());
                },
                [](const QVector<double>& n) { return QRectF(n[0], n[1], n[2], n[3]); }};
    }
}

} // namespace

PropertyControl CreatePartsEditor(int type, QWidget* parent, const ValueListener& listener)
{
    auto* control = new QWidget(parent);
    auto* grid = new QGridLayout(control);
    grid->setContentsMargins(0, 0, 0, 0);
    const Parts parts = PartsOf(type);
    const bool isWhole = type == QMetaType::QPoint || type == QMetaType::QSize || type == QMetaType::QRect;
    QVector<ZDoubleSpinBox*> boxes;
    for (const QString& name : parts.names) {
        auto* box =
            CreateSpinBox<ZDoubleSpinBox>(control, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        box->setDecimals(isWhole ? 0 : DECIMALS);
        box->setPrefix(name + ' ');
        // Two boxes in a row leave no space for arrow buttons; the arrow keys work.
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        box->setAccessibleName(name);
        grid->addWidget(box, boxes.size() / 2, boxes.size() % 2);
        boxes.append(box);
    }
    control->setFocusProxy(boxes.first());
    for (ZDoubleSpinBox* box : boxes) {
        QObject::connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), control, [=] {
            QVector<double> numbers;
            for (const ZDoubleSpinBox* other : boxes)
                numbers.append(other->value());
            listener(Converted(parts.join(numbers), type), QString());
        });
    }
    return {control, [boxes, parts](const QVariant& value) {
                const QVector<double> numbers = parts.split(value);
                for (int i = 0; i < boxes.size(); ++i) {
                    // Setting the boxes one by one is not user input.
                    const QSignalBlocker blocker(boxes[i]);
                    boxes[i]->setValue(numbers[i]);
                }
            }};
}

} // namespace Zelkor::Gallery
