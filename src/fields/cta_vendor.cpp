#include <algorithm>

#include "fields/cta_data_blocks.h"

namespace wb::fields {

std::string ouiText(std::span<const std::uint8_t> bytes) {
    std::string text = hexText(bytes);
    std::replace(text.begin(), text.end(), ' ', '-');
    return text;
}

void describeOui(const Scope&, std::uint64_t raw, Field& field) {
    const std::array<std::uint8_t, 3> bytes = {static_cast<std::uint8_t>(raw >> 16U),
                                               static_cast<std::uint8_t>(raw >> 8U), static_cast<std::uint8_t>(raw)};
    field.text = ouiText(bytes);
}

namespace {

constexpr std::array<Row, 1> headRows = {{ouiRow(0)}};
constexpr std::size_t headSize = 3;

} // namespace

void readVendor(const DataBlock& block) {
    const std::size_t payload = std::min(block.begin + headSize, block.end);
    block.content.from(block.begin).fill(headRows, payload - block.begin);
    block.content.addBytes(payload, block.end, "payload", "What the organization defines");
}

} // namespace wb::fields
