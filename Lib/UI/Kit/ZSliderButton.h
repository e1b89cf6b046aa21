#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QFrame;
class QSlider;
class QStackedWidget;
class QToolButton;

/// A level button, of the volume kind: it shows one of five level steps, opens a vertical slider from 0 to 100 above
/// itself when it is clicked, and can be switched off and on by the application, which is to say to 0 and back.
///
/// By keyboard, Space and Enter open the slider, the arrows up and down, Page Up, Page Down, Home and End change the
/// level at once; the wheel does while the button has the focus. Escape, Space and Enter close the slider.
///
/// A style sheet addresses the parts by the property `styleTag`: "ZSliderButton0" (level 0) to "ZSliderButton4" (75 and
/// more) are the tool buttons, of which one shows; they are checked while the slider has the focus, and drawn with the
/// focus while this widget has it. "ZSliderButtonMain" is the stack that holds them. The pop-up is "#sliderFrame", the
/// slider in it "#slider". GUI thread only.
class ZSliderButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool onTop READ isOnTop WRITE setOnTop)
    Q_PROPERTY(bool shadow READ hasShadow WRITE setShadow)
    Q_PROPERTY(int sliderHeight READ sliderHeight WRITE setSliderHeight)

public:
    explicit ZSliderButton(QWidget* parent = nullptr);
    ~ZSliderButton() override;

    /// The level, 0 to 100; 0 at first.
    int value() const;

    /// Whether the button was switched on by `toggle`; off at first, whatever the level is.
    bool isOn() const { return on; }

    /// Whether the slider is in a window of its own, which does not belong to this widget's window and lies over
    /// others; off by default. It has the style sheet of the application alone then. Closes the slider when it changes.
    bool isOnTop() const { return onTop; }
    void setOnTop(bool isOnTop);

    /// Whether the pop-up keeps the shadow that the window system gives it; on by default. It cannot be given back. On
    /// Windows the shadow goes from all pop-ups of the application, whose windows are of one class. Elsewhere nothing
    /// happens: X11 and Wayland leave shadows to the compositor.
    bool hasShadow() const { return shadow; }
    void setShadow(bool hasShadow);

    /// The height of the pop-up in pixels, 120 by default. Takes effect when it opens the next time. Less than 1 counts
    /// as 1, more than the height of the screen as that.
    int sliderHeight() const { return popUpHeight; }
    void setSliderHeight(int height);

Q_SIGNALS:
    /// The level was set, to another value or the same.
    void valueChanged(int value);

    /// The button was switched. Comes after `valueChanged`.
    void toggled(bool on);

public Q_SLOTS:
    /// Sets the level, cut to 0 to 100. The step that shows changes with it, but for 100, which has no step of its own:
    /// the one of before stays.
    void setValue(int newValue);

    /// Switches off, which remembers the level and sets 0, or on, which sets the level that was remembered last.
    void toggle();
    void toggle(bool isOn);

protected Q_SLOTS:
    /// Opens the slider above the button, or where there is room for it on the screen.
    void showSlider();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static constexpr int LEVELS = 5;

    void createLevelButtons();
    void createSlider();
    void setLevelsChecked(bool checked);
    void showValue(int newValue);

    QToolButton* levelButtons[LEVELS] = {};
    QSlider* slider = nullptr;
    QFrame* sliderFrame = nullptr; ///< a child, or without a parent when on top
    QStackedWidget* stack = nullptr;
    int rememberedValue = 0;
    bool on = false;
    bool onTop = false;
    bool shadow = true;
    int popUpHeight = 120;
    QElapsedTimer sinceHidden; ///< since the slider on top lost the focus with the pointer on the button
    bool isClosingPress = false;
};
