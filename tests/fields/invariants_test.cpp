#include <gtest/gtest.h>

#include <random>

#include "image_of.h"
#include "invariants.h"

namespace wb::fields {
namespace {

TEST(Invariants, HoldOfImagesOfAnyBytes) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        ImageOf image(1 + random() % 4);
        const Image made = image.image();
        for (std::size_t i = 8; i < made.bytes().size(); ++i) {
            if (i % Image::blockSize > 1) {
                image.set(i, {static_cast<int>(random() % 256)});
            }
        }
        SCOPED_TRACE(round);
        expectInvariants(image.reading());
    }
}

} // namespace
} // namespace wb::fields
