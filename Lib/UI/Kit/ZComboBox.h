#pragma once

#include <QComboBox>
#include <QPointer>

class AdvancedComboView;

/// A combo box with a list as wide as its items, elided or fixed text, an optional wheel, and a pop-up window of the
/// application in place of the list.
///
/// Its view is an `AdvancedComboView`. Items, data, keys and signals are those of `QComboBox`. GUI thread only.
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

    /// Whether the wheel changes the current item; true by default. If false, wheel events are left to the parent. The
    /// wheel never gives the focus.
    bool isMouseWheelEnabled() const { return mouseWheelEnabled; }
    void setMouseWheelEnabled(bool on);

    /// Whether the list is as wide as its widest item, even beyond the combo box; true by default. A change replaces
    /// the view, so that a delegate set on it is lost, and reopens an open list. Styles that draw the list as a menu
    /// always make room for its texts.
    bool isWidePopupEnabled() const { return widePopupEnabled; }
    void setWidePopupEnabled(bool on);

    /// Whether a current text that does not fit is elided; true by default. The combo box then clears its tool tip.
    /// Takes effect with the next repaint.
    bool isEliding() const { return eliding; }
    void setEliding(bool on);

    /// Text shown instead of the current item; empty, for none, by default. Affects the minimum width, but not the
    /// current item. Hidden behind the line edit of an editable combo box.
    QString displayText() const { return shownText; }
    void setDisplayText(const QString& text);

    /// A window shown in place of the list, above the combo box or, without room there, below it; null by default. The
    /// caller owns it and may destroy it at any time; the combo box shows, moves and hides it. It must be a window,
    /// such as a `Qt::Popup`, because a child widget would be moved within its parent. Its parent must not be a combo
    /// box: style sheets would take a frame there for the list and not style it. Setting it closes an open list.
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
