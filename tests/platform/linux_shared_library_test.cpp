#include "platform/linux/shared_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <system_error>

namespace wb::platform::linux_system {
namespace {

using testing::HasSubstr;

template <class Action>
std::string errorOf(Action&& action) {
    try {
        action();
        return {};
    } catch (const std::system_error& error) {
        return error.what();
    }
}

TEST(LinuxSharedLibrary, GivesItsFunctions) {
    const SharedLibrary library("libm.so.6");
    EXPECT_EQ(library.function<double(double)>("trunc")(2.5), 2);
}

TEST(LinuxSharedLibrary, ThatIsNotThereIsNamed) {
    EXPECT_THAT(errorOf([] { SharedLibrary library("libnowhere.so.1"); }), HasSubstr("libnowhere.so.1"));
}

TEST(LinuxSharedLibrary, WithoutTheFunctionIsAnErrorThatNamesIt) {
    const SharedLibrary library("libm.so.6");
    EXPECT_THAT(errorOf([&] { library.function<void()>("no_such_function"); }), HasSubstr("no_such_function"));
}

} // namespace
} // namespace wb::platform::linux_system
