#pragma once

#include <QMetaProperty>
#include <QString>
#include <QVariant>

namespace Zelkor::Gallery {

/// The value of a property; invalid, where `read` would warn, for a type that Qt does not know.
QVariant ReadProperty(const QMetaProperty& property, const QObject* object);

/// A value as one line of text.
QString PropertyText(const QMetaProperty& property, const QVariant& value);

/// Whether two values of one property are the same; not known, and so false, for a type that cannot be compared.
bool AreSame(const QMetaProperty& property, const QVariant& a, const QVariant& b);

} // namespace Zelkor::Gallery
