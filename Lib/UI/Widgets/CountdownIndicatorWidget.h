#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <memory>

namespace Zelkor::Vx {

/// Shows a remaining time as three numbers of two digits, with a short caption under each.
///
/// The three units suit the size of the value: hours, minutes and seconds up to 99 hours; days, hours and minutes up to
/// 99 days; months, days and hours up to a year; and years, months and days beyond. A month has 30 days and a year 365.
/// The widget does not count by itself: the application sets what remains, once a second, say. Both rows run from left
/// to right in every language. GUI thread only.
///
/// Object names for style sheets: "numbersFrame" with "number1Label", "number2Label" and "number3Label", between them
/// two "numbersSeparator", and "captionsFrame" with "caption1Label", "caption2Label" and "caption3Label".
class VX_WIDGETS_EXPORT CountdownIndicatorWidget : public ZFrame
{
    Q_OBJECT

public:
    explicit CountdownIndicatorWidget(QWidget* parent);
    ~CountdownIndicatorWidget() override;

    /// Shows that many seconds; 0 at first. Of a number with more than two digits, which only years can have, the first
    /// two show.
    void SetSeconds(unsigned long long seconds);

    /// What was set last.
    unsigned long long GetSeconds() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void TellNewName();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
