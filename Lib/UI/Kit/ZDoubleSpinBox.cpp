#include <UI/Kit/ZDoubleSpinBox.h>

#include <UI/Common/WheelPolicy.h>

#include <QLineEdit>

#include <algorithm>
#include <cmath>

using namespace Zelkor::Vx::UI;

namespace {

constexpr double MOST_STEPS = 1LL << 52; ///< beyond, a double cannot represent fractions of a step
constexpr double TOLERANCE = 1e-9;       ///< of a step; 0.3 contains three steps of 0.1 despite binary rounding

// Returns `text` without prefix, suffix and white space.
QString Bare(QString text, const QString& prefix, const QString& suffix)
{
    if (text.startsWith(prefix))
        text.remove(0, prefix.size());
    if (text.endsWith(suffix))
        text.chop(suffix.size());
    return text.trimmed();
}

} // namespace

ZDoubleSpinBox::ZDoubleSpinBox(QWidget* parent) : QDoubleSpinBox(parent)
{
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { typedText = text; });
    // The first connection to the signal, so that other slots see the rounded value.
    connect(this, &QDoubleSpinBox::editingFinished, this, &ZDoubleSpinBox::finishTyping);
}

void ZDoubleSpinBox::setFixupWithStep(bool on)
{
    fixupWithStep = on;
}

void ZDoubleSpinBox::setEditableInFocus(bool on)
{
    if (editableInFocus == on)
        return;
    editableInFocus = on;
    Common::SetWheelFocusEnabled(*this, !on);
}

void ZDoubleSpinBox::fixup(QString& text) const
{
    QDoubleSpinBox::fixup(text);
    bool isNumber = false;
    const double number = locale().toDouble(Bare(text, prefix(), suffix()), &isNumber);
    if (fixupWithStep && isNumber)
        text = prefix() + textFromValue(roundedToStep(std::clamp(number, minimum(), maximum()))) + suffix();
}

double ZDoubleSpinBox::valueFromText(const QString& text) const
{
    const double number = QDoubleSpinBox::valueFromText(text);
    // Without tracking, Qt reads typed text when editing finishes.
    return fixupWithStep && text == typedText && !keyboardTracking() ? roundedToStep(number) : number;
}

void ZDoubleSpinBox::stepBy(int steps)
{
    QDoubleSpinBox::stepBy(steps);
    typedText.clear();
}

void ZDoubleSpinBox::wheelEvent(QWheelEvent* event)
{
    if (Common::AcceptWheelEvent(*this, *event, editableInFocus))
        QDoubleSpinBox::wheelEvent(event);
}

double ZDoubleSpinBox::roundedToStep(double number) const
{
    const double stepsInRange = std::floor((maximum() - minimum()) / singleStep() + TOLERANCE);
    const double steps = std::round((number - minimum()) / singleStep());
    if (!(std::abs(steps) < MOST_STEPS))
        return number;
    // Rounded to the decimals that the field shows.
    return QString::number(minimum() + std::min(steps, stepsInRange) * singleStep(), 'f', decimals()).toDouble();
}

void ZDoubleSpinBox::finishTyping()
{
    // Not if code set another value since.
    if (fixupWithStep && !typedText.isEmpty() && value() == QDoubleSpinBox::valueFromText(typedText))
        setValue(roundedToStep(value()));
    typedText.clear();
}
