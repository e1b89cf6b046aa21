#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPointer>
#include <QStringList>
#include <QTabBar>

namespace Zelkor::Vx {

/// A tab bar that draws text and icon of its tabs itself, so that a style sheet can say where they are, in which
/// colours the text is in each state, and which icon files a tab has while it is selected and while it is not.
///
/// The shape of a tab comes from the style, its size from `QTabBar` and the rules for `QTabBar::tab`; keep the
/// distances here in step with the padding there. A text is drawn as it is, "&" included; one
/// too long for its place is elided as `elideMode` says. It keeps clear of the tab's buttons. Right-to-left, left and
/// right change places within a tab.
///
/// In a vertical bar the text is level as long as it fits. Where one does not and tabs are higher than wide, all texts
/// of the bar run along their tabs, upwards in the west and downwards in the east; distances then count in the
/// direction of reading, and icons stay upright. GUI thread only.
class VX_WIDGETS_EXPORT HorizontalTabBar : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(QColor normalTextColor READ GetNormalTextColor WRITE SetNormalTextColor)
    Q_PROPERTY(QColor selectedTextColor READ GetSelectedTextColor WRITE SetSelectedTextColor)
    Q_PROPERTY(QColor hoverTextColor READ GetHoverTextColor WRITE SetHoverTextColor)
    Q_PROPERTY(int paddingLeft READ GetPaddingLeft WRITE SetPaddingLeft)
    Q_PROPERTY(int paddingRight READ GetPaddingRight WRITE SetPaddingRight)
    Q_PROPERTY(int paddingTop READ GetPaddingTop WRITE SetPaddingTop)
    Q_PROPERTY(int paddingBottom READ GetPaddingBottom WRITE SetPaddingBottom)
    Q_PROPERTY(int xPosTabIcon READ GetXPosTabIcon WRITE SetXPosTabIcon)
    Q_PROPERTY(int yPosTabIcon READ GetYPosTabIcon WRITE SetYPosTabIcon)
    Q_PROPERTY(Qt::Alignment alignText READ GetAlignText WRITE SetAlignText)
    Q_PROPERTY(QString pathsNormalIcons READ GetPathsNormalIcons WRITE SetPathsNormalIcons)
    Q_PROPERTY(QString pathsSelectedIcons READ GetPathsSelectedIcons WRITE SetPathsSelectedIcons)

public:
    explicit HorizontalTabBar(QWidget* parent);
    ~HorizontalTabBar() override;

    /// Colours of the text, black by default. A selected tab under the pointer has the selected colour, a disabled one
    /// the normal colour. These, the paddings, the icon's position and the alignment show with the next repaint.
    QColor GetNormalTextColor() const { return normalTextColor; }
    void SetNormalTextColor(const QColor& color) { normalTextColor = color; }
    QColor GetSelectedTextColor() const { return selectedTextColor; }
    void SetSelectedTextColor(const QColor& color) { selectedTextColor = color; }
    QColor GetHoverTextColor() const { return hoverTextColor; }
    void SetHoverTextColor(const QColor& color) { hoverTextColor = color; }

    /// Pixels between the edges of a tab and the place of its text, 0 by default.
    int GetPaddingLeft() const { return paddingLeft; }
    void SetPaddingLeft(const int& padding) { paddingLeft = padding; }
    int GetPaddingRight() const { return paddingRight; }
    void SetPaddingRight(const int& padding) { paddingRight = padding; }
    int GetPaddingTop() const { return paddingTop; }
    void SetPaddingTop(const int& padding) { paddingTop = padding; }
    int GetPaddingBottom() const { return paddingBottom; }
    void SetPaddingBottom(const int& padding) { paddingBottom = padding; }

    /// The icon's top left corner in pixels from the tab's, 0 by default. The size is `iconSize`.
    int GetXPosTabIcon() const { return xPosTabIcon; }
    void SetXPosTabIcon(const int& position) { xPosTabIcon = position; }
    int GetYPosTabIcon() const { return yPosTabIcon; }
    void SetYPosTabIcon(const int& position) { yPosTabIcon = position; }

    /// Where the text lies in its place: at the left and in the middle of the height by default.
    Qt::Alignment GetAlignText() const { return alignText; }
    void SetAlignText(const Qt::Alignment& alignment) { alignText = alignment; }

    /// Icon files, one for each position in the bar, separated by ";". An empty part and a file that is not there mean
    /// no icon; a tab beyond the list keeps the icon that it has. A file is read once, and again when paths are set.
    QString GetPathsNormalIcons() const;
    void SetPathsNormalIcons(const QString& paths);
    QString GetPathsSelectedIcons() const;
    void SetPathsSelectedIcons(const QString& paths);

protected:
    /// Gives each tab the icon of its position and state.
    void UpdateIcons();

    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void childEvent(QChildEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetPaths(QStringList& list, const QString& paths);
    bool IsVertical() const;
    bool AreTextsTurned() const;
    bool IsDragged(const QStyleOptionTab& option) const;
    QRect TextRect(int index, const QRect& face, const QTransform& toBar, const QStyleOptionTab& option) const;
    void PaintTab(QPainter& painter, int index, QStyleOptionTab& option, bool turned) const;
    void PaintDraggedTab() const;

    QColor normalTextColor = Qt::black;
    QColor selectedTextColor = Qt::black;
    QColor hoverTextColor = Qt::black;
    int paddingLeft = 0;
    int paddingRight = 0;
    int paddingTop = 0;
    int paddingBottom = 0;
    int xPosTabIcon = 0;
    int yPosTabIcon = 0;
    Qt::Alignment alignText = Qt::AlignLeft | Qt::AlignVCenter;
    QStringList pathsNormalIcons;
    QStringList pathsSelectedIcons;
    QHash<QString, QIcon> icons;  ///< by path
    QPointer<QWidget> draggedTab; ///< of `QTabBar`, visible while a tab is dragged
    bool awaitsDraggedTab = false;
    QPoint pressedAt;
    QPoint draggedFrom;
};

} // namespace Zelkor::Vx
