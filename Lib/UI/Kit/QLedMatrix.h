#pragma once

#include <QColor>
#include <QWidget>

#include <memory>

/// A grid of round LEDs, each of a colour of its own, as large as the widget allows at the grid's aspect ratio.
///
/// An LED that is off has the dark colour. Colours are 0xAARRGGBB; what is translucent lets the background through.
/// Rows and columns count from the top left, in right-to-left layouts as well, for they make a picture. A grid has no
/// rows and columns at first. GUI thread only.
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
        NoColor = 0xFF222222, ///< the dark colour as it is at first
        Red = 0xFFFF0000,
        Green = 0xFF00FF00,
        Blue = 0xFF0000FF,
        White = 0xFFFFFFFF,
        Orange = 0xFFFF8800,
        OrangeRed = 0xFFFF2200,
        Yellow = 0xFFFFFF00
    };
    Q_ENUM(LEDColor)

    explicit QLedMatrix(QWidget* parent = nullptr);
    ~QLedMatrix() override;

    /// What is behind the LEDs, black by default; not painted in `Qt::TransparentMode`.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor& color);

    Qt::BGMode backgroundMode() const;
    void setBackgroundMode(Qt::BGMode mode);

    /// The colour of an LED that is off. LEDs that have it when it changes are off, and take the new one: a style sheet
    /// may set it after the application has built the grid.
    QColor darkLedColor() const;
    void setDarkLedColor(const QColor& color);

    /// The size of the grid. New LEDs are off. A negative count is ignored. So is one, with a warning, by which the
    /// preferred size would be larger than a widget can be (1677721 rows or columns), or by which the grid would have
    /// more than 2^24 LEDs: they take 64 MiB, and no screen shows as many.
    int rows() const;
    void setRowCount(int count);
    int columns() const;
    void setColumnCount(int count);

    /// The colour of an LED. Warns and returns the dark colour when there is no such LED.
    QRgb colorAt(int row, int column) const;

    /// Sets the colour of an LED; warns when there is no such LED. Without `update` the change shows with the next one
    /// that comes with it, or with the next repaint.
    void setColorAt(int row, int column, QRgb color, bool update = true);

    /// Switches all LEDs off.
    void clear();

    /// Ten pixels for each LED. Warns when there is none.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};
