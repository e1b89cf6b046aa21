// Prints enumerations, properties, signals and slots of each exported class in the order of their declaration: what
// applications, style sheets and forms depend on.

#include <ExportedClasses.h>

#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>

#include <cstdio>

namespace {

QByteArray Describe(const QMetaEnum& enumeration)
{
    QByteArray text = QByteArray(enumeration.isFlag() ? "flags " : "enum ") + enumeration.name() + ':';
    for (int i = 0; i < enumeration.keyCount(); ++i)
        text += QByteArray(" ") + enumeration.key(i) + '=' + QByteArray::number(enumeration.value(i));
    return text;
}

// Versions of Qt differ in how they write the names of enumerations.
QByteArray TypeName(const QMetaProperty& property)
{
    const QMetaEnum enumeration = property.enumerator();
    if (!enumeration.isValid())
        return property.typeName();
    return QByteArray(enumeration.scope()) + "::" + enumeration.name();
}

QByteArray Describe(const QMetaProperty& property)
{
    QByteArray text = "property " + TypeName(property) + ' ' + property.name();
    const std::pair<bool, const char*> traits[] = {{property.isWritable(), " writable"},
                                                   {property.isResettable(), " resettable"},
                                                   {property.isDesignable(), " designable"},
                                                   {property.isStored(), " stored"},
                                                   {property.isUser(), " user"}};
    for (const auto& [isSet, name] : traits)
        text += isSet ? name : "";
    return property.hasNotifySignal() ? text + " notify " + property.notifySignal().name() : text;
}

QByteArray Describe(const QMetaMethod& method)
{
    const bool isSignal = method.methodType() == QMetaMethod::Signal;
    return QByteArray(isSignal ? "signal " : "method ") + method.typeName() + ' ' + method.methodSignature();
}

void Print(const QMetaObject& meta)
{
    std::printf("%s: %s\n", meta.className(), meta.superClass()->className());
    for (int i = meta.enumeratorOffset(); i < meta.enumeratorCount(); ++i)
        std::printf("  %s\n", Describe(meta.enumerator(i)).constData());
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        std::printf("  %s\n", Describe(meta.property(i)).constData());
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).access() != QMetaMethod::Private)
            std::printf("  %s\n", Describe(meta.method(i)).constData());
    }
}

} // namespace

int main()
{
#define X(CLASS) Print(CLASS::staticMetaObject);
#include <ExportedClassList.h>
#undef X
}
