#include <UI/Widgets/ButtonWithLabels.h>

#include <UI/Common/BoxLayouts.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/ObjectNames.h>
#include <UI/Kit/ZLabel.h>

#include <QStyleOptionButton>

namespace Zelkor::Vx::UI {

namespace {

ZLabel* MakeLabel(const QString& objectName, QWidget* parent)
{
    auto* label = new ZLabel(parent);
    label->setObjectName(objectName);
    label->setOriginalText(QString());
    // Presses on the face are the button's.
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

int WidthOf(const ZLabel& label, const QString& text)
{
    return QFontMetrics(label.font()).horizontalAdvance(text);
}

// A label reckons its size by what it shows. It is given the room to show all, until the layout gives it less.
void SetText(ZLabel& label, const QString& text)
{
    label.ensurePolished();
    label.resize(WidthOf(label, text) + 2 * label.frameWidth() + 1, label.height());
    label.setOriginalText(text);
}

// What the label's own size hint lacks while its text is elided.
int MissingWidth(const ZLabel& label)
{
    return qMax(0, WidthOf(label, label.originalText()) - WidthOf(label, label.text()));
}

} // namespace

ButtonWithLabels::ButtonWithLabels(Qt::Orientation orientation, QWidget* parent)
    : QPushButton(parent), textLabel(MakeLabel(Common::TEXT_LABEL, this)),
      hotKeyLabel(MakeLabel(Common::HOT_KEY_LABEL, this)), iconLabel(MakeLabel(Common::ICON_LABEL, this)),
      orientation(orientation)
{
    Common::FollowLayoutDirection();
    QBoxLayout* texts = nullptr;
    if (orientation == Qt::Horizontal)
        texts = Common::MakeBoxLayout<QHBoxLayout>();
    else
        texts = Common::MakeBoxLayout<QVBoxLayout>();
    texts->addWidget(textLabel);
    texts->addWidget(hotKeyLabel);
    auto* face = Common::MakeBoxLayout<QHBoxLayout>(this);
    face->addWidget(iconLabel);
    face->addLayout(texts);
}

ButtonWithLabels::~ButtonWithLabels() = default;

void ButtonWithLabels::SetLabelText(const QString& text)
{
    SetText(*textLabel, text);
    layout()->activate();
    setAccessibleName(text);
    updateGeometry();
}

void ButtonWithLabels::SetHotkeyText(const QString& text)
{
    SetText(*hotKeyLabel, text);
    layout()->activate();
    updateGeometry();
}

// QPushButton would reckon with its own text, which is empty.
QSize ButtonWithLabels::sizeHint() const
{
    ensurePolished();
    const int text = MissingWidth(*textLabel);
    const int hotKey = MissingWidth(*hotKeyLabel);
    const int missing = orientation == Qt::Horizontal ? text + hotKey : qMax(text, hotKey);
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, layout()->sizeHint() + QSize(missing, 0), this);
}

QSize ButtonWithLabels::minimumSizeHint() const
{
    const int whole = WidthOf(*textLabel, textLabel->originalText());
    const int beginning = WidthOf(*textLabel, QStringLiteral("MM") + QChar(0x2026));
    const int beside = orientation == Qt::Horizontal ? 0 : WidthOf(*hotKeyLabel, hotKeyLabel->originalText());
    return sizeHint() - QSize(qMax(0, whole - qMax(beginning, beside)), 0);
}

} // namespace Zelkor::Vx::UI
