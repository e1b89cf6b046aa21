#pragma once

#include <QMetaType>
#include <QVariant>

namespace Zelkor::Gallery {

/// Returns a copy of the value at `data` that has the metatype `type`.
inline QVariant ValueOf(int type, const void* data)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QVariant(QMetaType(type), data);
#else
    return QVariant(type, data);
#endif
}

/// Returns `value` as the metatype `type`.
inline QVariant Converted(QVariant value, int type)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    value.convert(QMetaType(type));
#else
    value.convert(type);
#endif
    return value;
}

} // namespace Zelkor::Gallery
