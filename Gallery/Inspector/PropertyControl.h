#pragma once

#include <QString>
#include <QVariant>

#include <functional>

class QWidget;

namespace Zelkor::Gallery {

/// A control that shows and edits the value of a property.
struct PropertyControl
{
    QWidget* widget = nullptr; ///< null for a type that cannot be edited

    /// Shows a value. The control may report it to its listener like user input.
    std::function<void(const QVariant& value)> show;
};

/// Receives user input. `file` is where a picture was read from.
using ValueListener = std::function<void(const QVariant& value, const QString& file)>;

} // namespace Zelkor::Gallery
