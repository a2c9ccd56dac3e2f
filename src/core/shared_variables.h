#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/base/failure.h"
#include "core/base/image_layout.h"

namespace wb {

/// A truth value of the program: a 16-bit number, 0 for false and -1 for true.
using Flag = std::int16_t;
inline constexpr Flag flagFalse = 0;
inline constexpr Flag flagTrue = -1;
constexpr Flag flag(bool value) {
    return value ? flagTrue : flagFalse;
}

/// An array of texts with a checked index: outside it is a SubscriptOutOfRange failure. It has no elements until it is
/// created. What it once held lends its room to what it holds next.
class TextArray {
public:
    TextArray() = default;
    explicit TextArray(int count) { create(count); }
    TextArray(const TextArray& other) { *this = other; }
    TextArray& operator=(const TextArray& other) {
        resize(other.size_);
        for (std::size_t i = 0; i < static_cast<std::size_t>(size_); ++i) {
            if (texts_[i] != other.texts_[i]) { // many are alike, and telling so is cheaper than writing
                texts_[i] = other.texts_[i];
            }
        }
        return *this;
    }
    ~TextArray() = default;

    /// Creates the array anew with empty elements 0 to count - 1.
    void create(int count) {
        resize(count);
        std::for_each_n(texts_.begin(), size_, [](std::string& text) { text.clear(); });
    }
    int size() const { return size_; }
    bool operator==(const TextArray& other) const {
        return size_ == other.size_ && std::equal(texts_.begin(), texts_.begin() + size_, other.texts_.begin());
    }
    std::string& operator()(int index) { return texts_[checked(index)]; }
    const std::string& operator()(int index) const { return texts_[checked(index)]; }

private:
    std::size_t checked(int index) const {
        if (index < 0 || index >= size()) {
            throw Failure(FailureKind::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(index);
    }
    void resize(int count) {
        size_ = std::max(count, 0);
        texts_.resize(std::max(texts_.size(), static_cast<std::size_t>(size_)));
    }

    int size_ = 0;
    std::vector<std::string> texts_; ///< that many, or more from before
};

/// The shared variables of the running program. Decoded texts and block locations live as long as the program, not as
/// long as an image: they keep their values until a decoder finds something new.
struct SharedVariables {
    // The open image.
    TextArray EDIDCells{imageSize}; ///< transfer buffer: block 0, then block 1
    std::string LoadedBytes; ///< of the image, with the blocks that the cells do not hold; empty for a data file and a
                             ///< new image
    std::string CurrentFileName;
    Flag EDIDLoaded = flagFalse;
    Flag DocumentOpen = flagFalse;
    Flag ModifyEDIDOn = flagFalse;
    Flag AutoCellSeekOn = flagFalse;
    Flag EDIDModified = flagFalse;
    Flag EDIDRedecodeNeeded = flagFalse;
    std::string Block0ChecksumAsLoaded;
    std::string Block0ChecksumLast;
    Flag CEAScreenOpen = flagFalse;
    Flag HexCalculatorOpen = flagFalse;
    std::int16_t CEADtdOffset = 0;
    std::string RegBaseLocation;
    Flag SplashShowing = flagFalse;

    // Decoded texts of block 0.
    std::string IDManufacturerName;
    std::string EDIDProductCodeRaw;
    std::string ProductIDCode;
    std::string ProductCodeHex;
    std::string ProductHardwareCode;
    std::string SerialLast5;
    std::string ManufactureWeek;
    std::string ManufactureYear;
    std::string CompleteSerial;
    std::string EDIDVersionText;
    std::string EDIDRevisionText;
    std::string EDIDVersionRevisionText;
    std::string VideoInputText;
    std::string MaxHImageSizeText;
    std::string MaxVImageSizeText;
    std::string DisplayGammaText;
    std::string PowerFeatureText;
    std::string DisplayTypeText;
    std::string ChromaText1;
    std::string ChromaText2;
    std::string EstablishedTiming1Text;
    std::string EstablishedTiming2Text;
    std::string ReservedTimingText;
    TextArray StandardTimingText;
    TextArray DetailedBlockText;
    std::string ExtensionFlagText;
    std::string Block0ChecksumText;

    // Locations in the extension block: cell numbers, 0 = not known.
    std::int16_t VideoBlockStart = 0;
    std::int16_t VideoBlockLength = 0;
    std::int16_t AudioBlockStart = 0;
    std::int16_t AudioBlockLength = 0;
    std::int16_t SpeakerBlockStart = 0;
    std::int16_t SpeakerBlockLength = 0;
    std::int16_t VendorBlockStart = 0;
    std::int16_t VendorBlockLength = 0;
    std::int16_t LastAudioDescriptor = 0;
    std::int16_t AudioDescriptorCount = 0;
    std::int16_t ExtDtdStart = 0;
    std::int16_t ExtDtdSlotCount = 0;
    std::int16_t ShortVideoCell = 0;
    std::string ExtDtdOffsetText;
    std::string DataBlockKind;
    Flag LastAudioFocus = flagFalse;

    // Decoded texts of the extension block.
    std::string DTVSupportText;
    std::string VideoTagText;
    std::string AudioTagText;
    std::string SpeakerTagText;
    std::string VendorTagText;
    TextArray ShortVideoText;
    TextArray ShortVideoNativeText;
    std::string AudioKindText;
    std::string AudioFormatText;
    std::string AudioChannelsText;
    std::string SampFreqText;
    std::string BitRateText;
    std::string LastAudioKindText;
    std::string LastAudioFormatText;
    std::string LastAudioChannelsText;
    std::string LastSampFreqText;
    std::string LastBitRateText;
    std::string AudioChannelDigit;
    std::string SpeakerText;
    std::string VendorIDText;
    std::string VendorDataText;
    std::string VSDBExtText;
    TextArray ExtDetailedBlockText;
    TextArray ExtDetailedBlockNote; ///< second text of each detailed timing slot; only ever made empty

    // Report buffers, closed by an entry "END REPORT".
    TextArray ReportBlock0Lines;
    TextArray ReportExtLines;

    bool operator==(const SharedVariables&) const = default;
};

/// Whether a visit of a cell goes on to the input box of its panel: editing and seeking are both switched on.
inline bool seeks(const SharedVariables& variables) {
    return variables.ModifyEDIDOn != flagFalse && variables.AutoCellSeekOn != flagFalse;
}

} // namespace wb
