#pragma once

#include <QProxyStyle>

#include <functional>

namespace Zelkor::Vx::UI::Kit {

/// The style "Fusion" below a style sheet, with the parts that sheets do not reach in the colours of the palette:
/// dials, tick marks of sliders, title bars in a QMdiArea, and the weekends of calendars (BrightText). Standard icons
/// are the sheet's. Item views are arranged anew once polished; the rows of column views follow the sheet.
class SheetStyle : public QProxyStyle
{
public:
    /// `icon` returns an icon of the sheet by its name.
    explicit SheetStyle(std::function<QIcon(const QString& name)> icon);

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    using QProxyStyle::unpolish;
    void unpolish(QWidget* widget) override;

    /// Called by Qt with the palette of the platform. Sends the application a ThemeChange after a change of it, which
    /// Qt does not report if the application has a palette.
    void polish(QPalette& palette) override;

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    const std::function<QIcon(const QString&)> iconOfSheet;
    QPalette platformPalette;
};

} // namespace Zelkor::Vx::UI::Kit
