#include <UI/Widgets/PreviewFeeder.h>

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace Zelkor::Vx {

namespace {

struct Entry
{
    const UI::VideoPreviewWidget* preview;
    std::weak_ptr<PreviewFeeder> feeder;
};

// Never destroyed, since a static object may destroy a preview later.
std::vector<Entry>& Entries()
{
    static auto* entries = new std::vector<Entry>;
    return *entries;
}

void EndAll(const std::vector<Entry>& entries)
{
    for (const Entry& entry : entries) {
        if (const auto feeder = entry.feeder.lock())
            feeder->EndFeeding();
    }
}

// Stops the feeders of previews that outlive the application object. Without that object, no thread can create the
// pixmap of a frame.
void EndWithApplication()
{
    EndAll(std::exchange(Entries(), {}));
}

} // namespace

void PreviewFeeder::Register(const UI::VideoPreviewWidget* preview, const std::weak_ptr<PreviewFeeder>& feeder)
{
    std::vector<Entry>& entries = Entries();
    const auto isExpired = [](const Entry& entry) { return entry.feeder.expired(); };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isExpired), entries.end());
    entries.push_back({preview, feeder});
    // Qt calls a post routine once, so a second application object needs another registration.
    qRemovePostRoutine(EndWithApplication);
    qAddPostRoutine(EndWithApplication);
}

void PreviewFeeder::EndAllOf(const UI::VideoPreviewWidget* preview)
{
    std::vector<Entry>& entries = Entries();
    const auto first = std::stable_partition(entries.begin(), entries.end(),
                                             [=](const Entry& entry) { return entry.preview != preview; });
    const std::vector<Entry> ended(std::make_move_iterator(first), std::make_move_iterator(entries.end()));
    entries.erase(first, entries.end());
    EndAll(ended);
}

} // namespace Zelkor::Vx
