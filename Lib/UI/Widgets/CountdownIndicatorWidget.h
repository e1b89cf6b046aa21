#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <memory>

namespace Zelkor::Vx {

/// Shows a remaining time as three two-digit numbers with short captions.
///
/// The value selects the units: hours, minutes and seconds up to 99 hours; days, hours and minutes up to 99 days;
/// months, days and hours up to a year; years, months and days above. A month has 30 days, a year 365. The widget has
/// no timer: the application sets the remaining time, for instance once a second. Both rows are left-to-right in every
/// locale. GUI thread only.
///
/// Object names for style sheets: "numbersFrame" with "number1Label", "number2Label" and "number3Label", between them
/// two "numbersSeparator", and "captionsFrame" with "caption1Label", "caption2Label" and "caption3Label".
class VX_WIDGETS_EXPORT CountdownIndicatorWidget : public ZFrame
{
    Q_OBJECT

public:
    explicit CountdownIndicatorWidget(QWidget* parent);
    ~CountdownIndicatorWidget() override;

    /// Sets the remaining time in seconds, 0 by default. A number of years above 99 shows its first two
    /// digits.
    void SetSeconds(unsigned long long seconds);

    /// Returns the remaining time in seconds.
    unsigned long long GetSeconds() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void TellNewName();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
