#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class QToolButton;

namespace Zelkor::Gallery {

class ForcedStates;

/// A row of buttons that force states of the selected widget. Object names of the buttons: "force:HOVER".
class StateBar : public QWidget
{
    Q_OBJECT

public:
    explicit StateBar(QWidget* parent = nullptr);

    /// Sets the states to show and change, null for none. They may be deleted at any time.
    void SetStates(ForcedStates* states);

    /// Shows which states are forced and applicable.
    void Refresh();

protected:
    bool event(QEvent* event) override;

private:
    QPointer<ForcedStates> states;
    QVector<QToolButton*> buttons; ///< in the order of ForcedStates::State
};

} // namespace Zelkor::Gallery
