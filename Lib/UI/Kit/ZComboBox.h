#pragma once

#include <QComboBox>
#include <QPointer>

class AdvancedComboView;

/// A combo box that can leave the mouse wheel to its panel, show a fixed text whatever is chosen, elide what is too
/// long for it, open a list as wide as its items, and open a widget of the application in place of the list.
///
/// Its list is an `AdvancedComboView`. Items, data, keys and signals are those of `QComboBox`.
class ZComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(
        bool mouseWheelEnabled READ isMouseWheelEnabled WRITE setMouseWheelEnabled NOTIFY mouseWheelEnabledChanged)
    Q_PROPERTY(bool widePopupEnabled READ isWidePopupEnabled WRITE setWidePopupEnabled NOTIFY widePopupEnabledChanged)
    Q_PROPERTY(bool eliding READ isEliding WRITE setEliding NOTIFY elidingChanged)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText NOTIFY displayTextChanged)

public:
    explicit ZComboBox(QWidget* parent = nullptr);

    /// Whether the wheel changes the current item; on by default. When off, the wheel is the parent's, with focus and
    /// without. The wheel never gives the focus.
    bool isMouseWheelEnabled() const { return mouseWheelEnabled; }
    void setMouseWheelEnabled(bool on);

    /// Whether the list is as wide as its widest item, also beyond the combo box; on by default. A change makes a new
    /// list: what was set on the old one, a delegate for instance, is lost. A list that is open opens again. Styles
    /// that make the list a menu give it room for its texts in either case.
    bool isWidePopupEnabled() const { return widePopupEnabled; }
    void setWidePopupEnabled(bool on);

    /// Whether a current text that does not fit ends in an ellipsis; on by default. The tool tip is then the combo
    /// box's own, and empty. A change shows at the next repaint.
    bool isEliding() const { return eliding; }
    void setEliding(bool on);

    /// What is shown instead of the current item, unless empty; empty by default. Items are chosen and reported as
    /// ever, and the minimum width follows this text. The line edit of an editable combo box covers it.
    QString displayText() const { return shownText; }
    void setDisplayText(const QString& text);

    /// A window that is shown in place of the list: above the combo box where the screen has room for it, else below.
    /// Null, the default, for the list. The window stays the caller's: the combo box shows, moves and hides it, and
    /// forgets one that is destroyed. It must be a window, of the kind `Qt::Popup` for instance, to stand where it
    /// shall: a child widget would be moved within its parent. Style sheets take a frame whose parent is a combo box
    /// for its list and do not style it, so it needs another parent. Setting it closes an open list.
    QWidget* popupWidget() const { return popUp; }
    void setPopupWidget(QWidget* window);

    void showPopup() override;
    void hidePopup() override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void mouseWheelEnabledChanged();
    void widePopupEnabledChanged();
    void elidingChanged();
    void displayTextChanged();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    AdvancedComboView* makeList();
    QString faceText(const QStyleOptionComboBox& option);

    bool mouseWheelEnabled = true;
    bool widePopupEnabled = true;
    bool eliding = true;
    QString shownText;
    QPointer<QWidget> popUp;
};
