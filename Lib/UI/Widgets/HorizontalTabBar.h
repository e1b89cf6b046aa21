#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPointer>
#include <QStringList>
#include <QTabBar>

namespace Zelkor::Vx {

/// A tab bar whose style sheet sets position and colours of the text, and the icon files, of its tabs.
///
/// The style draws the shape of a tab; `QTabBar` and the rules for `QTabBar::tab` set its size. Keep the paddings here
/// consistent with the padding there. Text is drawn without mnemonics, "&" included. It is elided by `elideMode` and
/// does not overlap the tab's buttons. Right-to-left layout mirrors the content of a tab.
///
/// In a vertical bar, text is horizontal if it fits. If one does not and the tabs are higher than wide, all texts of
/// the bar are rotated: upwards in the west, downwards in the east. Distances then refer to the rotated tab; icons are
/// never rotated. Setters of colours, paddings, icon position and alignment do not repaint.
///
/// Without a style sheet, text that is black has the colour of the palette, and while all distances are 0, text and
/// icon have those of the style. GUI thread only.
class VX_WIDGETS_EXPORT HorizontalTabBar : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(QColor normalTextColor READ GetNormalTextColor WRITE SetNormalTextColor)
    ///< text of unselected and of disabled tabs; default black
    Q_PROPERTY(QColor selectedTextColor READ GetSelectedTextColor WRITE SetSelectedTextColor)
    ///< text of the selected tab, also under the pointer; default black
    Q_PROPERTY(QColor hoverTextColor READ GetHoverTextColor WRITE SetHoverTextColor)
    ///< text of an enabled, unselected tab under the pointer; default black
    Q_PROPERTY(int paddingLeft READ GetPaddingLeft WRITE SetPaddingLeft)
    ///< pixels between the tab's left edge and the text area, at the right in right-to-left layout; default 0
    Q_PROPERTY(int paddingRight READ GetPaddingRight WRITE SetPaddingRight)
    ///< pixels between the text area and the tab's right edge, at the left in right-to-left layout; default 0
    Q_PROPERTY(int paddingTop READ GetPaddingTop WRITE SetPaddingTop)
    ///< pixels above the text area; default 0
    Q_PROPERTY(int paddingBottom READ GetPaddingBottom WRITE SetPaddingBottom)
    ///< pixels below the text area; default 0
    Q_PROPERTY(int xPosTabIcon READ GetXPosTabIcon WRITE SetXPosTabIcon)
    ///< pixels between the leading edges of tab and icon; default 0
    Q_PROPERTY(int yPosTabIcon READ GetYPosTabIcon WRITE SetYPosTabIcon)
    ///< pixels between the top edges of tab and icon; default 0
    Q_PROPERTY(Qt::Alignment alignText READ GetAlignText WRITE SetAlignText)
    ///< alignment in the text area; default left and vertically centred
    Q_PROPERTY(QString pathsNormalIcons READ GetPathsNormalIcons WRITE SetPathsNormalIcons)
    ///< icon files of unselected tabs, by position, separated by ";"; default empty
    Q_PROPERTY(QString pathsSelectedIcons READ GetPathsSelectedIcons WRITE SetPathsSelectedIcons)
    ///< icon files of the selected tab, by position, separated by ";"; default empty

public:
    explicit HorizontalTabBar(QWidget* parent);
    ~HorizontalTabBar() override;

    QColor GetNormalTextColor() const { return normalTextColor; }
    void SetNormalTextColor(const QColor& color) { normalTextColor = color; }
    QColor GetSelectedTextColor() const { return selectedTextColor; }
    void SetSelectedTextColor(const QColor& color) { selectedTextColor = color; }
    QColor GetHoverTextColor() const { return hoverTextColor; }
    void SetHoverTextColor(const QColor& color) { hoverTextColor = color; }

    int GetPaddingLeft() const { return paddingLeft; }
    void SetPaddingLeft(const int& padding) { paddingLeft = padding; }
    int GetPaddingRight() const { return paddingRight; }
    void SetPaddingRight(const int& padding) { paddingRight = padding; }
    int GetPaddingTop() const { return paddingTop; }
    void SetPaddingTop(const int& padding) { paddingTop = padding; }
    int GetPaddingBottom() const { return paddingBottom; }
    void SetPaddingBottom(const int& padding) { paddingBottom = padding; }

    /// The size of the icon is `iconSize`.
    int GetXPosTabIcon() const { return xPosTabIcon; }
    void SetXPosTabIcon(const int& position) { xPosTabIcon = position; }
    int GetYPosTabIcon() const { return yPosTabIcon; }
    void SetYPosTabIcon(const int& position) { yPosTabIcon = position; }

    Qt::Alignment GetAlignText() const { return alignText; }
    void SetAlignText(const Qt::Alignment& alignment) { alignText = alignment; }

    /// An empty path or a missing file shows no icon; a tab past the end of the list keeps its icon. Files are cached
    /// until paths are set again.
    QString GetPathsNormalIcons() const;
    void SetPathsNormalIcons(const QString& paths);
    QString GetPathsSelectedIcons() const;
    void SetPathsSelectedIcons(const QString& paths);

protected:
    /// Sets the icon of each tab by its position and state.
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
    bool HasPlainPlaces() const;
    int PlainPadding(const QStyleOptionTab& option) const;
    QRect IconRect(const QRect& face, const QStyleOptionTab& option) const;
    QRect TextRect(int index, const QRect& face, const QTransform& toBar, const QStyleOptionTab& option) const;
    QColor TextColor(const QStyleOptionTab& option) const;
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
    QPointer<QWidget> draggedTab; ///< a child of `QTabBar`, visible during a drag
    bool awaitsDraggedTab = false;
    QPoint pressedAt;
    QPoint draggedFrom;
};

} // namespace Zelkor::Vx
