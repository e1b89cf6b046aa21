#include <UI/Widgets/SliderWithTickLabels.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/AddWithoutDeferredShow.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Widgets/TickLabelLayout.h>
#include <UI/Widgets/TickSlider.h>

#include <Zelkor/Util/WidgetStyle.h>

#include <QPointer>
#include <QVariant>

namespace Zelkor::Vx {

namespace {

constexpr char POSITION[] = "Position";
constexpr char SUB_STYLE[] = "SubStyle";

// Skips labels that have the value, since polishing is expensive.
void Mark(ZLabel* label, const char* property, const QString& value)
{
    const QVariant present = label->property(property);
    if (!present.isValid() || present.toString() != value)
        Zelkor::Util::ApplyWidgetStyle(label, value, property);
}

} // namespace

struct Q_DECL_HIDDEN SliderWithTickLabels::Impl
{
    TickSlider* slider = nullptr;
    QVector<ZLabel*> labels;
    ZFrame* labelsFrame = nullptr;
    QHBoxLayout* labelsLayout = nullptr;
};

SliderWithTickLabels::SliderWithTickLabels(QWidget* parent) : ZFrame(parent), impl(std::make_unique<Impl>())
{
    UI::Common::FollowLayoutDirection();
    UI::Common::AccessibleFactory<SliderWithTickLabels, UI::Common::AccessibleAs<QAccessible::Grouping>>::Install();
    const auto tell = [this](int value) {
        TellCurrentText();
        if (value < 0)
            return;
        const QPointer<SliderWithTickLabels> self(this);
        Q_EMIT CurrentIndexChanged(value);
        if (self)
            MarkCurrent(value);
    };
    impl->slider = new TickSlider(tell, this);
    impl->slider->setObjectName(QStringLiteral("slider"));
    impl->labelsFrame = new ZFrame(this);
    impl->labelsFrame->setObjectName(QStringLiteral("labelsFrame"));
    impl->labelsLayout = new TickLabelLayout(impl->labelsFrame, impl->slider);

    impl->slider->setRange(0, 0);
    impl->slider->setTickInterval(1);
    impl->slider->setSingleStep(1);
    impl->slider->setPageStep(1);
    impl->slider->setTickPosition(QSlider::TicksAbove);

    auto* layout = UI::Common::MakeBoxLayout<QVBoxLayout>(this);
    layout->addWidget(impl->labelsFrame);
    layout->addWidget(impl->slider);
    // The size policy of QSlider. Extra height would separate the labels from their ticks.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(impl->slider);
}

SliderWithTickLabels::~SliderWithTickLabels() = default;

void SliderWithTickLabels::AddItem(const QString& text)
{
    auto* label = new ZLabel(impl->labelsFrame);
    label->setOriginalText(text);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    const int index = impl->labels.size();
    connect(label, &ZLabel::clicked, this, [this, index] { SetCurrentIndex(index); });
    impl->labels.append(label);
    if (index > 0)
        impl->labelsLayout->addStretch(0);
    UI::Common::AddWithoutDeferredShow(impl->labelsLayout, label);
    impl->slider->setMaximum(index);
    MarkPositions();
    if (index == CurrentIndex())
        TellCurrentText();
}

void SliderWithTickLabels::AddItems(const QStringList& texts)
{
    for (const QString& text : texts)
        AddItem(text);
}

void SliderWithTickLabels::SetItemText(int index, const QString& text)
{
    ZLabel* label = impl->labels.value(index);
    if (!label)
        return;
    label->setOriginalText(text);
    // Two elided texts can be equal and still need different widths.
    impl->labelsLayout->update();
    if (index == CurrentIndex())
        TellCurrentText();
}

int SliderWithTickLabels::CurrentIndex() const
{
    return impl->slider->value();
}

void SliderWithTickLabels::SetCurrentIndex(int index)
{
    // A slot may delete the widget.
    const QPointer<SliderWithTickLabels> self(this);
    impl->slider->setValue(index);
    if (self)
        MarkCurrent(index);
}

QString SliderWithTickLabels::CurrentText() const
{
    const ZLabel* label = impl->labels.value(CurrentIndex());
    return label ? label->originalText() : QString();
}

int SliderWithTickLabels::FindText(const QString& text) const
{
    for (int i = 0; i < impl->labels.size(); ++i) {
        if (impl->labels[i]->originalText() == text)
            return i;
    }
    return -1;
}

// Call it after each new item, since it updates the last two labels only.
void SliderWithTickLabels::MarkPositions()
{
    const int last = impl->labels.size() - 1;
    if (last > 0)
        Mark(impl->labels[last - 1], POSITION, last == 1 ? QStringLiteral("First") : QString());
    Mark(impl->labels[last], POSITION, QStringLiteral("Last"));
}

void SliderWithTickLabels::MarkCurrent(int index)
{
    for (int i = 0; i < impl->labels.size(); ++i)
        Mark(impl->labels[i], SUB_STYLE, i == index ? QStringLiteral("Current") : QString());
}

void SliderWithTickLabels::TellCurrentText()
{
    const QString text = CurrentText();
    QSlider* slider = impl->slider;
    // Keeps a name that the application has set.
    if (slider->accessibleName().isEmpty() || slider->accessibleName() == slider->accessibleDescription())
        slider->setAccessibleName(text);
    slider->setAccessibleDescription(text);
}

} // namespace Zelkor::Vx
