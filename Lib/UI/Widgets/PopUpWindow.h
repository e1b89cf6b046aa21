#pragma once

#include <UI/Kit/ZFrame.h>
#include <UI/Widgets/PopUpPlacement.h>

class QAbstractButton;
class QBoxLayout;

namespace Zelkor::Vx::UI {

/// The transparent pop-up window of a `ButtonWithPopUpContainer`, with the panel inside. Internal.
///
/// Mirrors its visibility in the button's checked state and follows the button while it is visible. The button owns the
/// window; a window that is handling an event when the button dies outlives it until that event returns.
class PopUpWindow : public ZFrame
{
public:
    /// Take effect when the window opens next.
    struct Settings
    {
        PopUpPlacement::Direction direction = PopUpPlacement::Direction::DownRight;
        PopUpPlacement::Anchor anchor = PopUpPlacement::Anchor::BottomLeft;
        bool canOverlapButton = true;
        int vOffset = 0; ///< pixels
        int hOffset = 0; ///< pixels
    };

    explicit PopUpWindow(QAbstractButton* button);

    void setVisible(bool visible) override;

    /// Shows the window. Opened by a key or by the application, it focuses its first widget; opened by the mouse, none.
    void Open();

    /// Called from the button's destructor.
    void LeaveButton();

    /// Sets the button's checked state. A slot of `toggled()` may delete the button and the window.
    void SetButtonChecked(bool isChecked);

    bool IsButtonInUse() const;

    ZFrame* container;
    QBoxLayout* containerLayout;
    Settings settings;
    bool showPopupOnClick = true;
    bool isMouseReleased = false; ///< while the button handles the release
    bool wasButtonInUse = false;  ///< when it was clicked last

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QRect ButtonRect() const;
    QPoint ComputePopupPosition() const;
    void Place();
    void FollowButton();
    void FocusFirstWidget();
    void WatchButton(bool isWatched);

    QAbstractButton* button; ///< null once the window has outlived it
    Settings shown;          ///< the settings when the window was shown last
    QRect requested;         ///< the geometry of the last placement
    int eventDepth = 0;
};

} // namespace Zelkor::Vx::UI
