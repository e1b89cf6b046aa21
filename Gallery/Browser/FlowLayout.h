#pragma once

#include <QLayout>
#include <QList>

namespace Zelkor::Gallery {

/// Arranges items in rows, each at its size hint, in the layout direction of its widget. Owns its items.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return items.size(); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

protected:
    /// Returns the height of the items at the width of `rect`; sets their geometry if `place` is true.
    virtual int Arrange(const QRect& rect, bool place) const;

private:
    QList<QLayoutItem*> items;
};

} // namespace Zelkor::Gallery
