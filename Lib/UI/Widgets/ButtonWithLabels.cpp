#include <UI/Widgets/ButtonWithLabels.h>

#include <UI/Common/BoxLayouts.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/ObjectNames.h>
#include <UI/Common/PlainLook.h>
#include <UI/Common/TextMarks.h>
#include <UI/Kit/ZLabel.h>

#include <QEvent>
#include <QStyleOptionButton>

#include <utility>

namespace Zelkor::Vx::UI {

namespace {

/// A label on the button. With `keepsBeginning` it may shrink to its first letters, otherwise it keeps its width.
/// Without a style sheet, it keeps a distance from the label before it, if there is one in the same row.
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

    void SetLabelBefore(const ZLabel* label) { before = label; }

    void UpdateGap()
    {
        const bool isWanted = before && !before->originalText().isEmpty() && !originalText().isEmpty();
        const int width = isWanted && !Common::HasStyleSheet(*this) ? 2 * Common::PlainGap(*this) : 0;
        const QMargins wanted(isRightToLeft() ? 0 : width, 0, isRightToLeft() ? width : 0, 0);
        // A style sheet may have set others.
        if (std::exchange(gap, wanted) != wanted)
            setContentsMargins(gap);
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

protected:
    bool event(QEvent* event) override
    {
        const bool handled = ZLabel::event(event);
        if (event->type() == QEvent::Polish)
            UpdateGap();
        return handled;
    }

    void changeEvent(QEvent* event) override
    {
        UpdateGap();
        ZLabel::changeEvent(event);
    }

private:
    const bool keepsBeginning;
    const ZLabel* before = nullptr;
    QMargins gap;
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
    if (orientation == Qt::Horizontal)
        static_cast<ButtonLabel*>(hotKeyLabel)->SetLabelBefore(textLabel);
    // The distance that the style has in mind for a text of that size.
    Common::SetPlainMargins(this, [this] {
        QStyleOptionButton option;
        initStyleOption(&option);
        const QSize contents = layout()->sizeHint();
        const QSize excess =
            (style()->sizeFromContents(QStyle::CT_PushButton, &option, contents, this) - contents).expandedTo({0, 0});
        return QMargins(excess.width() / 2, excess.height() / 2, excess.width() / 2, excess.height() / 2);
    });
}

ButtonWithLabels::~ButtonWithLabels() = default;

void ButtonWithLabels::SetLabelText(const QString& text)
{
    const QString previous = NameOf(*textLabel);
    textLabel->setOriginalText(text);
    static_cast<ButtonLabel*>(hotKeyLabel)->UpdateGap();
    layout()->activate();
    // Keeps a name that the application has set.
    if (accessibleName().isEmpty() || accessibleName() == previous)
        setAccessibleName(NameOf(*textLabel));
}

void ButtonWithLabels::SetHotkeyText(const QString& text)
{
    hotKeyLabel->setOriginalText(text);
    static_cast<ButtonLabel*>(hotKeyLabel)->UpdateGap();
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
