#include <UI/Widgets/ButtonWithLabels.h>

#include <UI/Common/BoxLayouts.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/ObjectNames.h>
#include <UI/Common/TextMarks.h>
#include <UI/Kit/ZLabel.h>

#include <QStyleOptionButton>

namespace Zelkor::Vx::UI {

namespace {

/// A label on the button. With `keepsBeginning` it may shrink to its first letters, otherwise it keeps its width.
class ButtonLabel : public ZLabel
{
public:
    ButtonLabel(const QString& objectName, bool keepsBeginning, QWidget* parent)
        : ZLabel(parent), keepsBeginning(keepsBeginning)
    {
        setObjectName(objectName);
        setOriginalText(QString());
        // The button handles the presses.
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    QSize minimumSizeHint() const override
    {
        if (!isEliding())
            return ZLabel::minimumSizeHint();
        QSize hint = sizeHint();
        if (keepsBeginning) {
            const int beginning = fontMetrics().horizontalAdvance(QStringLiteral("MM") + QChar(0x2026));
            hint.setWidth(qMin(hint.width(), beginning + 2 * frameWidth()));
        }
        return hint;
    }

private:
    bool keepsBeginning;
};

QString NameOf(const ZLabel& label)
{
    return label.buddy() ? Common::WithoutMnemonic(label.originalText()) : label.originalText();
}

} // namespace

ButtonWithLabels::ButtonWithLabels(Qt::Orientation orientation, QWidget* parent)
    : QPushButton(parent), textLabel(new ButtonLabel(Common::TEXT_LABEL, true, this)),
      hotKeyLabel(new ButtonLabel(Common::HOT_KEY_LABEL, false, this)),
      iconLabel(new ButtonLabel(Common::ICON_LABEL, false, this)), orientation(orientation)
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
    const QString previous = NameOf(*textLabel);
    textLabel->setOriginalText(text);
    layout()->activate();
    // Keeps a name that the application has set.
    if (accessibleName().isEmpty() || accessibleName() == previous)
        setAccessibleName(NameOf(*textLabel));
}

void ButtonWithLabels::SetHotkeyText(const QString& text)
{
    hotKeyLabel->setOriginalText(text);
    layout()->activate();
}

// QPushButton measures its own text, which is empty.
QSize ButtonWithLabels::sizeHint() const
{
    ensurePolished();
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, layout()->sizeHint(), this);
}

QSize ButtonWithLabels::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    return hint - QSize(layout()->sizeHint().width() - layout()->minimumSize().width(), 0);
}

} // namespace Zelkor::Vx::UI
