// Updates a visible level meter 100 times per second. Fails when memory or CPU time per second grow after the first
// third of the run. The first argument is the length of the run in seconds.

#include "ProcessUse.h"

#include <UI/Widgets/VolumeSlider.h>

#include <Support/TestCase.h>

#include <QTimer>

#include <cmath>
#include <cstdio>
#include <vector>

int main(int argc, char* argv[])
{
    Support::PrepareProcess(argv[0]);
    QApplication application(argc, argv);
    const int seconds = argc > 1 ? std::max(6, std::atoi(argv[1])) : 12;

    Zelkor::Vx::VolumeSlider slider(nullptr);
    slider.resize(30, 200);
    slider.show();
    int step = 0;
    QTimer feed;
    feed.setTimerType(Qt::PreciseTimer);
    QObject::connect(&feed, &QTimer::timeout, &slider,
                     [&] { slider.SetVolumes(0.8F, float(std::abs(std::sin(++step * 0.11)))); });
    feed.start(10);

    std::vector<double> processor(size_t(seconds) + 1); ///< by second
    const Support::Peaks memory = Support::WatchMemory(
        seconds, [&processor](int second) { processor[size_t(second)] = Support::ProcessorSeconds(); });
    const int third = seconds / 3;
    const double early = (processor[size_t(third)] - processor[1]) / (third - 1); // without the start-up
    const double late = (processor.back() - processor[size_t(third)]) / (seconds - third);
    std::printf("%d levels; processor %.2f %%, then %.2f %%\n", step, 100 * early, 100 * late);
    // On a busy machine timers are late. The resolution of the clock is a percent.
    return step > seconds * 20 && memory.late <= memory.early + 1 && late <= 1.5 * early + 0.01 ? 0 : 1;
}
