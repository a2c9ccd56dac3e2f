#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// Short audio descriptors of three bytes (CEA-861-D, section 7.5.2): format code and channels, sampling frequencies,
/// sample sizes or bit rate. The first and the last descriptor of the block are decoded; those between them are raw
/// cells. Both have the same controls, and texts of their own for the report.
namespace wb::cea {

/// Walks to the last descriptor: sets AudioDescriptorCount, LastAudioDescriptor and, counted from 0,
/// CurrentBlockNumber. With fewer than two descriptors the count alone.
void LocateAudioDescriptors(Workbench& workbench);
/// Tells compressed from uncompressed audio for the last descriptor, in LastAudioKindText.
void ConvertCompressAudio(Workbench& workbench);

/// The number of channels, 1 to 8, and the caption of the panel. Where compressed audio is selected the format follows;
/// other audio is linear PCM, and the options of the format are hidden.
void BuildAudioChannels(Workbench& workbench);
/// The name of the format code; the code 15 has none and leaves the text as it was.
void BuildAudioFormatName(Workbench& workbench);
/// The list of sampling frequencies in kilohertz.
void BuildSampFreq(Workbench& workbench);
/// Sample sizes in bits, or the bit rate where compressed audio is selected.
void BuildBitRate(Workbench& workbench);
/// Adds the maximum bit rate, 8 kilobits per second for each unit of the byte, to BitRateText.
void BuildCompressedBitRate(Workbench& workbench);

/// The number of channels and the format, whatever the kind of the last descriptor.
void BuildLastAudioChannels(Workbench& workbench);
void BuildLastAudioFormatName(Workbench& workbench);
void BuildLastSampFreq(Workbench& workbench);
/// Always a bit rate, whatever the kind of the last descriptor.
void BuildLastBitRate(Workbench& workbench);

/// Whether the panel has the first descriptor as compressed audio, whatever its format code.
bool isCompressed(FrmCeaExt& screen);

// Fields of a descriptor's first byte, from the text of its cell.
/// Whether the format code (bits 6 to 3) is that of uncompressed audio, linear PCM.
bool isLinear(std::string_view cellText);
/// The number of channels minus one (bits 2 to 0) as binary digits.
std::string_view channelDigits(std::string_view cellText);

/// The cell of byte 1, 2 or 3 of the first and of the last descriptor. A number beyond 16 bits is an Overflow.
int firstAudioCell(const Workbench& workbench, int byte);
int lastAudioCell(const Workbench& workbench, int byte);

} // namespace wb::cea
