#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <string>

#include "acquire/get_edid.h"
#include "platform/headless/headless_platform.h"
#include "report/block0_report.h"
#include "report/definitions.h"
#include "report/show_report.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace wb {
namespace {

constexpr const char* displaySample = "brindleco-b24w.bin";
constexpr const char* televisionSample = "zarqo-z40.bin";

std::string sample(const char* name) {
    std::ifstream in(std::string(WORKBENCH_SOURCE_DIR "/samples/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// A started program with the image loaded as the stored EDID of a monitor is.
struct Program {
    explicit Program(const std::string& image) : workbench(platform.services(), shell::wiring()) {
        shell::Main(workbench);
        acquire::LoadStoredEdid(workbench, image);
    }

    platform::headless::HeadlessPlatform platform;
    Workbench workbench;
};

void decodeBlock0(benchmark::State& state, const char* name) {
    Program program(sample(name));
    for (auto _ : state) {
        report::BuildEDIDDefinations(program.workbench);
    }
}
BENCHMARK_CAPTURE(decodeBlock0, display, displaySample);
BENCHMARK_CAPTURE(decodeBlock0, television, televisionSample);

void buildBlock0Report(benchmark::State& state, const char* name) {
    Program program(sample(name));
    for (auto _ : state) {
        report::BuildBlock0Report(program.workbench);
    }
}
BENCHMARK_CAPTURE(buildBlock0Report, display, displaySample);

double secondsPerCopy(const std::string& text) {
    constexpr int copies = 100000;
    std::string target;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < copies; ++i) {
        target.assign(text.data(), text.size());
        benchmark::DoNotOptimize(target.data());
        benchmark::ClobberMemory();
    }
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    return elapsed.count() / copies;
}

/// An image from its bytes to the report in the window. "copies" tells how often the text that comes out could have
/// been copied in that time.
void translate(benchmark::State& state, const char* name) {
    const std::string image = sample(name);
    Program program(image);
    const auto start = std::chrono::steady_clock::now();
    for (auto _ : state) {
        acquire::LoadStoredEdid(program.workbench, image);
        report::ShowReport(program.workbench, false);
    }
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    const std::string& text = program.workbench.frmDocument().rtftext.text();
    const double perImage = elapsed.count() / static_cast<double>(state.iterations());
    state.counters["copies"] = perImage / secondsPerCopy(text);
    state.counters["bytes"] = static_cast<double>(text.size());
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(translate, display, displaySample);
BENCHMARK_CAPTURE(translate, television, televisionSample);

} // namespace
} // namespace wb
