#include <UI/Kit/StyleSheetEditor/StyleSheetTarget.h>

#include <QApplication>

#include <algorithm>

namespace Zelkor::Vx::UI::Kit {

void StyleSheetTarget::set(QWidget* widget)
{
    chosen = widget;
    application = !widget;
}

QString StyleSheetTarget::sheet() const
{
    if (application)
        return qApp->styleSheet();
    return chosen ? chosen->styleSheet() : QString();
}

void StyleSheetTarget::apply(const QString& sheet)
{
    const auto isGone = [](const Original& original) { return !original.ofApplication && !original.widget; };
    originals.erase(std::remove_if(originals.begin(), originals.end(), isGone), originals.end());
    if (findOriginal() == originals.end())
        originals.append({chosen, application, this->sheet()});
    setSheet(sheet);
}

bool StyleSheetTarget::revert()
{
    const auto original = findOriginal();
    if (!exists() || original == originals.end())
        return false;
    const QString sheet = original->sheet;
    originals.erase(original);
    setSheet(sheet);
    return true;
}

void StyleSheetTarget::setSheet(const QString& sheet)
{
    if (application)
        qApp->setStyleSheet(sheet);
    else if (chosen)
        chosen->setStyleSheet(sheet);
}

QVector<StyleSheetTarget::Original>::iterator StyleSheetTarget::findOriginal()
{
    return std::find_if(originals.begin(), originals.end(), [this](const Original& original) {
        return original.ofApplication == application && original.widget == chosen;
    });
}

} // namespace Zelkor::Vx::UI::Kit
