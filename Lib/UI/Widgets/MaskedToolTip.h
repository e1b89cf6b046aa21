#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <QImage>

class QLabel;

namespace Zelkor::Vx::UI {

/// A hint in a window of its own, on top of the others: a title, a text, and the shape of an image.
///
/// It closes after its display time, on a mouse press and, unless that is switched off, when it is no longer the active
/// window. Closing hides it; whoever made it owns it and may show it again. GUI thread only.
///
/// Object names for style sheets: "MaskedToolTip", the window, and in it "titleLabel" and "textLabel".
class VX_WIDGETS_EXPORT MaskedToolTip : public ZFrame
{
    Q_OBJECT
    Q_PROPERTY(QImage mask READ GetMask WRITE SetMask)
    Q_PROPERTY(QString title READ GetTitle WRITE SetTitle)
    Q_PROPERTY(QString text READ GetText WRITE SetText)
    Q_PROPERTY(int displayTime READ GetDisplayTime WRITE SetDisplayTime)
    Q_PROPERTY(bool hideOnDeactivate READ GetHideOnDeactivate WRITE SetHideOnDeactivate)
    Q_PROPERTY(int offsetX READ GetOffsetX WRITE SetOffsetX)
    Q_PROPERTY(int offsetY READ GetOffsetY WRITE SetOffsetY)

public:
    explicit MaskedToolTip(QWidget* parent);
    ~MaskedToolTip() override;

    /// What is set here shows with the next `Show`.
    ///
    /// The window has the shape of the image's opaque pixels; a null image, the default, leaves it a rectangle.
    QImage GetMask() const { return maskImage; }
    void SetMask(const QImage& image) { maskImage = image; }

    /// Empty by default. A label that was empty once stays hidden.
    QString GetTitle() const { return title; }
    void SetTitle(const QString& newTitle) { title = newTitle; }
    QString GetText() const { return text; }
    void SetText(const QString& newText) { text = newText; }

    /// Milliseconds until the window closes by itself; 0, the default, and less mean that it stays.
    int GetDisplayTime() const { return displayTime; }
    void SetDisplayTime(const int& time) { displayTime = time; }

    /// Whether the window closes when another one becomes active; on by default.
    bool GetHideOnDeactivate() const { return hideOnDeactivate; }
    void SetHideOnDeactivate(const bool& hide) { hideOnDeactivate = hide; }

    /// Pixels that are added to the point of `Show`, 0 by default.
    int GetOffsetX() const { return offsetX; }
    void SetOffsetX(const int& offset) { offsetX = offset; }
    int GetOffsetY() const { return offsetY; }
    void SetOffsetY(const int& offset) { offsetY = offset; }

    /// Shows the window with its top left corner at this point of the screen. The point is taken relative to where the
    /// window stands: one that was shown before moves on from its place.
    void Show(const QPoint& globalPos);

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QImage maskImage;
    QString title;
    QString text;
    int displayTime = 0;
    bool hideOnDeactivate = true;
    int offsetX = 0;
    int offsetY = 0;
    QLabel* titleLabel;
    QLabel* textLabel;
};

} // namespace Zelkor::Vx::UI
