#include "Catalogue.h"

#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStackedWidget.h>

#include <QGridLayout>
#include <QPushButton>
#include <QVariant>

namespace Zelkor::Gallery {

namespace {

constexpr int LABEL_WIDTH = 200;

// A card with four buttons, whose distances the style sheet or the state sets.
QWidget* CreateFrame(QWidget* parent)
{
    auto* frame = new ZFrame(parent);
    auto* grid = new QGridLayout(frame);
    frame->setProperty("role", QStringLiteral("card"));
    for (int i = 0; i < 4; ++i)
        grid->addWidget(new QPushButton(Catalogue::tr("Button %1").arg(i + 1)), i / 2, i % 2);
    return frame;
}

void SpaceByProperties(ZFrame& frame)
{
    frame.setProperty("role", QVariant());
    frame.setFrameStyle(QFrame::Box | QFrame::Plain);
    frame.setLayoutMargin(4);
    frame.setLayoutMarginBottom(24);
    frame.setLayoutHSpacing(24);
    frame.setLayoutVSpacing(4);
}

QWidget* CreateLabel(QWidget* parent)
{
    auto* label = new ZLabel(parent);
    label->setOriginalText(Catalogue::tr("Built-in camera"));
    label->setFixedWidth(LABEL_WIDTH);
    return label;
}

State LabelText(const QString& name, const QString& text)
{
    return MakeState<ZLabel>(name, [text](ZLabel& label) { label.setOriginalText(text); });
}

// Two pages of different size; the button of each leads to the other.
QWidget* CreateStack(QWidget* parent)
{
    auto* stack = new ZStackedWidget(parent);
    const QStringList texts = {Catalogue::tr("A small page"),
                               Catalogue::tr("A page that takes\nthe room of its text\nand no more")};
    AddSamplePages(stack, texts);
    stack->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return stack;
}

Entry FrameEntry()
{
    return {
        "ZFrame",
        Catalogue::tr("Kit"),
        Catalogue::tr("A frame whose layout can be spaced by a style sheet."),
        "ZFrame",
        "frame",
        CreateFrame,
        {
            MakeState<ZFrame>(Catalogue::tr("Spaced by style sheet"), [](ZFrame&) {}),
            MakeState<ZFrame>(Catalogue::tr("Spaced by properties"), SpaceByProperties),
            DisabledState(),
        },
        MakeBare<ZFrame>,
    };
}

Entry LabelEntry()
{
    const QString longText = Catalogue::tr("A camera with a name that is far too long for this place");
    return {
        "ZLabel",
        Catalogue::tr("Kit"),
        Catalogue::tr("A label for one text that may be too long: it is elided, and shown whole as the tool tip."),
        "ZLabel",
        "text",
        CreateLabel,
        {
            MakeState<ZLabel>(Catalogue::tr("Fits"), [](ZLabel&) {}),
            LabelText(Catalogue::tr("Elided"), longText),
            LabelText(Catalogue::tr("Right-to-left text"), QString::fromUtf8("נא לבחור מצלמה אחרת מתוך הרשימה")),
            MakeState<ZLabel>(Catalogue::tr("Cut, not elided"),
                              [longText](ZLabel& label) {
                                  label.setEliding(false);
                                  label.setOriginalText(longText);
                              }),
            MakeState<ZLabel>(Catalogue::tr("Not clickable"), [](ZLabel& label) { label.setClickable(false); }),
            DisabledState(),
        },
        MakeBare<ZLabel>,
        1,
    };
}

Entry StackEntry()
{
    return {
        "ZStackedWidget",
        Catalogue::tr("Kit"),
        Catalogue::tr("A stack of pages that takes the size of the page it shows instead of the largest one."),
        "ZStackedWidget",
        "layers",
        CreateStack,
        {
            MakeState<ZStackedWidget>(Catalogue::tr("Small page"), [](ZStackedWidget&) {}),
            MakeState<ZStackedWidget>(Catalogue::tr("Large page"),
                                      [](ZStackedWidget& stack) { stack.setCurrentIndex(1); }),
            MakeState<ZStackedWidget>(Catalogue::tr("Without fitting"),
                                      [](ZStackedWidget& stack) { stack.setAutoFit(false); }),
            DisabledState(),
        },
        MakeBare<ZStackedWidget>,
    };
}

} // namespace

QVector<Entry> KitEntries()
{
    return {FrameEntry(), LabelEntry(), StackEntry()};
}

} // namespace Zelkor::Gallery
