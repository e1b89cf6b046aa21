#pragma once

#include <UI/Common/Export.h>

#include <QToolButton>

namespace Zelkor::Vx::UI {

class PopUpWindow;

/// A tool button that opens a floating panel of the application's widgets beside itself.
///
/// A click, Down, Alt+Down, F4 or the menu key opens the panel, and a press outside closes it, as does hiding or
/// disabling the button; while it is open the button is checked, and the panel follows it. The panel grows in one of
/// six directions from one of six points of the button, its anchor, and is kept inside the button's screen. The button
/// owns the panel and the widgets in it. GUI thread only.
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
    Q_PROPERTY(PreferredPopupDirection preferredPopupDirection READ GetPreferredPopupDirection WRITE
                   SetPreferredPopupDirection)
    Q_PROPERTY(PreferredPopupAnchor preferredPopupAnchor READ GetPreferredPopupAnchor WRITE SetPreferredPopupAnchor)
    Q_PROPERTY(bool popupCanOverlapButton READ GetPopupCanOverlapButton WRITE SetPopupCanOverlapButton)
    Q_PROPERTY(bool showPopupOnClick READ GetShowPopupOnClick WRITE SetShowPopupOnClick)
    Q_PROPERTY(int popupHOffset READ GetPopupHOffset WRITE SetPopupHOffset)
    Q_PROPERTY(int popupVOffset READ GetPopupVOffset WRITE SetPopupVOffset)

public:
    /// The way in which the panel grows from its anchor.
    enum PreferredPopupDirection : int {
        DIRECTION_DOWN_RIGHT,
        DIRECTION_DOWN_CENTER,
        DIRECTION_DOWN_LEFT,
        DIRECTION_UP_RIGHT,
        DIRECTION_UP_CENTER,
        DIRECTION_UP_LEFT,
    };

    /// The point of the button that the panel is attached to.
    enum PreferredPopupAnchor : int {
        ANCHOR_TOP_LEFT,
        ANCHOR_TOP_CENTER,
        ANCHOR_TOP_RIGHT,
        ANCHOR_BOTTOM_LEFT,
        ANCHOR_BOTTOM_CENTER,
        ANCHOR_BOTTOM_RIGHT,
    };

    /// The way in which the widgets of the panel follow each other.
    enum LayoutDirection : int {
        LAYOUT_LEFT_TO_RIGHT,
        LAYOUT_RIGHT_TO_LEFT,
        LAYOUT_TOP_TO_BOTTOM,
        LAYOUT_BOTTOM_TO_TOP,
    };

    explicit ButtonWithPopUpContainer(QWidget* parent = nullptr);
    ~ButtonWithPopUpContainer() override;

    /// Top to bottom by default; a value outside the enumeration means left to right.
    LayoutDirection GetLayoutDirection() const;
    void SetLayoutDirection(LayoutDirection direction);

    /// Where the panel opens: below the button, with the left edges aligned, by default. These and the offsets take
    /// effect when the panel opens next.
    PreferredPopupDirection GetPreferredPopupDirection() const;
    void SetPreferredPopupDirection(PreferredPopupDirection direction);
    PreferredPopupAnchor GetPreferredPopupAnchor() const;
    void SetPreferredPopupAnchor(PreferredPopupAnchor anchor);

    /// Whether the panel may cover the button, as it does by default where the screen ends. When not, it opens at the
    /// mirrored place where it does not cover the button, if there is one.
    bool GetPopupCanOverlapButton() const;
    void SetPopupCanOverlapButton(bool canOverlap);

    /// Whether a click opens the panel, on by default. When off, a click leaves the button unchecked.
    bool GetShowPopupOnClick() const;
    void SetShowPopupOnClick(bool show);

    /// Distances in pixels by which the anchor is pushed away from the button, 0 by default. Centre anchors take no
    /// horizontal one.
    int GetPopupHOffset() const;
    void SetPopupHOffset(int offset);
    int GetPopupVOffset() const;
    void SetPopupVOffset(int offset);

    /// Adds a widget at the end of the panel, which owns it from now on. A null widget is logged and ignored; one that
    /// holds the button or the panel is ignored with a warning, here and in the next two.
    void AppendWidget(QWidget* widget);

    /// The same, before the widget at `index`; at the end for a negative index.
    void InsertWidget(QWidget* widget, int index);

    /// Takes the widget out of the panel and deletes it with the next pass of the event loop. A null widget and an
    /// index without a widget are logged and ignored.
    void RemoveWidget(QWidget* widget);
    void RemoveWidget(int index);

    /// The widget at `index`; null, with a log line, where there is none.
    QWidget* GetWidget(int index) const;

    int WidgetsCount() const;

    /// Opens the panel, also when `showPopupOnClick` is off.
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
