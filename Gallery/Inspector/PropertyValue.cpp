#include "PropertyValue.h"
#include "StyleSheetLine.h"

#include <QColor>
#include <QDebug>
#include <QImage>
#include <QPixmap>

namespace Zelkor::Gallery {

namespace {

constexpr int LONGEST_TEXT = 80; ///< maximum characters of a value

} // namespace

QVariant ReadProperty(const QMetaProperty& property, const QObject* object)
{
    return property.userType() == QMetaType::UnknownType ? QVariant() : property.read(object);
}

QString PropertyText(const QMetaProperty& property, const QVariant& value)
{
    QString text;
    if (!value.isValid())
        text = QChar(0x2014);
    else if (property.isFlagType())
        text = property.enumerator().valueToKeys(EnumNumber(value));
    else if (property.isEnumType())
        text = property.enumerator().valueToKey(EnumNumber(value));
    else if (value.userType() == QMetaType::QColor)
        text = value.value<QColor>().isValid() ? value.value<QColor>().name(QColor::HexArgb) : QString();
    else if (value.canConvert<QString>())
        text = value.toString();
    else
        QDebug(&text).nospace().noquote() << value;
    // Removes the type name that QDebug writes before the value.
    if (text.startsWith("QVariant("))
        text = text.section(", ", 1).chopped(1);
    text = text.simplified();
    return text.size() > LONGEST_TEXT ? text.left(LONGEST_TEXT) + QChar(0x2026) : text;
}

bool AreSame(const QMetaProperty& property, const QVariant& a, const QVariant& b)
{
    if (property.isEnumType())
        return EnumNumber(a) == EnumNumber(b);
    if (a.userType() == QMetaType::QPixmap && b.userType() == QMetaType::QPixmap)
        return a.value<QPixmap>().toImage() == b.value<QPixmap>().toImage();
    return a == b;
}

} // namespace Zelkor::Gallery
