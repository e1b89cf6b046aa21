#include "SpeedTable.h"

#include <algorithm>
#include <chrono>

namespace SpeedTable {

namespace {

double TimeOf(const std::function<void()>& work, int repeats)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < repeats; ++i)
        work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / repeats;
}

} // namespace

Rounds Interleave(const std::function<void()>& path, const std::function<void()>& rival, int rounds, int repeats)
{
    TimeOf(path, repeats);
    TimeOf(rival, repeats);
    Rounds result;
    for (int i = 0; i < rounds; ++i) {
        result.path.push_back(TimeOf(path, repeats));
        result.rival.push_back(TimeOf(rival, repeats));
    }
    return result;
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace SpeedTable
