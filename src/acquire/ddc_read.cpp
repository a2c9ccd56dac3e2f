#include "acquire/ddc_read.h"

#include "core/base/image.h"

namespace wb::acquire {

namespace {

constexpr int tries = 3;

std::string readBlock(platform::DdcBus& bus, int offset) {
    std::string block;
    for (int i = 0; i < tries; ++i) {
        block = bus.read(offset, static_cast<int>(Image::blockSize));
        const auto image = Image::fromBytes(block);
        if (image && sumsToZero(image->block(0))) {
            break;
        }
    }
    return block;
}

} // namespace

DdcEdid readByDdc(platform::DdcBus& bus) {
    DdcEdid edid;
    edid.bytes = readBlock(bus, 0);
    edid.headed = edid.bytes.starts_with(imageHeader);
    if (!edid.headed) {
        return edid;
    }
    const int extensions = static_cast<unsigned char>(edid.bytes[extensionCountCell]);
    if (extensions > 0) {
        edid.bytes += readBlock(bus, static_cast<int>(Image::blockSize));
        edid.beyond = extensions - 1;
    }
    return edid;
}

} // namespace wb::acquire
