#pragma once

#include <QListView>
#include <QPointer>

class QComboBox;

/// The list that a `ZComboBox` opens.
///
/// A wide one shows the texts of its items in full: it makes its pop-up as wide as the widest item, up to the width of
/// the screen, and keeps it on the screen. Otherwise the list is as wide as the combo box and elides. It is wide or
/// narrow for life; the combo box replaces its list instead. It is drawn with the font of the combo box.
class AdvancedComboView : public QListView
{
public:
    /// Without a parent: `QComboBox::setView` takes it. It serves `combo`, and stays a plain list when that is gone.
    AdvancedComboView(QComboBox* combo, bool wide);

    /// Makes a wide list as wide as its items need by now, by its minimum width.
    void fitToItems();

    void doItemsLayout() override;

protected:
    QStyleOptionViewItem viewOptions() const override;
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyWidth();
    int measureItems() const;
    void paintMenuBackground(const QRect& area);
    void keepPopUpOnScreen();

    QPointer<QComboBox> combo;
    const bool wide;
    bool hasNewLayout = false; ///< that updateGeometries() has not seen
    int widestItem = 0;        ///< in pixels, as of the last layout
};
