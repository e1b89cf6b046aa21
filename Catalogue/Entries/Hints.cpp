#include <Catalogue/Catalogue.h>
#include <Examples/Support/Artwork.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Widgets/MaskedToolTip.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QVariant>

#include <utility>

using Zelkor::Vx::UI::MaskedToolTip;

namespace Zelkor::Catalogue {

using namespace Examples;

namespace {

constexpr int HINT_DISTANCE = 12;
constexpr int HINT_TIME_MS = 5000;
constexpr QSize BUBBLE_SIZE(264, 96);

/// A static copy of the hint, and a button that opens the hint itself, which is a window.
class HintHost : public QWidget
{
public:
    explicit HintHost(QWidget* parent)
        : QWidget(parent), look(new MaskedToolTip(this)), hint(new MaskedToolTip(this)),
          button(new QPushButton(EntryText::tr("Show the hint")))
    {
        look->setWindowFlags(Qt::Widget);
        look->setAttribute(Qt::WA_TransparentForMouseEvents);
        look->SetHideOnDeactivate(false);
        hint->SetDisplayTime(HINT_TIME_MS);
        // Side by side: above or below the button, the hint would cover its copy.
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(HINT_DISTANCE);
        layout->addWidget(look, 0, Qt::AlignTop);
        layout->addWidget(button, 0, Qt::AlignTop);
        connect(button, &QPushButton::clicked, this, [this] {
            // The point is relative to the last position of the window.
            hint->move(0, 0);
            // A speech bubble points down at the button.
            const bool isBubble = !hint->GetMask().isNull();
            const int x = isRightToLeft() ? button->width() - look->width() : 0;
            const int y = isBubble ? -BUBBLE_SIZE.height() - HINT_DISTANCE : button->height() + HINT_DISTANCE;
            hint->Show(button->mapToGlobal(QPoint(x, y)));
        });
    }

    void SetTexts(const QString& title, const QString& text)
    {
        for (MaskedToolTip* tip : {look, hint}) {
            tip->SetTitle(title);
            tip->SetText(text);
        }
        look->Show(QPoint());
    }

    void MakeBubble()
    {
        for (MaskedToolTip* tip : {look, hint}) {
            tip->setProperty("role", QStringLiteral("bubble"));
            tip->setFixedSize(BUBBLE_SIZE);
            const auto shape = [tip] { tip->SetMask(SpeechBubbleImage(BUBBLE_SIZE, tip->layoutDirection())); };
            shape();
            AdaptToSurroundings(tip, [this, tip, shape, direction = tip->layoutDirection()]() mutable {
                if (std::exchange(direction, tip->layoutDirection()) == tip->layoutDirection())
                    return;
                shape();
                if (tip != look || !look->isVisible())
                    return;
                // Applies the new mask and moves the window.
                const QPoint place = look->pos();
                look->Show(QPoint());
                look->move(place);
            });
        }
    }

private:
    MaskedToolTip* look;
    MaskedToolTip* hint;
    QPushButton* button;
};

QWidget* CreateHintHost(QWidget* parent)
{
    auto* host = new HintHost(parent);
    host->SetTexts(EntryText::tr("Choose a source first"), EntryText::tr("A camera, the screen\nor the test picture"));
    return host;
}

QWidget* CreateBubbleHost(QWidget* parent)
{
    auto* host = new HintHost(parent);
    host->MakeBubble();
    host->SetTexts(EntryText::tr("Choose a source first"), EntryText::tr("A camera, the screen or the test picture"));
    return host;
}

// A button that opens a hint in the shape of a speech bubble above itself.
void ShowHintOnClick(QWidget* parent)
{
    auto* button = new QPushButton(EntryText::tr("Show the hint"), parent);
    auto* hint = new MaskedToolTip(button);
    hint->setProperty("role", QStringLiteral("bubble"));
    hint->SetTitle(EntryText::tr("Choose a source first"));
    hint->SetText(EntryText::tr("A camera, the screen or the test picture"));
    hint->SetDisplayTime(HINT_TIME_MS);
    hint->setFixedSize(BUBBLE_SIZE);
    hint->SetMask(SpeechBubbleImage(hint->size(), hint->layoutDirection()));
    QObject::connect(button, &QPushButton::clicked, hint, [button, hint] {
        // The point is relative to the last position of the window.
        hint->move(0, 0);
        hint->Show(button->mapToGlobal(QPoint(0, -hint->height() - HINT_DISTANCE)));
    });
}

Entry MaskedToolTipEntry()
{
    return {
        "MaskedToolTip",
        EntryText::tr("Windows"),
        EntryText::tr("A hint in a window of its own, in the shape of an image, that goes by itself."),
        "MaskedToolTip",
        "hint",
        CreateHintHost,
        {
            MadeState(EntryText::tr("Title and text"), CreateHintHost),
            MadeState(EntryText::tr("Text only"),
                      [](QWidget* parent) {
                          auto* host = new HintHost(parent);
                          host->SetTexts(QString(), EntryText::tr("The recording goes on"));
                          return host;
                      }),
            MadeState(EntryText::tr("Speech bubble"), CreateBubbleHost),
        },
        MakeBare<MaskedToolTip>,
        2,
    };
}

} // namespace

QVector<Entry> HintEntries()
{
    return {NotInForms(WithExample(MaskedToolTipEntry(), ShowHintOnClick), "it is a window that comes and goes")};
}

} // namespace Zelkor::Catalogue
