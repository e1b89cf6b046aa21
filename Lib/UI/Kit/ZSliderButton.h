#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QFrame;
class QSlider;
class QStackedWidget;
class QToolButton;

/// A level button, such as a volume button: shows one of five level steps and opens a vertical slider from 0 to 100
/// above itself when clicked. The application can toggle it between level 0 and the previous level.
///
/// Keys: Space and Enter open the slider. Up, Down, Page Up, Page Down, Home and End change the level, as does the
/// wheel while the button has the focus. Escape, Space and Enter close the slider.
///
/// Style sheets select the parts by the property `styleTag`: "ZSliderButton0" (level 0) to "ZSliderButton4" (75 and
/// more) are tool buttons, one of which is visible. They are checked while the slider has the focus and have `:focus`
/// while this widget has it. "ZSliderButtonMain" is the stack that contains them. The pop-up is "#sliderFrame", the
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

    /// The level, 0 to 100; 0 by default.
    int value() const;

    /// Whether `toggle` switched the button on; false by default, independent of the level.
    bool isOn() const { return on; }

    /// Whether the pop-up is a top-level window above other windows; false by default. Such a pop-up gets the style
    /// sheet of the application only. A change closes the slider.
    bool isOnTop() const { return onTop; }
    void setOnTop(bool isOnTop);

    /// Whether the pop-up has the shadow of the window system; true by default. False is final, and on Windows removes
    /// the shadow of all pop-ups of the application, which share a window class. No effect on X11 and Wayland, where
    /// the compositor draws shadows.
    bool hasShadow() const { return shadow; }
    void setShadow(bool hasShadow);

    /// Height of the pop-up in pixels; 120 by default. Clamped to 1 and the height of the screen when the pop-up opens.
    int sliderHeight() const { return popUpHeight; }
    void setSliderHeight(int height);

Q_SIGNALS:
    /// Emitted when the level is set, even to the same value.
    void valueChanged(int value);

    /// Emitted by `toggle`, after `valueChanged`.
    void toggled(bool on);

public Q_SLOTS:
    /// Sets the level, clamped to 0 to 100. Shows the step of the level; 100 has none and keeps the current step.
    void setValue(int newValue);

    /// Switches off, which saves the level and sets 0, or on, which sets the saved level.
    void toggle();
    void toggle(bool isOn);

protected Q_SLOTS:
    /// Opens the slider above the button, or where the screen has room for it.
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
    QFrame* sliderFrame = nullptr; ///< has no parent if on top
    QStackedWidget* stack = nullptr;
    int savedValue = 0;
    bool on = false;
    bool onTop = false;
    bool shadow = true;
    int popUpHeight = 120;
    QElapsedTimer sinceHidden; ///< since a top-level pop-up lost the focus to a press on the button
    bool isClosingPress = false;
};
