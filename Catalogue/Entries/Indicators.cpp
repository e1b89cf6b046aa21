#include <Catalogue/Catalogue.h>
#include <UI/Widgets/CountdownIndicatorWidget.h>
#include <UI/Widgets/CursorHighlightPreviewWidget.h>

#include <QColor>

using Zelkor::Vx::CountdownIndicatorWidget;
using Zelkor::Vx::UI::CursorHighlightPreviewWidget;

namespace Zelkor::Catalogue {

namespace {

constexpr unsigned long long MINUTE = 60;
constexpr unsigned long long HOUR = 60 * MINUTE;
constexpr unsigned long long DAY = 24 * HOUR;

constexpr int TYPICAL_RADIUS = 28;
constexpr int LARGE_RADIUS = 64;
constexpr int THICK_BORDER = 8;
constexpr QColor HIGHLIGHT(255, 184, 0);
constexpr QColor TRANSLUCENT_HIGHLIGHT(255, 92, 95, 112);
const QString THICK_BORDER_SHEET = QStringLiteral("* { qproperty-borderColor: #3567e0 }");

template<class Widget>
QWidget* Create(QWidget* parent)
{
    return new Widget(parent);
}

State CountdownState(const QString& name, unsigned long long seconds)
{
    return MakeState<CountdownIndicatorWidget>(
        name, [seconds](CountdownIndicatorWidget& countdown) { countdown.SetSeconds(seconds); });
}

Entry CountdownEntry()
{
    return {
        "CountdownIndicatorWidget",
        EntryText::tr("Indicators"),
        EntryText::tr("Shows a remaining time as three numbers with captions, in the units that suit it."),
        "CountdownIndicatorWidget",
        "countdown",
        Create<CountdownIndicatorWidget>,
        {
            CountdownState(EntryText::tr("Fresh"), 0),
            CountdownState(EntryText::tr("Short"), 5),
            CountdownState(EntryText::tr("Hours"), 12 * HOUR + 34 * MINUTE + 56),
            CountdownState(EntryText::tr("Days"), 8 * DAY + 6 * HOUR + 45 * MINUTE),
            CountdownState(EntryText::tr("Months"), 200 * DAY + 21 * HOUR),
            CountdownState(EntryText::tr("Years"), 800 * DAY),
            MakeState<CountdownIndicatorWidget>(EntryText::tr("Disabled"),
                                                [](CountdownIndicatorWidget& countdown) {
                                                    countdown.SetSeconds(90 * MINUTE);
                                                    countdown.setEnabled(false);
                                                }),
        },
        nullptr,
        2,
    };
}

State DiscState(const QString& name, int radius, const QColor& color)
{
    return MakeState<CursorHighlightPreviewWidget>(name, [radius, color](CursorHighlightPreviewWidget& preview) {
        preview.SetColor(color);
        preview.SetRadius(radius);
    });
}

QWidget* CreateFramed(int borderWidth, QWidget* parent)
{
    auto* preview = new CursorHighlightPreviewWidget(parent);
    preview->SetBorderWidth(borderWidth);
    preview->SetColor(HIGHLIGHT);
    preview->SetRadius(TYPICAL_RADIUS);
    return preview;
}

Entry CursorHighlightEntry()
{
    return {
        "CursorHighlightPreviewWidget",
        EntryText::tr("Indicators"),
        EntryText::tr("Shows how the highlight around the mouse cursor will look."),
        "CursorHighlightPreviewWidget",
        "pointer",
        Create<CursorHighlightPreviewWidget>,
        {
            MakeState<CursorHighlightPreviewWidget>(EntryText::tr("Fresh"), [](CursorHighlightPreviewWidget&) {}),
            DiscState(EntryText::tr("Typical"), TYPICAL_RADIUS, HIGHLIGHT),
            DiscState(EntryText::tr("Translucent colour"), TYPICAL_RADIUS, TRANSLUCENT_HIGHLIGHT),
            DiscState(EntryText::tr("Larger than the preview"), LARGE_RADIUS, HIGHLIGHT),
            MadeState(EntryText::tr("Thick border"),
                      [](QWidget* parent) {
                          QWidget* preview = CreateFramed(THICK_BORDER, parent);
                          // The application's style sheet would reset the property whenever it changes.
                          preview->setStyleSheet(THICK_BORDER_SHEET);
                          return preview;
                      }),
            MadeState(EntryText::tr("No border"), [](QWidget* parent) { return CreateFramed(0, parent); }),
        },
        nullptr,
        1,
    };
}

} // namespace

QVector<Entry> IndicatorEntries()
{
    return {InForms<CountdownIndicatorWidget>(CountdownEntry()),
            InForms<CursorHighlightPreviewWidget>(CursorHighlightEntry())};
}

} // namespace Zelkor::Catalogue
