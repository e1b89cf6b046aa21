#pragma once

#include <UI/Kit/ZFrame.h>

#include <QPointer>
#include <QVariant>

namespace Zelkor::Catalogue {
struct Entry;
struct State;
} // namespace Zelkor::Catalogue

namespace Zelkor::Gallery {

class ResizeFrame;

/// A captioned card with a widget in one of its states. Takes the focus, so that the keyboard can select widgets
/// without a focus policy.
class StateCard : public ZFrame
{
    Q_OBJECT

public:
    /// `defaults` are the values of a new object by property name.
    StateCard(const Catalogue::Entry& entry, const Catalogue::State& state, const QVariantMap& defaults,
              QWidget* parent = nullptr);

    QWidget* Widget() const { return widget; }

    /// Sets whether the card looks selected, with a frame to resize its widget.
    void SetSelected(bool on);

    /// Disables the widget through its parent, or restores its own `enabled` state.
    void SetWidgetEnabled(bool on) { holder->setEnabled(on); }

private:
    QWidget* holder;
    QWidget* widget;
    QPointer<ResizeFrame> frame;
};

} // namespace Zelkor::Gallery
