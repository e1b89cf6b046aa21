#pragma once

#include <QVariant>
#include <QVector>
#include <QWidget>

class QSplitter;

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Gallery {

class Inspector;
class StateCard;

/// The page of one widget: what it is, its states side by side in captioned cards, and the inspector of the state that
/// was clicked or has the focus.
class WidgetPage : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetPage(const Catalogue::Entry& entry, QWidget* parent = nullptr);
    ~WidgetPage() override;

    /// Chooses a state by its index; the first one is chosen from the start. An index that is none is ignored.
    void SelectState(int index);
    int SelectedState() const { return selected; }

    void SetWidgetsEnabled(bool on);

    /// Without a word from the person, the inspector is there where the page is wide enough. A narrow page has it below
    /// the states.
    void SetInspectorVisible(bool on);
    bool IsInspectorVisible() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void InspectorVisibilityChanged(bool on);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* CreateContent(const Catalogue::Entry& entry);
    void SelectCardAround(QWidget* widget);
    void Arrange();

    const QString className;
    const QVariantMap defaults;
    QVector<StateCard*> cards;
    QSplitter* splitter;
    Inspector* inspector;
    int selected = -1;
    bool isNarrow = false;
};

} // namespace Zelkor::Gallery
