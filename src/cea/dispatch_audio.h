#pragma once

#include "cea/procedure.h"

/// The rows of the focus dispatch for the audio block: its header, and the bytes of the first and of the last
/// descriptor.
namespace wb::cea {

void openAudioHeader(const Procedure& run, int index);
void openAudioChannels(const Procedure& run, int index);
void openLastAudioChannels(const Procedure& run, int index);
void openFrequencies(const Procedure& run, int index);
void openLastFrequencies(const Procedure& run, int index);
void openBitRate(const Procedure& run, int index);
void openLastBitRate(const Procedure& run, int index);

} // namespace wb::cea
