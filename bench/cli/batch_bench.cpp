#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "cli/ordered_jobs.h"
#include "cli/program.h"

namespace wb::cli {
namespace {

std::vector<Input> samples() {
    std::vector<Input> inputs;
    for (const auto& entry : std::filesystem::directory_iterator(WORKBENCH_SOURCE_DIR "/samples")) {
        if (entry.path().extension() != ".md") {
            inputs.push_back(readInput(entry.path().string()));
        }
    }
    return inputs;
}

void startProgram(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        Program program;
        benchmark::DoNotOptimize(program.workbench().ended);
    }
}
BENCHMARK(startProgram);

/// A batch of files, each on a program of its own; the argument is the number of jobs.
void translateBatch(benchmark::State& state) {
    constexpr std::size_t repeats = 20;
    const std::vector<Input> inputs = samples();
    const std::size_t count = repeats * inputs.size();
    for ([[maybe_unused]] auto _ : state) {
        OrderedJobs<std::string>::run(
            count, static_cast<std::size_t>(state.range(0)),
            [&](std::size_t i) {
                Program program;
                program.load(inputs[i % inputs.size()]);
                return program.report();
            },
            [](const std::string& report) { benchmark::DoNotOptimize(report.data()); });
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(count) * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(translateBatch)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The longest way of recognition: a text that is hexadecimal to its end.
void recogniseLargeFile(benchmark::State& state) {
    const std::string content(std::size_t{64} << 20U, '1');
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(recognise(content).kind);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(content.size()) * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(recogniseLargeFile)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wb::cli
