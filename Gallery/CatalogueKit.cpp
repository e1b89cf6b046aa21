#include "Catalogue.h"

#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStackedWidget.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace Zelkor::Gallery {

namespace {

constexpr int LABEL_WIDTH = 200;

QString Tr(const char* text)
{
    return QCoreApplication::translate("Catalogue", text);
}

// A card with four buttons, whose distances the style sheet or the state sets.
QWidget* CreateFrame(QWidget* parent)
{
    auto* frame = new ZFrame(parent);
    auto* grid = new QGridLayout(frame);
    frame->setProperty("role", QStringLiteral("card"));
    for (int i = 0; i < 4; ++i)
        grid->addWidget(new QPushButton(Tr("Button %1").arg(i + 1)), i / 2, i % 2);
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
    label->setOriginalText(Tr("Built-in camera"));
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
    const QStringList texts = {Tr("A small page"), Tr("A page that takes\nthe room of its text\nand no more")};
    for (int i = 0; i < texts.size(); ++i) {
        auto* page = new ZFrame;
        auto* layout = new QVBoxLayout(page);
        auto* button = new QPushButton(Tr("Other page"));
        layout->addWidget(new QLabel(texts[i]));
        layout->addWidget(button);
        page->setProperty("role", QStringLiteral("card"));
        stack->addWidget(page);
        QObject::connect(button, &QPushButton::clicked, stack,
                         [stack, i, count = texts.size()] { stack->setCurrentIndex((i + 1) % count); });
    }
    stack->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return stack;
}

Entry FrameEntry()
{
    return {
        "ZFrame",
        Tr("Kit"),
        Tr("A frame whose layout can be spaced by a style sheet."),
        "ZFrame",
        "frame",
        CreateFrame,
        {
            MakeState<ZFrame>(Tr("Spaced by style sheet"), [](ZFrame&) {}),
            MakeState<ZFrame>(Tr("Spaced by properties"), SpaceByProperties),
            DisabledState(),
        },
    };
}

Entry LabelEntry()
{
    const QString longText = Tr("A camera with a name that is far too long for this place");
    return {
        "ZLabel",
        Tr("Kit"),
        Tr("A label for one text that may be too long: it is elided, and shown whole as the tool tip."),
        "ZLabel",
        "text",
        CreateLabel,
        {
            MakeState<ZLabel>(Tr("Fits"), [](ZLabel&) {}),
            LabelText(Tr("Elided"), longText),
            LabelText(Tr("Right-to-left text"), QString::fromUtf8("נא לבחור מצלמה אחרת מתוך הרשימה")),
            MakeState<ZLabel>(Tr("Cut, not elided"),
                              [longText](ZLabel& label) {
                                  label.setEliding(false);
                                  label.setOriginalText(longText);
                              }),
            MakeState<ZLabel>(Tr("Not clickable"), [](ZLabel& label) { label.setClickable(false); }),
            DisabledState(),
        },
    };
}

Entry StackEntry()
{
    return {
        "ZStackedWidget",
        Tr("Kit"),
        Tr("A stack of pages that takes the size of the page it shows instead of the largest one."),
        "ZStackedWidget",
        "layers",
        CreateStack,
        {
            MakeState<ZStackedWidget>(Tr("Small page"), [](ZStackedWidget&) {}),
            MakeState<ZStackedWidget>(Tr("Large page"), [](ZStackedWidget& stack) { stack.setCurrentIndex(1); }),
            MakeState<ZStackedWidget>(Tr("Without fitting"), [](ZStackedWidget& stack) { stack.setAutoFit(false); }),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> KitEntries()
{
    return {FrameEntry(), LabelEntry(), StackEntry()};
}

} // namespace Zelkor::Gallery
