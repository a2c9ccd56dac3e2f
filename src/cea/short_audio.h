#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// Short audio descriptors of three bytes (CEA-861): format code and channels, sampling frequencies, sample sizes or
/// bit rate. The first and the last descriptor of the block are decoded; those between them are raw cells.
namespace wb::cea {

/// Walks to the last descriptor. With fewer than two the location keeps its old value.
void LocateAudioDescriptors(Workbench& workbench);
/// Tells compressed from uncompressed audio for the last descriptor.
void ConvertCompressAudio(Workbench& workbench);

void BuildAudioChannels(Workbench& workbench);
void BuildAudioFormatName(Workbench& workbench);
void BuildSampFreq(Workbench& workbench);
/// Sample sizes, or the bit rate where compressed audio is selected.
void BuildBitRate(Workbench& workbench);
void BuildCompressedBitRate(Workbench& workbench);

void BuildLastAudioChannels(Workbench& workbench);
void BuildLastAudioFormatName(Workbench& workbench);
void BuildLastSampFreq(Workbench& workbench);
/// Always a bit rate, whatever the kind of the last descriptor.
void BuildLastBitRate(Workbench& workbench);

/// Fields of a descriptor's first byte as binary digits: format code (bits 6 to 3), channels minus one (bits 2 to 0).
std::string formatDigits(std::string_view cellText);
std::string channelDigits(std::string_view cellText);

/// The format code of uncompressed audio, linear PCM.
inline constexpr std::string_view linearFormat = "0001";

/// The cell of byte 1, 2 or 3 of the first and of the last descriptor.
int firstAudioCell(const Workbench& workbench, int byte);
int lastAudioCell(const Workbench& workbench, int byte);

} // namespace wb::cea
