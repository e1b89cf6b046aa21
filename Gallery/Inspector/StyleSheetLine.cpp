#include "StyleSheetLine.h"

#include <QColor>
#include <QMetaEnum>
#include <QRect>
#include <QStringList>
#include <QTime>

#include <cmath>

namespace Zelkor::Gallery {

namespace {

constexpr int DOUBLE_DECIMALS = 12;

// Properties that Qt sets for backgrounds and hover rules, after the declarations.
bool IsOfStyleSheets(const char* property)
{
    return qstrcmp(property, "autoFillBackground") == 0 || qstrcmp(property, "mouseTracking") == 0;
}

// Style sheets escape characters as up to six hexadecimal digits. Qt resolves escapes before it scans strings, so a
// special character needs an escaped backslash before it; a plain one before a digit would start another escape.
QString Quoted(const QString& text)
{
    QString result = "\"";
    for (const QChar c : text) {
        const bool isSpecial = c == '"' || c == '\\' || c.category() == QChar::Other_Control;
        if (isSpecial)
            result += QString("\\00005c\\%1").arg(c.unicode(), 6, 16, QChar('0'));
        else
            result += c;
    }
    return result + '"';
}

// Without an exponent, which style sheets do not support.
QString NumberText(double number)
{
    if (!std::isfinite(number))
        return QString();
    QString text = QString::number(number, 'f', DOUBLE_DECIMALS);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    // Too small or too long for these decimals.
    return text.toDouble() == number ? text : QString();
}

// Quotes words, because style sheets convert some of them to numbers.
QString EnumText(const QMetaEnum& type, int number)
{
    const QByteArray keys = type.isFlag() ? type.valueToKeys(number) : QByteArray(type.valueToKey(number));
    return keys.isEmpty() ? QString() : Quoted(keys);
}

QString ColorText(const QColor& color)
{
    if (!color.isValid())
        return QString();
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString ValueText(const QVariant& value, const QString& file)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return NumberText(value.toDouble());
    case QMetaType::QString:
        return Quoted(value.toString());
    case QMetaType::QStringList: {
        // A declaration contains one text, which Qt converts to a list of one.
        const QStringList list = value.toStringList();
        return list.size() == 1 ? Quoted(list.first()) : QString();
    }
    case QMetaType::QColor:
        return ColorText(value.value<QColor>());
    case QMetaType::QSize:
        return QString("%1px %2px").arg(value.toSize().width()).arg(value.toSize().height());
    case QMetaType::QRect: {
        const QRect rect = value.toRect();
        return QString("rect(%1 %2 %3 %4)").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
    }
    case QMetaType::QTime:
        return value.toTime().isValid() ? Quoted(value.toTime().toString(Qt::ISODateWithMs)) : QString();
    case QMetaType::QImage:
    case QMetaType::QPixmap:
        return file.isEmpty() ? QString() : QString("url(%1)").arg(Quoted(file));
    default:
        return QString();
    }
}

} // namespace

int EnumNumber(const QVariant& value)
{
    // Enums and flags have the size of an int, also without a registered conversion.
    return value.userType() == QMetaType::Int || !value.constData() ? value.toInt()
                                                                    : *static_cast<const int*>(value.constData());
}

QString StyleSheetLine(const QMetaProperty& property, const QVariant& value, const QString& file)
{
    if (!property.isWritable() || !property.isDesignable() || IsOfStyleSheets(property.name()))
        return QString();
    const QString text =
        property.isEnumType() ? EnumText(property.enumerator(), EnumNumber(value)) : ValueText(value, file);
    return text.isEmpty() ? QString() : QString("qproperty-%1: %2;").arg(property.name(), text);
}

} // namespace Zelkor::Gallery
