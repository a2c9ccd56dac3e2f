#include <benchmark/benchmark.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "cli/ordered_jobs.h"
#include "cli/program.h"
#include "fields/json.h"
#include "forms/recogniser.h"

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
        std::size_t begun = 0;
        OrderedJobs<std::size_t, std::string>::run(
            [&] { return begun < count ? std::optional(begun++) : std::nullopt; },
            static_cast<std::size_t>(state.range(0)),
            [&](std::size_t i) {
                Program program;
                program.load(contentsOf(inputs[i % inputs.size()], {}));
                return program.report();
            },
            [](std::size_t, const std::string& report) { benchmark::DoNotOptimize(report.data()); });
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(count) * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(translateBatch)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

/// What `inspect --format json` does with the same batch, to be compared with the reports.
void inspectBatch(benchmark::State& state) {
    constexpr std::size_t repeats = 20;
    const std::vector<Input> inputs = samples();
    for ([[maybe_unused]] auto _ : state) {
        for (std::size_t i = 0; i < repeats * inputs.size(); ++i) {
            const Contents contents = contentsOf(inputs[i % inputs.size()], {});
            benchmark::DoNotOptimize(fields::toJson(fields::read(onlyImageOf(contents))).size());
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(repeats * inputs.size()) *
                            static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(inspectBatch)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The longest way of recognition: a text that is hexadecimal to its end.
void recogniseLargeFile(benchmark::State& state) {
    const std::string content(std::size_t{1} << 20U, '1');
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(forms::recognise(content).images.size());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(content.size()) * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(recogniseLargeFile)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace wb::cli
