#pragma once

#include <QMetaProperty>
#include <QString>
#include <QVariant>

namespace Zelkor::Gallery {

/// Returns the number of an enum or flags value of any type.
int EnumNumber(const QVariant& value);

/// Returns the declaration `qproperty-name: value;` that sets a property in a style sheet; empty if style sheets cannot
/// set the property to this value. `file` is the path of a picture, which values lack.
QString StyleSheetLine(const QMetaProperty& property, const QVariant& value, const QString& file = {});

} // namespace Zelkor::Gallery
