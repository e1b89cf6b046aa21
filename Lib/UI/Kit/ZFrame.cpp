#include <UI/Kit/ZFrame.h>

#include <UI/Common/ClampToWidgetSize.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

// Clamped, because layouts add margins and spacing without a check for overflow.
using Zelkor::Vx::UI::Common::ClampToWidgetSize;

constexpr int NOTHING = -1;

using SideGetter = int (QMargins::*)() const;
using SideSetter = void (QMargins::*)(int);

int Side(const QLayout* layout, SideGetter side)
{
    return layout ? (layout->contentsMargins().*side)() : NOTHING;
}

void SetSide(QLayout* layout, SideSetter side, int margin)
{
    if (!layout)
        return;
    QMargins margins = layout->contentsMargins();
    (margins.*side)(ClampToWidgetSize(margin));
    layout->setContentsMargins(margins);
}

// Calls `onTable` with a grid or form layout and `onBox` with a box layout of the type; ignores other layouts.
template<class Box, class OnTable, class OnBox>
void VisitAxis(QLayout* layout, OnTable onTable, OnBox onBox)
{
    if (auto* grid = qobject_cast<QGridLayout*>(layout))
        onTable(grid);
    else if (auto* form = qobject_cast<QFormLayout*>(layout))
        onTable(form);
    else if (auto* box = qobject_cast<Box*>(layout))
        onBox(box);
}

} // namespace

ZFrame::ZFrame(QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags) {}

int ZFrame::layoutMargin() const
{
    if (!layout())
        return NOTHING;
    const QMargins margins = layout()->contentsMargins();
    const int left = margins.left();
    return margins == QMargins(left, left, left, left) ? left : NOTHING;
}

void ZFrame::setLayoutMargin(int margin)
{
    margin = ClampToWidgetSize(margin);
    if (layout())
        layout()->setContentsMargins(margin, margin, margin, margin);
}

int ZFrame::layoutMarginLeft() const
{
    return Side(layout(), &QMargins::left);
}

void ZFrame::setLayoutMarginLeft(int margin)
{
    SetSide(layout(), &QMargins::setLeft, margin);
}

int ZFrame::layoutMarginRight() const
{
    return Side(layout(), &QMargins::right);
}

void ZFrame::setLayoutMarginRight(int margin)
{
    SetSide(layout(), &QMargins::setRight, margin);
}

int ZFrame::layoutMarginTop() const
{
    return Side(layout(), &QMargins::top);
}

void ZFrame::setLayoutMarginTop(int margin)
{
    SetSide(layout(), &QMargins::setTop, margin);
}

int ZFrame::layoutMarginBottom() const
{
    return Side(layout(), &QMargins::bottom);
}

void ZFrame::setLayoutMarginBottom(int margin)
{
    SetSide(layout(), &QMargins::setBottom, margin);
}

int ZFrame::layoutSpacing() const
{
    return layout() ? layout()->spacing() : NOTHING;
}

void ZFrame::setLayoutSpacing(int spacing)
{
    if (layout())
        layout()->setSpacing(ClampToWidgetSize(spacing));
}

int ZFrame::layoutHSpacing() const
{
    int spacing = NOTHING;
    VisitAxis<QHBoxLayout>(
        layout(), [&](auto* table) { spacing = table->horizontalSpacing(); },
        [&](auto* box) { spacing = box->spacing(); });
    return spacing;
}

void ZFrame::setLayoutHSpacing(int spacing)
{
    VisitAxis<QHBoxLayout>(
        layout(), [=](auto* table) { table->setHorizontalSpacing(ClampToWidgetSize(spacing)); },
        [=](auto* box) { box->setSpacing(ClampToWidgetSize(spacing)); });
}

int ZFrame::layoutVSpacing() const
{
    int spacing = NOTHING;
    VisitAxis<QVBoxLayout>(
        layout(), [&](auto* table) { spacing = table->verticalSpacing(); },
        [&](auto* box) { spacing = box->spacing(); });
    return spacing;
}

void ZFrame::setLayoutVSpacing(int spacing)
{
    VisitAxis<QVBoxLayout>(
        layout(), [=](auto* table) { table->setVerticalSpacing(ClampToWidgetSize(spacing)); },
        [=](auto* box) { box->setSpacing(ClampToWidgetSize(spacing)); });
}
