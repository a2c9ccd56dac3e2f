#pragma once

/// The rows of the focus dispatch for the audio block (CEA-861-D, section 7.5.2): its header, and the bytes of the
/// first and of the last descriptor. Each shows and captions the panel of the cell `index`, colours block and cell, and
/// decodes the cell. The rows of the last descriptor raise LastAudioFocus.
namespace wb::cea {

struct Procedure;

void openAudioHeader(const Procedure& run, int index);

// Byte 1: format code and channels.
void openAudioChannels(const Procedure& run, int index);
/// Looks for the last descriptor anew.
void openLastAudioChannels(const Procedure& run, int index);

// Byte 2: sampling frequencies.
void openFrequencies(const Procedure& run, int index);
void openLastFrequencies(const Procedure& run, int index);

// Byte 3: sample sizes or bit rate.
/// Where video and audio block are known, takes the cell behind the first descriptor for the speaker block.
void openBitRate(const Procedure& run, int index);
/// Where video block, audio block and last descriptor are known, forgets the speaker block.
void openLastBitRate(const Procedure& run, int index);

} // namespace wb::cea
