#pragma once

#include <functional>
#include <vector>

/// The table of hot paths: each is measured beside its rival in one run, and the ratio is what counts.
namespace SpeedTable {

/// Seconds that each side took, one entry per round. The sides are measured in turn, so that a machine whose speed
/// drifts is as slow for the one as for the other.
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
    double goal;       ///< the ratio that the path shall not exceed
    std::function<Rounds()> measure;
};

/// Runs both sides in turn after one warm-up, each `repeats` times a round, by the wall clock.
Rounds Interleave(const std::function<void()>& path, const std::function<void()>& rival, int rounds, int repeats);

double Median(std::vector<double> values);

std::vector<Row> PreviewRows();
std::vector<Row> EffectRows();
std::vector<Row> PanelRows();
std::vector<Row> KitRows();
std::vector<Row> SliderRows();
std::vector<Row> StartRows();

/// Prints what the shadow's rim costs on widgets of growing size.
void PrintShadowCurve();

} // namespace SpeedTable
