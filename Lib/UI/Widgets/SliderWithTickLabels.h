#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <QStringList>

#include <memory>

namespace Zelkor::Vx {

/// A slider that selects one of several labelled items, with a tick and a label for each.
///
/// An index counts from 0 in the order in which items were added. Clicking a label selects its item. Labels that do not
/// fit are elided. The current text is the accessible description of the slider, and its accessible name unless the
/// application sets one. A slot may delete the widget. GUI thread only.
///
/// Object names for style sheets: "slider", and "labelsFrame" with a `ZLabel` for each item. The dynamic property
/// "Position" of a label is "First", "Last" or empty. "SubStyle" is "Current" for the selected item and otherwise
/// empty; it is not set before an item is selected.
class VX_WIDGETS_EXPORT SliderWithTickLabels : public ZFrame
{
    Q_OBJECT

public:
    explicit SliderWithTickLabels(QWidget* parent);
    ~SliderWithTickLabels() override;

    /// Appends items. The current item does not change.
    void AddItem(const QString& text);
    void AddItems(const QStringList& texts);

    /// Replaces the text of an item, for instance after a change of language. Ignores an index out of range.
    void SetItemText(int index, const QString& text);

    /// Returns the current index, or 0 without items.
    int CurrentIndex() const;

    /// Selects an item. Clamps an index out of range, and then marks no label as "Current".
    void SetCurrentIndex(int index);

    /// Returns the text of the current item, empty without items.
    QString CurrentText() const;

    /// Returns the index of the first item with exactly this text, or -1.
    int FindText(const QString& text) const;

Q_SIGNALS:
    /// Emitted when the user or the application changes the current item, before the labels are marked.
    void CurrentIndexChanged(int index);

private:
    struct Impl;

    void MarkPositions();
    void MarkCurrent(int index);
    void TellCurrentText();

    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
