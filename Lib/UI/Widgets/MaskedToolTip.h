#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <QImage>
#include <QPointer>

class QLabel;

namespace Zelkor::Vx::UI {

/// A tool tip window with a title, a text and the shape of an image, on top of other windows.
///
/// Moves with its parent's window, without parent with the window that was active, and does not become active when it
/// is shown. Closes after its display time, on a mouse press and when that window is hidden; with `hideOnDeactivate`,
/// also on a press in that window and when that window or an active tip is deactivated. Closing hides the window; the
/// parent or the caller owns it, and it may be shown again. Mask, texts, display time and offsets take effect with the
/// next `Show`. GUI thread only.
///
/// Object names for style sheets: "MaskedToolTip", the window, and in it "titleLabel" and "textLabel".
class VX_WIDGETS_EXPORT MaskedToolTip : public ZFrame
{
    Q_OBJECT
    Q_PROPERTY(QImage mask READ GetMask WRITE SetMask)
    ///< image whose opaque pixels are the shape of the window; default null, for a rectangle
    Q_PROPERTY(QString title READ GetTitle WRITE SetTitle)
    ///< plain or rich text of the first label; default empty
    Q_PROPERTY(QString text READ GetText WRITE SetText)
    ///< plain or rich text of the second label; default empty
    Q_PROPERTY(int displayTime READ GetDisplayTime WRITE SetDisplayTime)
    ///< milliseconds until the window closes, never for values up to 0; default 0
    Q_PROPERTY(bool hideOnDeactivate READ GetHideOnDeactivate WRITE SetHideOnDeactivate)
    ///< whether the window closes when another one becomes active; default true
    Q_PROPERTY(int offsetX READ GetOffsetX WRITE SetOffsetX)
    ///< pixels added to the x coordinate of `Show`; default 0
    Q_PROPERTY(int offsetY READ GetOffsetY WRITE SetOffsetY)
    ///< pixels added to the y coordinate of `Show`; default 0

public:
    explicit MaskedToolTip(QWidget* parent);
    ~MaskedToolTip() override;

    /// Pixels with more than half opacity count as opaque. The device pixel ratio of the image scales the mask.
    QImage GetMask() const { return maskImage; }
    void SetMask(const QImage& image) { maskImage = image; }

    /// `Show` hides a label with an empty text, and never shows it again.
    QString GetTitle() const { return title; }
    void SetTitle(const QString& newTitle) { title = newTitle; }
    QString GetText() const { return text; }
    void SetText(const QString& newText) { text = newText; }

    int GetDisplayTime() const { return displayTime; }
    void SetDisplayTime(const int& time) { displayTime = time; }

    bool GetHideOnDeactivate() const { return hideOnDeactivate; }
    void SetHideOnDeactivate(const bool& hide) { hideOnDeactivate = hide; }

    int GetOffsetX() const { return offsetX; }
    void SetOffsetX(const int& offset) { offsetX = offset; }
    int GetOffsetY() const { return offsetY; }
    void SetOffsetY(const int& offset) { offsetY = offset; }

    /// Shows the window at `globalPos` plus the offsets. The point is relative to the current position of the window,
    /// so only the first call uses screen coordinates.
    void Show(const QPoint& globalPos);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
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
    QPointer<QWidget> activeAtShow; ///< the window that a tip without parent belongs to
};

} // namespace Zelkor::Vx::UI
