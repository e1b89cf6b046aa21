#pragma once

#include <QVariant>
#include <QVector>
#include <QWidget>

class QSplitter;

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Gallery {

class CodePane;
class ForcedStates;
class Inspector;
class StateBar;
class StateCard;

/// The page of one widget: a description, its states in captioned cards, and the tools for the selected card: a row of
/// buttons that force states, its code, and the inspector. Return in a card sets the focus on its tools.
class WidgetPage : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetPage(const Catalogue::Entry& entry, QWidget* parent = nullptr);
    ~WidgetPage() override;

    /// Selects a state by its index, initially 0. Ignores invalid indices.
    void SelectState(int index);
    /// Selects a state, and keeps it in view until the mouse is pressed.
    void ShowState(int index);

    int SelectedState() const { return selected; }

    void SetWidgetsEnabled(bool on);

    /// Until the user changes it, the inspector is visible on wide pages only. A narrow page shows it below the states.
    void SetInspectorVisible(bool on);
    bool IsInspectorVisible() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void InspectorVisibilityChanged(bool on);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* CreateMain(const Catalogue::Entry& entry);
    QWidget* CreateContent(const Catalogue::Entry& entry);
    void SelectCardAround(QWidget* widget);
    void ScrollToSelected();
    void FocusTools();
    void Arrange();
    void ArrangeCode();

    const QString className;
    const QVariantMap defaults;
    QVector<StateCard*> cards;
    QVector<ForcedStates*> forcedStates; ///< of each card
    QSplitter* splitter;
    QSplitter* mainAndCode = nullptr;
    Inspector* inspector;
    StateBar* stateBar;
    CodePane* codePane;
    int selected = -1;
    bool isNarrow = false;
    bool isSplitByUser = false; ///< whether the user has set the height of the code
    bool isPinned = false;
};

} // namespace Zelkor::Gallery
