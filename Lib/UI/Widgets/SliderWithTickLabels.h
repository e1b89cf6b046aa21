#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <QStringList>

#include <memory>

namespace Zelkor::Vx {

/// A slider for one of a few named values, with a tick for each and the names above the ticks.
///
/// An item is known by its index, counted from 0 in order of adding. A press on its name chooses it as well. Names that
/// do not fit are elided. The slider's accessible name is the current text unless the application gives it one, and its
/// accessible description always is. GUI thread only.
///
/// Object names for style sheets: "slider", and "labelsFrame" with a `ZLabel` for each item. The dynamic property
/// "Position" of a label is "First", "Last" or empty; "SubStyle" is "Current" for the item chosen last, else empty, and
/// not set before an item is chosen.
class VX_WIDGETS_EXPORT SliderWithTickLabels : public ZFrame
{
    Q_OBJECT

public:
    explicit SliderWithTickLabels(QWidget* parent);
    ~SliderWithTickLabels() override;

    /// Adds one item, or several, at the end. The current item stays.
    void AddItem(const QString& text);
    void AddItems(const QStringList& texts);

    /// Replaces the text of an item, as after a change of the language. The current item stays. An index that no item
    /// has is ignored.
    void SetItemText(int index, const QString& text);

    /// 0 without items.
    int CurrentIndex() const;

    /// Moves the slider to the item, or to the end that is nearer. An index that no item has leaves no label "Current".
    void SetCurrentIndex(int index);

    /// The text of the current item, empty without items.
    QString CurrentText() const;

    /// The index of the first item with exactly this text, -1 when there is none.
    int FindText(const QString& text) const;

Q_SIGNALS:
    /// There is another current item, by a person or by the application. Comes before the labels are marked.
    void CurrentIndexChanged(int index);

private:
    struct Impl;

    void MarkPositions();
    void MarkCurrent(int index);
    void TellCurrentText();

    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
