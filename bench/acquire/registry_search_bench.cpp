#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "acquire/registry_search.h"
#include "platform/headless/headless_platform.h"
#include "shell/wiring.h"

namespace wb {
namespace {

/// Seconds that one search takes through a chain of that many keys, the least of several.
double secondsFor(int levels) {
    platform::headless::HeadlessPlatform platform;
    Workbench workbench(platform.services(), shell::wiring());
    std::string path = "ROOT";
    for (int level = 0; level < levels; ++level) {
        path += "\\k";
    }
    platform.registry.addKey(path);
    double least = 0;
    for (int i = 0; i < 9; ++i) {
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(acquire::SearchRegistryForEDID(workbench, "ROOT", true));
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        least = i == 0 ? elapsed.count() : std::min(least, elapsed.count());
    }
    return least;
}

/// "growth" tells how many times the time of a tenth of the depth a search takes: 10 where it grows with the depth, 100
/// with its square.
void searchChain(benchmark::State& state) {
    const auto levels = static_cast<int>(state.range(0));
    double seconds = 0;
    for (auto _ : state) {
        seconds = secondsFor(levels);
        state.SetIterationTime(seconds);
    }
    state.counters["growth"] = seconds / secondsFor(levels / 10);
}
BENCHMARK(searchChain)->Arg(20000)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wb
