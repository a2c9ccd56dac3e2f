#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>

#include "fields/json.h"
#include "fields/reading.h"

namespace wb::fields {
namespace {

constexpr const char* displaySample = "brindleco-b24w.bin";
constexpr const char* televisionSample = "zarqo-z40.bin";

Image sample(const char* name) {
    std::ifstream in(std::string(WORKBENCH_SOURCE_DIR "/samples/") + name, std::ios::binary);
    return *Image::fromBytes(std::string{std::istreambuf_iterator<char>(in), {}});
}

void readImage(benchmark::State& state, const char* name) {
    const Image image = sample(name);
    for (auto _ : state) {
        benchmark::DoNotOptimize(read(image));
    }
}
BENCHMARK_CAPTURE(readImage, display, displaySample);
BENCHMARK_CAPTURE(readImage, television, televisionSample);

/// What a batch does for each image.
void readImageAsJson(benchmark::State& state, const char* name) {
    const Image image = sample(name);
    for (auto _ : state) {
        benchmark::DoNotOptimize(toJson(read(image)));
    }
}
BENCHMARK_CAPTURE(readImageAsJson, display, displaySample);
BENCHMARK_CAPTURE(readImageAsJson, television, televisionSample);

} // namespace
} // namespace wb::fields
