#pragma once

#include <QListView>
#include <QPointer>

class QComboBox;

/// The list view of a `ZComboBox`, drawn with the font of the combo box.
///
/// A wide view makes its pop-up as wide as the widest item, up to the width of the screen, and keeps it on the screen.
/// A narrow one is as wide as the combo box and elides its items. The combo box replaces the view to switch between
/// both.
class AdvancedComboView : public QListView
{
public:
    /// Has no parent until `QComboBox::setView` takes ownership. Works as a plain QListView after `combo` is destroyed.
    AdvancedComboView(QComboBox* combo, bool wide);

    /// Sets the minimum width of a wide view to that of its items.
    void fitToItems();

    void doItemsLayout() override;

protected:
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    void initViewItemOption(QStyleOptionViewItem* option) const override;
#else
    QStyleOptionViewItem viewOptions() const override;
#endif
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void adapt(QStyleOptionViewItem& option) const;
    void applyWidth();
    int measureItems() const;
    void paintMenuBackground(const QRect& area);
    void keepPopUpOnScreen();

    QPointer<QComboBox> combo;
    const bool wide;
    bool hasNewLayout = false; ///< whether items were laid out since updateGeometries()
    int widestItem = 0;        ///< in pixels, as of the last layout
};
