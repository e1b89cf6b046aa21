#include <Catalogue/Catalogue.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStackedWidget.h>

#include <QGridLayout>
#include <QPushButton>
#include <QVariant>

namespace Zelkor::Catalogue {

namespace {

constexpr int LABEL_WIDTH = 200;

// A card with four buttons, with spacing set by the style sheet or the state.
QWidget* CreateFrame(QWidget* parent)
{
    auto* frame = new ZFrame(parent);
    auto* grid = new QGridLayout(frame);
    frame->setProperty("role", QStringLiteral("card"));
    for (int i = 0; i < 4; ++i)
        grid->addWidget(new QPushButton(EntryText::tr("Button %1").arg(i + 1)), i / 2, i % 2);
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
    label->setOriginalText(EntryText::tr("Built-in camera"));
    label->setFixedWidth(LABEL_WIDTH);
    return label;
}

State LabelText(const QString& name, const QString& text)
{
    return MakeState<ZLabel>(name, [text](ZLabel& label) { label.setOriginalText(text); });
}

// Two pages of different size; the button of each opens the other.
QWidget* CreateStack(QWidget* parent)
{
    auto* stack = new ZStackedWidget(parent);
    const QStringList texts = {EntryText::tr("A small page"),
                               EntryText::tr("A page that takes\nthe room of its text\nand no more")};
    AddSamplePages(stack, texts);
    stack->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return stack;
}

Entry FrameEntry()
{
    return {
        "ZFrame",
        EntryText::tr("Kit"),
        EntryText::tr("A frame whose layout can be spaced by a style sheet."),
        "ZFrame",
        "frame",
        CreateFrame,
        {
            MakeState<ZFrame>(EntryText::tr("Spaced by style sheet"), [](ZFrame&) {}),
            MakeState<ZFrame>(EntryText::tr("Spaced by properties"), SpaceByProperties),
            DisabledState(),
        },
        MakeBare<ZFrame>,
    };
}

Entry LabelEntry()
{
    const QString longText = EntryText::tr("A camera with a name that is far too long for this place");
    return {
        "ZLabel",
        EntryText::tr("Kit"),
        EntryText::tr("A label for one text that may be too long: it is elided, and shown whole as the tool tip."),
        "ZLabel",
        "text",
        CreateLabel,
        {
            MakeState<ZLabel>(EntryText::tr("Fits"), [](ZLabel&) {}),
            LabelText(EntryText::tr("Elided"), longText),
            LabelText(EntryText::tr("Right-to-left text"), QString::fromUtf8("נא לבחור מצלמה אחרת מתוך הרשימה")),
            MakeState<ZLabel>(EntryText::tr("Cut, not elided"),
                              [longText](ZLabel& label) {
                                  label.setEliding(false);
                                  label.setOriginalText(longText);
                              }),
            MakeState<ZLabel>(EntryText::tr("Not clickable"), [](ZLabel& label) { label.setClickable(false); }),
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
        EntryText::tr("Kit"),
        EntryText::tr("A stack of pages that takes the size of the page it shows instead of the largest one."),
        "ZStackedWidget",
        "pages",
        CreateStack,
        {
            MakeState<ZStackedWidget>(EntryText::tr("Small page"), [](ZStackedWidget&) {}),
            MakeState<ZStackedWidget>(EntryText::tr("Large page"),
                                      [](ZStackedWidget& stack) { stack.setCurrentIndex(1); }),
            MakeState<ZStackedWidget>(EntryText::tr("Without fitting"),
                                      [](ZStackedWidget& stack) { stack.setAutoFit(false); }),
            DisabledState(),
        },
        MakeBare<ZStackedWidget>,
    };
}

} // namespace

QVector<Entry> KitEntries()
{
    return {KitInForms<ZFrame>(FrameEntry(), {{"frameShape", "StyledPanel"}}), KitInForms<ZLabel>(LabelEntry()),
            KitInForms<ZStackedWidget>(StackEntry())};
}

} // namespace Zelkor::Catalogue
