#pragma once

#include <functional>
#include <vector>

/// The table of hot paths. Each is measured next to a baseline in the same run; the result is the ratio.
namespace SpeedTable {

/// The seconds of each side, one entry per round. The sides alternate, so that a drift of the machine's speed affects
/// both.
struct Rounds
{
    std::vector<double> path;
    std::vector<double> rival;
};

struct Row
{
    const char* name;  ///< for `--row`
    const char* path;  ///< what is measured
    const char* rival; ///< what it is measured against
    double goal;       ///< upper limit of the ratio
    std::function<Rounds()> measure;
};

/// Alternates both sides after one warm-up, each `repeats` times per round. Measures wall-clock time.
Rounds Interleave(const std::function<void()>& path, const std::function<void()>& rival, int rounds, int repeats);

double Median(std::vector<double> values);

std::vector<Row> PreviewRows();
std::vector<Row> EffectRows();
std::vector<Row> PanelRows();
std::vector<Row> KitRows();
std::vector<Row> SliderRows();
std::vector<Row> StartRows();

/// Prints the cost of the inner shadow for widgets of increasing size.
void PrintShadowCurve();

} // namespace SpeedTable
