#pragma once

#include <UI/Kit/ZFrame.h>

namespace Zelkor::Catalogue {
struct Entry;
struct State;
} // namespace Zelkor::Catalogue

namespace Zelkor::Gallery {

/// A captioned card with a widget in one of its states. Takes the focus, so that the keyboard can select widgets
/// without a focus policy.
class StateCard : public ZFrame
{
    Q_OBJECT

public:
    StateCard(const Catalogue::Entry& entry, const Catalogue::State& state, QWidget* parent = nullptr);

    QWidget* Widget() const { return widget; }

    /// Sets whether the card looks selected.
    void SetSelected(bool on);

    /// Disables the widget through its parent, or restores its own `enabled` state.
    void SetWidgetEnabled(bool on) { holder->setEnabled(on); }

private:
    QWidget* holder;
    QWidget* widget;
};

} // namespace Zelkor::Gallery
