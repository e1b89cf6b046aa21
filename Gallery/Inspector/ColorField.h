#pragma once

#include <QColor>
#include <QLineEdit>

namespace Zelkor::Gallery {

/// A field for a colour: a swatch, which opens a dialog, and the colour as "#rrggbb" or "#aarrggbb". Takes any name
/// that QColor knows; an unknown one is replaced by the colour when the input ends.
class ColorField : public QLineEdit
{
    Q_OBJECT

public:
    explicit ColorField(QWidget* parent = nullptr);

    /// The colour; invalid by default. Does not emit `ColorChanged`.
    void SetColor(const QColor& color);
    QColor Color() const { return color; }

    /// Whether colours may be translucent; true by default.
    void SetAlphaEnabled(bool on) { hasAlpha = on; }

Q_SIGNALS:
    /// Emitted when the user changes the colour, also by each choice in the dialog.
    void ColorChanged(const QColor& color);

private:
    void Change(const QColor& newColor);
    void OpenDialog();

    QAction* swatch;
    QColor color;
    bool hasAlpha = true;
};

} // namespace Zelkor::Gallery
