#include "fields/modeline_timing.h"

#include "core/base/bits.h"
#include "fields/detailed_timing.h"
#include "fields/reading.h"

namespace wb::fields {

namespace {

constexpr int digitalSeparate = 3;
constexpr std::size_t flagByte = 17;
constexpr int interlacedPlace = 7;
constexpr wb::BitRange syncKindPlaces{4, 3};
constexpr int verticalPolarityPlace = 2;
constexpr int horizontalPolarityPlace = 1;

constexpr std::int64_t mostClock = 65535 * timingClockStep;

/// One direction as a detailed timing counts it.
struct Lengths {
    int active;
    int blank;
    int frontPorch;
    int sync;
};

/// What one direction has room for.
struct Room {
    std::string_view direction;
    int picture; ///< of the picture and of the blanking
    int sync;    ///< of the front porch and of the sync pulse
};
constexpr Room horizontalRoom{"horizontal", 4095, 1023};
constexpr Room verticalRoom{"vertical", 4095, 63};

void requireRoom(const Room& room, std::string_view part, int length, int most) {
    if (length > most) {
        std::string message = "the ";
        message += room.direction;
        message += ' ';
        message += part;
        message +=
            " of " + std::to_string(length) + " does not fit: a detailed timing has room for " + std::to_string(most);
        throw ModelineError(message);
    }
}

Lengths lengthsOf(const ModelineAxis& axis, const Room& room) {
    const Lengths lengths = {.active = axis.active,
                             .blank = axis.total - axis.active,
                             .frontPorch = axis.syncStart - axis.active,
                             .sync = axis.syncEnd - axis.syncStart};
    requireRoom(room, "picture", lengths.active, room.picture);
    requireRoom(room, "blanking", lengths.blank, room.picture);
    requireRoom(room, "front porch", lengths.frontPorch, room.sync);
    requireRoom(room, "sync pulse", lengths.sync, room.sync);
    return lengths;
}

/// The lines of one of two fields: each has half of all but the odd line, which is shared by their blankings.
ModelineAxis halved(const ModelineAxis& whole) {
    if (whole.active % 2 != 0 || whole.syncStart % 2 != 0 || whole.syncEnd % 2 != 0 || whole.total % 2 == 0) {
        throw ModelineError("the vertical numbers of an interlaced timing are even but for the total, which is odd");
    }
    ModelineAxis field = whole;
    for (int* const number : {&field.active, &field.syncStart, &field.syncEnd, &field.total}) {
        *number /= 2;
    }
    return field;
}

ModelineAxis doubled(const ModelineAxis& field) {
    ModelineAxis whole = field;
    for (int* const number : {&whole.active, &whole.syncStart, &whole.syncEnd, &whole.total}) {
        *number *= 2;
    }
    ++whole.total;
    return whole;
}

int clockSteps(const Modeline& modeline) {
    const std::int64_t steps = (modeline.clockKilohertz + timingClockStep / 2) / timingClockStep;
    if (steps < 1 || steps * timingClockStep > mostClock) {
        throw ModelineError("the pixel clock does not fit: a detailed timing has room for 0.01 to 655.35 MHz");
    }
    return static_cast<int>(steps);
}

std::uint8_t low(int number) {
    return static_cast<std::uint8_t>(bits(number, 7, 0));
}

/// Bits 11 to 8 of two numbers in one byte.
std::uint8_t highNibbles(int first, int second) {
    return low(bits(first, 11, 8) << 4 | bits(second, 11, 8));
}

} // namespace

TimingBytes timingBytes(const Modeline& modeline) {
    const int clock = clockSteps(modeline);
    const Lengths h = lengthsOf(modeline.horizontal, horizontalRoom);
    const Lengths v = lengthsOf(modeline.interlaced ? halved(modeline.vertical) : modeline.vertical, verticalRoom);
    TimingBytes bytes{low(clock),
                      low(clock >> 8),
                      low(h.active),
                      low(h.blank),
                      highNibbles(h.active, h.blank),
                      low(v.active),
                      low(v.blank),
                      highNibbles(v.active, v.blank),
                      low(h.frontPorch),
                      low(h.sync),
                      low(bits(v.frontPorch, 3, 0) << 4 | bits(v.sync, 3, 0)),
                      low(bits(h.frontPorch, 9, 8) << 6 | bits(h.sync, 9, 8) << 4 | bits(v.frontPorch, 5, 4) << 2 |
                          bits(v.sync, 5, 4))};
    int flags = withBits(0, syncKindPlaces, digitalSeparate);
    flags = withBit(flags, interlacedPlace, modeline.interlaced);
    flags = withBit(flags, verticalPolarityPlace, modeline.vertical.positiveSync);
    flags = withBit(flags, horizontalPolarityPlace, modeline.horizontal.positiveSync);
    bytes[flagByte] = low(flags);
    return bytes;
}

std::optional<Modeline> modelineAt(const Image& image, std::size_t byte) {
    Reading reading{.image = image};
    const DetailedTiming timing = detailedTimingOf(Scope(reading, byte, {}, {}));
    const int flags = image.byte(byte + flagByte);
    if (timing.clockKilohertz == 0 || bits(flags, syncKindPlaces) != digitalSeparate) {
        return std::nullopt;
    }
    const auto axis = [&](int active, int blank, int frontPorch, int sync, int polarityPlace) {
        return ModelineAxis{.active = active,
                            .syncStart = active + frontPorch,
                            .syncEnd = active + frontPorch + sync,
                            .total = active + blank,
                            .positiveSync = bit(flags, polarityPlace)};
    };
    const ModelineAxis vertical =
        axis(timing.vActive, timing.vBlank, timing.vFrontPorch, timing.vSync, verticalPolarityPlace);
    return Modeline{
        .clockKilohertz = timing.clockKilohertz,
        .horizontal = axis(timing.hActive, timing.hBlank, timing.hFrontPorch, timing.hSync, horizontalPolarityPlace),
        .vertical = timing.interlaced ? doubled(vertical) : vertical,
        .interlaced = timing.interlaced};
}

} // namespace wb::fields
