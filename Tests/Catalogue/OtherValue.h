#pragma once

#include <QColor>
#include <QMetaProperty>
#include <QRect>
#include <QTime>

/// Returns a valid value of a property other than `old`; invalid for some types.
inline QVariant OtherValue(const QMetaProperty& property, const QVariant& old)
{
    if (property.isEnumType()) {
        const QMetaEnum keys = property.enumerator();
        // Not every enum and set of flags has a registered conversion.
        const int number = *static_cast<const int*>(old.constData());
        return keys.value(keys.value(0) == number ? keys.keyCount() - 1 : 0);
    }
    switch (old.userType()) {
    case QMetaType::Bool:
        return !old.toBool();
    case QMetaType::Int:
        return old.toInt() + 3;
    case QMetaType::LongLong:
        return old.toLongLong() + 3000;
    case QMetaType::Double:
        return old.toDouble() > 1 ? old.toDouble() / 2 : old.toDouble() + 1;
    case QMetaType::QString:
        return QByteArray(property.name()).endsWith("Style") ? "border: 2px solid red;" : "Longer than before, & other";
    case QMetaType::QStringList:
        return QStringList{QStringLiteral("h:mm"), QStringLiteral("h:mm:ss")};
    case QMetaType::QColor:
        return QColor(53, 103, 17);
    case QMetaType::QPoint:
        return old.toPoint() + QPoint(3, 5);
    case QMetaType::QRect:
        return QRect(5, 6, 17, 8);
    case QMetaType::QSize:
        return old.toSize().expandedTo(QSize(0, 0)) + QSize(5, 7);
    case QMetaType::QTime:
        return QTime(1, 2, 3);
    default:
        return {};
    }
}
