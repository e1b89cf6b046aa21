#pragma once

#include <QColor>
#include <QWidget>

#include <memory>

/// A grid of round LEDs, each with its own colour, scaled to the widget with the aspect ratio of the grid.
///
/// An LED that is off has the dark colour. Colours are 0xAARRGGBB; translucent ones are blended with the background.
/// Rows and columns count from the top left in every layout direction, because the grid is a picture. GUI thread only.
class QLedMatrix : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(Qt::BGMode backgroundMode READ backgroundMode WRITE setBackgroundMode)
    Q_PROPERTY(QColor darkLedColor READ darkLedColor WRITE setDarkLedColor)
    Q_PROPERTY(int rows READ rows WRITE setRowCount)
    Q_PROPERTY(int columns READ columns WRITE setColumnCount)

public:
    enum LEDColor : QRgb {
        NoColor = 0xFF222222,   ///< dark grey, the default of `darkLedColor`
        Red = 0xFFFF0000,       ///< pure red
        Green = 0xFF00FF00,     ///< pure green
        Blue = 0xFF0000FF,      ///< pure blue
        White = 0xFFFFFFFF,     ///< full white
        Orange = 0xFFFF8800,    ///< light orange
        OrangeRed = 0xFFFF2200, ///< orange that is nearly red
        Yellow = 0xFFFFFF00     ///< pure yellow
    };
    Q_ENUM(LEDColor)

    explicit QLedMatrix(QWidget* parent = nullptr);
    ~QLedMatrix() override;

    /// Colour behind the LEDs, not painted in `Qt::TransparentMode`; black by default.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor& color);

    /// Whether the background is painted; `Qt::OpaqueMode` by default.
    Qt::BGMode backgroundMode() const;
    void setBackgroundMode(Qt::BGMode mode);

    /// Colour of an LED that is off; `NoColor` by default. A new colour replaces the old one in all LEDs that have it,
    /// because a style sheet may set it after the application filled the grid.
    QColor darkLedColor() const;
    void setDarkLedColor(const QColor& color);

    /// Number of rows; 0 by default. New LEDs are off. Ignores a negative count and, with a warning, more than 1677721
    /// rows (the largest size hint of a widget) or 2^24 LEDs in total (64 MiB).
    int rows() const;
    void setRowCount(int count);

    /// Number of columns; 0 by default. Limits are those of rows.
    int columns() const;
    void setColumnCount(int count);

    /// Returns the colour of an LED. Warns and returns the dark colour for coordinates outside the grid.
    QRgb colorAt(int row, int column) const;

    /// Sets the colour of an LED; warns about coordinates outside the grid. With `update` false, the change is painted
    /// after the next call with `update` true or with the next repaint.
    void setColorAt(int row, int column, QRgb color, bool update = true);

    /// Switches off all LEDs.
    void clear();

    /// Returns ten pixels for each LED. Warns about an empty grid.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};
