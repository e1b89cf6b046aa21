#include "FormWidget.h"
#include "FormXml.h"
#include "Placeholder.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <UI/Kit/ZFrame.h>

#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QStackedWidget>

namespace Zelkor::Designer {

namespace {

constexpr int ICON_SIZES[] = {16, 22, 24, 48};

} // namespace

QString FormWidget::name() const
{
    return QString::fromLatin1(entry.form.metaObject->className());
}

QString FormWidget::group() const
{
    return entry.form.header.startsWith("UI/Kit/") ? QStringLiteral("VxUiWidgets Kit") : QStringLiteral("VxUiWidgets");
}

QString FormWidget::toolTip() const
{
    return entry.description;
}

QString FormWidget::whatsThis() const
{
    return entry.description;
}

QString FormWidget::includeFile() const
{
    return entry.form.header;
}

// Uses ZStyleSheet::ownIcon(), because Designer has no search path for the icons. Its widget box ignores icons without
// available sizes.
QIcon FormWidget::icon() const
{
    const bool isDark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    static const std::optional<ZStyleSheet> sheets[] = {Examples::LoadStyleSheet("light"),
                                                        Examples::LoadStyleSheet("dark")};
    const QIcon drawn = sheets[isDark]->ownIcon(entry.icon);
    QIcon icon;
    for (const int size : ICON_SIZES)
        icon.addPixmap(drawn.pixmap(size));
    return icon;
}

bool FormWidget::isContainer() const
{
    return HasPages(*entry.form.metaObject) || entry.form.metaObject == &ZFrame::staticMetaObject;
}

void FormWidget::initialize(QDesignerFormEditorInterface*)
{
    isInEditor = true;
}

QWidget* FormWidget::createWidget(QWidget* parent)
{
    auto* widget = static_cast<QWidget*>(CreateBare(entry, parent));
    // In Designer, a stack of fixed size and its empty pages could not be resized.
    if (auto* stack = qobject_cast<QStackedWidget*>(widget); stack && isInEditor)
        QObject::disconnect(stack, &QStackedWidget::currentChanged, stack, nullptr);
    if (isInEditor && IsBlank(*entry.form.metaObject))
        ShowPlaceholder(widget, entry.className);
    return widget;
}

QString FormWidget::domXml() const
{
    return FormXml(entry);
}

} // namespace Zelkor::Designer
