// Updates a visible level meter 100 times per second. Fails when memory or CPU time per second grow after the first
// third of the run. The first argument is the length of the run in seconds.

#include "ProcessUse.h"

#include <UI/Widgets/VolumeSlider.h>

#include <Support/TestCase.h>

#include <QTimer>

#include <cmath>
#include <cstdio>

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

    // In the first third and in the rest.
    double peakMemory[2] = {0, 0};
    double processor[2] = {0, 0};
    int counted[2] = {0, 0};
    int second = 0;
    double last = Support::ProcessorSeconds();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &slider, [&] {
        const double now = Support::ProcessorSeconds();
        const int part = 3 * second < seconds ? 0 : 1;
        if (second > 0) { // without the start-up
            processor[part] += now - last;
            ++counted[part];
        }
        peakMemory[part] = std::max(peakMemory[part], Support::Resident());
        if (second % 60 == 0)
            std::printf("%4d s: %.1f MB, %.2f %% of a processor\n", second, Support::Resident(), 100 * (now - last));
        std::fflush(stdout);
        last = now;
        if (++second >= seconds)
            QCoreApplication::quit();
    });
    watch.start(1000);
    QApplication::exec();

    const double early = processor[0] / counted[0];
    const double late = processor[1] / counted[1];
    std::printf("%d levels; memory %.1f MB, then %.1f MB; processor %.2f %%, then %.2f %%\n", step, peakMemory[0],
                peakMemory[1], 100 * early, 100 * late);
    // On a busy machine timers are late. The resolution of the clock is a percent.
    return step > seconds * 20 && peakMemory[1] <= peakMemory[0] + 1 && late <= 1.5 * early + 0.01 ? 0 : 1;
}
