#pragma once

#include <UI/Common/Export.h>

#include <QToolButton>

namespace Zelkor::Vx::UI {

class PopUpWindow;

/// A tool button that opens a pop-up panel of the application's widgets.
///
/// A click opens the panel. A press outside, hiding the button or disabling it closes the panel. The button is checked
/// while the panel is open, so `toggled()` reports both. The panel grows in one of six directions from one of six
/// anchors on the button, is kept on the button's screen and follows the button. The button owns the panel and the
/// widgets in it. A slot may delete the button. GUI thread only.
///
/// Keys: Space, Down, Alt+Down, F4 and the menu key open the panel, Tab moves the focus in it, and Escape closes it.
///
/// Object names for style sheets: "popUpWindow", the transparent window, and "popUpContainer", the panel in it. Both
/// are `ZFrame`s, whose margins and spacing are properties.
class VX_WIDGETS_EXPORT ButtonWithPopUpContainer : public QToolButton
{
    Q_OBJECT
    Q_ENUMS(PreferredPopupDirection)
    Q_ENUMS(PreferredPopupAnchor)
    Q_ENUMS(LayoutDirection)
    Q_PROPERTY(LayoutDirection layoutDirection READ GetLayoutDirection WRITE SetLayoutDirection)
    ///< order of the widgets in the panel; default top to bottom
    Q_PROPERTY(PreferredPopupDirection preferredPopupDirection READ GetPreferredPopupDirection WRITE
                   SetPreferredPopupDirection)
    ///< direction in which the panel grows; default down and to the right
    Q_PROPERTY(PreferredPopupAnchor preferredPopupAnchor READ GetPreferredPopupAnchor WRITE SetPreferredPopupAnchor)
    ///< point of the button that the panel is attached to; default bottom left
    Q_PROPERTY(bool popupCanOverlapButton READ GetPopupCanOverlapButton WRITE SetPopupCanOverlapButton)
    ///< whether the panel may cover the button; default true
    Q_PROPERTY(bool showPopupOnClick READ GetShowPopupOnClick WRITE SetShowPopupOnClick)
    ///< whether a click opens the panel; default true
    Q_PROPERTY(int popupHOffset READ GetPopupHOffset WRITE SetPopupHOffset)
    ///< horizontal distance from the button in pixels; default 0
    Q_PROPERTY(int popupVOffset READ GetPopupVOffset WRITE SetPopupVOffset)
    ///< vertical distance from the button in pixels; default 0

public:
    /// The direction in which the panel grows from its anchor.
    enum PreferredPopupDirection : int {
        DIRECTION_DOWN_RIGHT,  ///< the top left corner is at the anchor; the default
        DIRECTION_DOWN_CENTER, ///< the middle of the top edge is at the anchor
        DIRECTION_DOWN_LEFT,   ///< the top right corner is at the anchor
        DIRECTION_UP_RIGHT,    ///< the bottom left corner is at the anchor
        DIRECTION_UP_CENTER,   ///< the middle of the bottom edge is at the anchor
        DIRECTION_UP_LEFT,     ///< the bottom right corner is at the anchor
    };

    /// The point of the button that the panel is attached to.
    enum PreferredPopupAnchor : int {
        ANCHOR_TOP_LEFT,      ///< top left corner
        ANCHOR_TOP_CENTER,    ///< middle of the top edge
        ANCHOR_TOP_RIGHT,     ///< top right corner
        ANCHOR_BOTTOM_LEFT,   ///< bottom left corner; the default
        ANCHOR_BOTTOM_CENTER, ///< middle of the bottom edge
        ANCHOR_BOTTOM_RIGHT,  ///< bottom right corner
    };

    /// The order of the widgets in the panel.
    enum LayoutDirection : int {
        LAYOUT_LEFT_TO_RIGHT, ///< a row that starts at the left
        LAYOUT_RIGHT_TO_LEFT, ///< a row that starts at the right
        LAYOUT_TOP_TO_BOTTOM, ///< a column that starts at the top; the default
        LAYOUT_BOTTOM_TO_TOP, ///< a column that starts at the bottom
    };

    explicit ButtonWithPopUpContainer(QWidget* parent = nullptr);
    ~ButtonWithPopUpContainer() override;

    /// A value outside the enumeration counts as left to right.
    LayoutDirection GetLayoutDirection() const;
    void SetLayoutDirection(LayoutDirection direction);

    /// Direction, anchor and offsets take effect when the panel opens next.
    PreferredPopupDirection GetPreferredPopupDirection() const;
    void SetPreferredPopupDirection(PreferredPopupDirection direction);
    PreferredPopupAnchor GetPreferredPopupAnchor() const;
    void SetPreferredPopupAnchor(PreferredPopupAnchor anchor);

    /// When false, a panel that would cover the button opens on its opposite side, if it fits there.
    bool GetPopupCanOverlapButton() const;
    void SetPopupCanOverlapButton(bool canOverlap);

    /// When false, a click emits `clicked()` and leaves the button unchecked.
    bool GetShowPopupOnClick() const;
    void SetShowPopupOnClick(bool show);

    /// Distances by which the anchor moves away from the button. Centre anchors ignore the horizontal one.
    int GetPopupHOffset() const;
    void SetPopupHOffset(int offset);
    int GetPopupVOffset() const;
    void SetPopupVOffset(int offset);

    /// Appends a widget to the panel, which takes ownership. Logs and ignores null. Warns about and ignores a widget
    /// that contains the button or the panel, as do the functions below.
    void AppendWidget(QWidget* widget);

    /// Inserts a widget before the one at `index`; appends it for a negative index.
    void InsertWidget(QWidget* widget, int index);

    /// Removes a widget from the panel and deletes it later. Logs and ignores null and an index out of range.
    void RemoveWidget(QWidget* widget);
    void RemoveWidget(int index);

    /// Returns the widget at `index`. Returns null and logs an index out of range.
    QWidget* GetWidget(int index) const;

    int WidgetsCount() const;

    /// Opens the panel, regardless of `showPopupOnClick`.
    void ShowPopup();

    void setVisible(bool visible) override;

protected:
    void hideEvent(QHideEvent* event) override;
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    class Q_DECL_HIDDEN AccessibleButton;

    PopUpWindow* popUp;
};

} // namespace Zelkor::Vx::UI

// For code that Qt 5's uic writes for forms.
Q_DECLARE_METATYPE(Zelkor::Vx::UI::ButtonWithPopUpContainer::PreferredPopupDirection)
Q_DECLARE_METATYPE(Zelkor::Vx::UI::ButtonWithPopUpContainer::PreferredPopupAnchor)
Q_DECLARE_METATYPE(Zelkor::Vx::UI::ButtonWithPopUpContainer::LayoutDirection)
