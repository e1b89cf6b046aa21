#pragma once

#include <QMetaProperty>
#include <QString>
#include <QVariant>

namespace Zelkor::Gallery {

/// Returns the value of a property; invalid for a type unknown to Qt, for which QMetaProperty::read() warns.
QVariant ReadProperty(const QMetaProperty& property, const QObject* object);

/// Returns a value as one line of text.
QString PropertyText(const QMetaProperty& property, const QVariant& value);

/// Returns whether two values of a property are equal; false for types without comparison.
bool AreSame(const QMetaProperty& property, const QVariant& a, const QVariant& b);

} // namespace Zelkor::Gallery
