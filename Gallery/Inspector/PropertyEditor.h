#pragma once

#include <QMetaProperty>
#include <QString>
#include <QVariant>

#include <functional>

class QWidget;

namespace Zelkor::Gallery {

/// A control for the values of one property.
struct PropertyEditor
{
    QWidget* control = nullptr; ///< null for a type that is not edited

    /// Shows a value. The control may tell it as if a person had entered it.
    std::function<void(const QVariant& value)> show;
};

/// What a person entered. `file` is where a picture came from.
using ValueListener = std::function<void(const QVariant& value, const QString& file)>;

/// A control for a property, by its type: bool, numbers, texts, colours, enums, flags, points, sizes, rectangles,
/// times, and pictures by file. The parent owns it. A picture that cannot be read is not told.
PropertyEditor CreatePropertyEditor(const QMetaProperty& property, QWidget* parent, const ValueListener& listener);

} // namespace Zelkor::Gallery
