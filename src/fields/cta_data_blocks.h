#pragma once

#include <map>

#include "fields/cta_video_codes.h"
#include "fields/scope.h"

namespace wb::fields {

/// A video code, and the number of its field in the order of reading.
struct ReadVideoCode {
    std::uint8_t code;
    std::size_t field;
};

/// What a CTA-861 extension, or another collection of data blocks, told so far. Lists of one kind go on from data block
/// to data block.
struct CtaState {
    std::string_view limit;  ///< what sets the end of the data blocks
    unsigned flags = 0;      ///< byte 3 of the extension
    std::size_t timings = 0; ///< detailed timings of block 0, of the extensions before and of this one
    std::size_t dataBlocks = 0;
    std::map<std::string_view, std::size_t> kinds{};        ///< how many of each kind, by the name of the kind
    std::map<std::string_view, std::size_t> earlierKinds{}; ///< the same of the extensions before
    std::vector<ReadVideoCode> videoCodes{};                ///< of the short video descriptors in their order
    std::vector<ReadVideoCode> videoCodes420{};             ///< of those for YCbCr 4:2:0 alone
    std::size_t audioDescriptors = 0;
    int mostPcmChannels = 0; ///< of the descriptors of L-PCM
    std::size_t preferences = 0;
    std::size_t mapReach = 0;      ///< position of the last descriptor that the YCbCr 4:2:0 capability map names
    std::size_t mapReachField = 0; ///< the number of its field in the order of reading

    bool has(std::string_view kind) const { return kinds.count(kind) != 0; }
};

/// A data block as its reader gets it. Offsets count from its first byte, that of tag and length.
struct DataBlock {
    const Scope& extension; ///< the path is that of the extension: for lists that go on
    const Scope& content;   ///< the path is that of the kind
    std::size_t begin;      ///< after the tags
    std::size_t end;        ///< limited to what is inside the collection
    CtaState& state;
};

bool hasCode(const std::vector<ReadVideoCode>& codes, std::uint8_t code);

/// Reads the data blocks from `offset` of the extension up to `end`.
void readDataBlocks(const Scope& extension, std::size_t offset, std::size_t end, CtaState& state);

/// The IEEE number of an organization, three bytes from the most significant on: "00-0C-03".
std::string ouiText(std::span<const std::uint8_t> bytes);
void describeOui(const Scope& scope, std::uint64_t raw, Field& field);
/// The IEEE number of an organization in three bytes, the least significant first.
constexpr Row ouiRow(std::size_t offset) {
    return {
        .name = "oui", .label = "Organization", .parts = {{offset + 2}, {offset + 1}, {offset}}, .read = describeOui};
}

// The readers of the content of each kind.
void readVideoBlock(const DataBlock& block);
void readVideo420Block(const DataBlock& block);
void readCapabilityMap(const DataBlock& block);
void readFormatPreference(const DataBlock& block);
void readAudioBlock(const DataBlock& block);
void readSpeakerAllocation(const DataBlock& block);
void readRoomConfiguration(const DataBlock& block);
void readSpeakerLocation(const DataBlock& block);
void readHdmi(const DataBlock& block);
void readHdmiForum(const DataBlock& block);
void readHdmiForumSinkCapability(const DataBlock& block);
void readExtensionOverride(const DataBlock& block);
void readVendor(const DataBlock& block);
void readTransferCharacteristic(const DataBlock& block);
void readDisplayDevice(const DataBlock& block);
void readVideoCapability(const DataBlock& block);
void readColorimetry(const DataBlock& block);
void readHdrStatic(const DataBlock& block);
void readHdrDynamic(const DataBlock& block);
void readTypeVIIBlock(const DataBlock& block);
void readUnknownBlock(const DataBlock& block);

} // namespace wb::fields
