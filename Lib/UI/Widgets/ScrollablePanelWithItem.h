#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <memory>

class QToolButton;

namespace Zelkor::Vx::UI {

/// A horizontal panel of tool buttons, the items, with buttons that scroll it when the items do not fit.
///
/// A scroll button scrolls by one visible width and is disabled at its end. The wheel scrolls too, and an item that
/// receives focus is scrolled into view. The panel is as high as its items. Right-to-left layout mirrors the panel: the
/// "left" button is then at the right, where the items begin.
///
/// The application creates and connects the items; the panel takes ownership. An item that is deleted or gets another
/// parent is removed. A slot of an item may delete the panel. GUI thread only.
///
/// Object names for style sheets: "leftScrollButton" and "rightScrollButton", "panelScrollArea" between them, and in it
/// "itemsFrame", which is as wide as the items.
class VX_WIDGETS_EXPORT ScrollablePanelWithItem : public ZFrame
{
    Q_OBJECT
    Q_PROPERTY(int itemsSpacing READ GetItemsScpacing WRITE SetItemsSpacing)
    ///< pixels between two items, or the style's spacing if negative; default 0

public:
    explicit ScrollablePanelWithItem(QWidget* parent);
    ~ScrollablePanelWithItem() override;

    int GetItemsScpacing() const;
    void SetItemsSpacing(int spacing);

    /// Appends an item, or moves one that is in the panel to the end. Ignores null, the scroll buttons and parents of
    /// the panel.
    void Append(QToolButton* item);

    /// Removes all items and deletes them later.
    void RemoveItems();

    /// Clicks the item at `index`. Returns false for an index out of range. A slot may delete the item or the panel.
    bool SelectItem(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    class ScrollArea;
    struct Parts;
    struct Items;

    void Retranslate();
    void Scroll(int direction);
    void UpdateScrollButtons();

    std::unique_ptr<Items> items;
    std::unique_ptr<Parts> parts;
};

} // namespace Zelkor::Vx::UI
