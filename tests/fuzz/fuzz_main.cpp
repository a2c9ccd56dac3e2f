// One program for all targets, which takes longest to link. WORKBENCH_FUZZ_TARGET names the one that runs; options are
// those of libFuzzer.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>

#include "fuzz/targets.h"

namespace {

void (*attempt)(std::string_view input) = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    testing::InitGoogleTest(argc, *argv);
    // An assertion that fails ends the process, which libFuzzer takes for a finding.
    GTEST_FLAG_SET(throw_on_failure, true);
    const char* const name = std::getenv("WORKBENCH_FUZZ_TARGET");
    for (const wb::fuzz::Target& target : wb::fuzz::targets()) {
        if (name != nullptr && target.name == name) {
            attempt = target.attempt;
            return 0;
        }
    }
    std::cerr << "WORKBENCH_FUZZ_TARGET names one of:";
    for (const wb::fuzz::Target& target : wb::fuzz::targets()) {
        std::cerr << ' ' << target.name;
    }
    std::cerr << '\n';
    std::exit(2);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    attempt({reinterpret_cast<const char*>(data), size});
    return 0;
}
