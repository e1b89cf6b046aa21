#pragma once

#include <UI/Kit/ZFrame.h>

namespace Zelkor::Catalogue {
struct Entry;
struct State;
} // namespace Zelkor::Catalogue

namespace Zelkor::Gallery {

/// A captioned card with a widget in one of its states. It can have the focus, so that the keyboard reaches widgets
/// that take none themselves.
class StateCard : public ZFrame
{
    Q_OBJECT

public:
    StateCard(const Catalogue::Entry& entry, const Catalogue::State& state, QWidget* parent = nullptr);

    QWidget* Widget() const { return widget; }

    /// Whether the card looks chosen.
    void SetSelected(bool on);

    /// Disables the widget without touching its own `enabled`, or lets go of it.
    void SetWidgetEnabled(bool on) { holder->setEnabled(on); }

private:
    QWidget* holder;
    QWidget* widget;
};

} // namespace Zelkor::Gallery
