#include "platform/registry_path.h"

#include <gtest/gtest.h>

namespace wb::platform {
namespace {

using Parts = std::vector<std::string_view>;

TEST(RegistryPath, IsSplitAtBackslashes) {
    EXPECT_EQ(registryPathParts(""), Parts{});
    EXPECT_EQ(registryPathParts("A"), Parts{"A"});
    EXPECT_EQ(registryPathParts("A\\b c\\/|"), (Parts{"A", "b c", "/|"}));
    EXPECT_EQ(registryPathParts("\\A\\\\B\\"), (Parts{"A", "B"}));
    EXPECT_EQ(registryPathParts("\\\\"), Parts{});
}

} // namespace
} // namespace wb::platform
