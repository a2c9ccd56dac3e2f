#include "fields/extensions.h"

namespace wb::fields {

namespace {

constexpr std::size_t firstMap = 1;
/// Its map tells of the blocks that the first has no room for.
constexpr std::size_t secondMap = 128;
constexpr std::size_t lastEntry = checksumCell - 1;

void describeTag(const Scope&, std::uint64_t raw, Field& field) {
    field.text = raw == 0 ? "not used" : std::string(extensionName(static_cast<std::uint8_t>(raw)));
}

void checkEntry(const Scope& block, std::size_t offset, const std::string& name) {
    const Image& image = block.reading().image;
    const std::size_t index = block.block() + offset;
    const unsigned told = block.byte(offset);
    const bool there = index < image.blockCount();
    if (there && told != image.block(index)[0]) {
        block.tell(Severity::Error, "map.tag_wrong", offset, name,
                   "The map gives block " + std::to_string(index) + " the tag " + std::to_string(told) +
                       " where that block has " + std::to_string(image.block(index)[0]) +
                       ", so that readers who go by the map look for the wrong kind; correct the map.");
    } else if (!there && told != 0) {
        block.tell(Severity::Warning, "map.block_missing", offset, name,
                   "The map tells of block " + std::to_string(index) +
                       ", which is not there, so that readers look for it in vain; dump the whole image anew or set "
                       "the entry to 0.");
    }
}

} // namespace

void readBlockMap(const Scope& block, CtaExtensions& /*before*/) {
    block.add({.name = "tag", .label = "Extension tag", .parts = {{0}}});
    for (std::size_t offset = 1; offset <= lastEntry; ++offset) {
        const std::string name = numbered("block", block.block() + offset);
        block.add({.name = name, .label = "Tag of a block", .parts = {{offset}}, .read = describeTag});
        checkEntry(block, offset, name);
    }
    if (block.block() != firstMap && block.block() != secondMap) {
        block.tell(Severity::Error, "map.place", 0, "tag",
                   "A block map stands in block 1 or 128 and nowhere else, so that readers do not find this one; move "
                   "it there.");
    }
}

} // namespace wb::fields
