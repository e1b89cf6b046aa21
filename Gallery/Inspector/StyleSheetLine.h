#pragma once

#include <QMetaProperty>
#include <QString>
#include <QVariant>

namespace Zelkor::Gallery {

/// The number behind a value of an enum or flags property, whichever type its meta-object gives it.
int EnumNumber(const QVariant& value);

/// The declaration that has a style sheet give a property this value, `qproperty-name: value;`. Empty when style sheets
/// cannot set the property or not to this value. `file` is where a picture came from; values do not know.
QString StyleSheetLine(const QMetaProperty& property, const QVariant& value, const QString& file = {});

} // namespace Zelkor::Gallery
