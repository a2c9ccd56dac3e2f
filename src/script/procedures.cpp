#include <array>
#include <span>

#include "acquire/get_edid.h"
#include "cea/audio_panel.h"
#include "cea/data_blocks.h"
#include "cea/definitions.h"
#include "cea/detailed_slots.h"
#include "cea/dtv_support.h"
#include "cea/header.h"
#include "cea/procedure.h"
#include "cea/screen.h"
#include "cea/short_audio.h"
#include "cea/short_video.h"
#include "cea/speaker.h"
#include "cea/tag_panel.h"
#include "cea/vendor.h"
#include "core/edid_image.h"
#include "files/data_file.h"
#include "files/export_hex.h"
#include "files/image_loading.h"
#include "files/save.h"
#include "report/basic_display.h"
#include "report/block0_report.h"
#include "report/checksum.h"
#include "report/chromaticity.h"
#include "report/definitions.h"
#include "report/detailed_timing.h"
#include "report/established_timings.h"
#include "report/extension_report.h"
#include "report/identity.h"
#include "report/monitor_descriptor.h"
#include "report/standard_timings.h"
#include "script/callable.h"
#include "script/script_error.h"
#include "shell/information.h"
#include "shell/lifecycle.h"

namespace wb::script {

namespace {

constexpr std::string_view edidPrefix = "frmEDID.";
constexpr std::string_view extensionPrefix = "frmCEA_EXT.";

/// A handler that is the only one of its control and has no use for an index.
template <auto handler>
void withoutIndex(Workbench& workbench) {
    handler(workbench, Control::noIndex);
}

constexpr auto procedures = std::to_array<Callable>({
    callable<&RecalcBlock0Checksum>("RecalcBlock0Checksum"),
    callable<&UpdateExtensionButton>("UpdateExtensionButton"),

    callable<&report::BuildEDIDDefinations>("BuildEDIDDefinations"),
    callable<&report::GetManufacturer>("GetManufacturer"),
    callable<&report::ConvertManufacturer>("ConvertManufacturer"),
    callable<&report::GetProductCode>("GetProductCode"),
    callable<&report::ConvertProductCode>("ConvertProductCode"),
    callable<&report::ConvertSerialNumber>("ConvertSerialNumber"),
    callable<&report::ConvertWeek>("ConvertWeek"),
    callable<&report::ConvertYear>("ConvertYear"),
    callable<&report::CompleteSerialNumber>("CompleteSerialNumber"),
    callable<&report::ConvertVersion>("ConvertVersion"),
    callable<&report::ConvertRevision>("ConvertRevision"),
    callable<&report::ShowCompleteVersion>("ShowCompleteVersion"),
    callable<&report::ConvertVideoInput>("ConvertVideoInput"),
    callable<&report::ConvertMaxHorizontalSize>("ConvertMaxHorizontalSize"),
    callable<&report::ConvertMaxVerticalSize>("ConvertMaxVerticalSize"),
    callable<&report::ConvertGamma>("ConvertGamma"),
    callable<&report::ConvertFeatureSupport>("ConvertFeatureSupport"),
    callable<&report::ConvertChromaticity>("ConvertChromaticity"),
    callable<&report::ConvertEstablishedTiming1>("ConvertEstablishedTiming1"),
    callable<&report::ConvertEstablishedTiming2>("ConvertEstablishedTiming2"),
    callable<&report::ConvertReservedTiming>("ConvertReservedTiming"),
    callable<&report::ConvertStandardTimings>("ConvertStandardTimings"),
    callable<&report::ConvertDetailedTiming>("ConvertDetailedTiming"),
    callable<&report::ConvertDetailedTiminga>("ConvertDetailedTiminga"),
    callable<&report::ConvertExtCheckSum>("ConvertExtCheckSum"),
    callable<&report::ComputeCheckSum>("ComputeCheckSum"),
    callable<&report::BuildBlock0Report>("BuildBlock0Report"),
    callable<&report::BuildExtensionReport>("BuildExtensionReport"),

    callable<&files::ReadEDIDDataFile>("ReadEDIDDataFile"),
    callable<&files::LoadBlock0Cells>("LoadBlock0Cells"),
    callable<&files::LoadExtensionCells>("LoadExtensionCells"),
    callable<&files::InitNewImage>("InitNewImage"),
    callable<&files::FileSave>("FileSave"),
    callable<&files::FileSaveAs>("FileSaveAs"),
    callable<&files::ExportHex_Click>("ExportHex"),

    callable<&acquire::GetEDIDData>("GetEDIDData"),
    callable<&shell::FillInModelInfo>("FillInModelInfo"),
    callable<&shell::StartSysInfo>("StartSysInfo"),
});

constexpr auto extensionProcedures = std::to_array<Callable>({
    callable<&cea::Form_Load>("Form_Load"),
    callable<&cea::BuildCEA_EXT_Definations>("BuildCEA_EXT_Definations"),
    callable<&cea::CalcCheckSum>("CalcCheckSum"),
    callable<&cea::BuildVersion>("BuildVersion"),
    callable<&cea::LocateDataBlocks>("LocateDataBlocks"),
    callable<&cea::BuildDTVSupport>("BuildDTVSupport"),
    callable<&cea::BuildVideoTag>("BuildVideoTag"),
    callable<&cea::BuildAudioTag>("BuildAudioTag"),
    callable<&cea::BuildSpeakerTag>("BuildSpeakerTag"),
    callable<&cea::BuildVendorTag>("BuildVendorTag"),
    callable<&cea::BuildShortVideo>("BuildShortVideo"),
    callable<&cea::LocateAudioDescriptors>("LocateAudioDescriptors"),
    callable<&cea::ConvertCompressAudio>("ConvertCompressAudio"),
    callable<&cea::BuildAudioChannels>("BuildAudioChannels"),
    callable<&cea::BuildAudioFormatName>("BuildAudioFormatName"),
    callable<&cea::BuildSampFreq>("BuildSampFreq"),
    callable<&cea::BuildBitRate>("BuildBitRate"),
    callable<&cea::BuildCompressedBitRate>("BuildCompressedBitRate"),
    callable<&cea::BuildLastAudioChannels>("BuildLastAudioChannels"),
    callable<&cea::BuildLastAudioFormatName>("BuildLastAudioFormatName"),
    callable<&cea::BuildLastSampFreq>("BuildLastSampFreq"),
    callable<&cea::BuildLastBitRate>("BuildLastBitRate"),
    callable<&cea::BuildSpeaker>("BuildSpeaker"),
    callable<&cea::BuildVendorID>("BuildVendorID"),
    callable<&cea::BuildVendorData>("BuildVendorData"),
    callable<&cea::BuildVSDBExt>("BuildVSDBExt"),
    callable<&cea::BuildDetailedTimings>("BuildDetailedTimings"),
    callable<&cea::ConvertDetailedTiming>("ConvertDetailedTiming"),
    callable<&cea::ConvertDetailedTiminga>("ConvertDetailedTiminga"),

    callable<&withoutIndex<&cea::Cmd_Return_Click>>("Cmd_Return_Click"),
    callable<&withoutIndex<&cea::VerRev_GotFocus>>("VerRev_GotFocus"),
    callable<&withoutIndex<&cea::DetailOffset_GotFocus>>("DetailOffset_GotFocus"),
    callable<&withoutIndex<&cea::TagCBox_Click>>("TagCBox_Click"),
    callable<&withoutIndex<&cea::NativeCBox_Click>>("NativeCBox_Click"),
    callable<&withoutIndex<&cea::VideoBlkCBox_Click>>("VideoBlkCBox_Click"),
    callable<&withoutIndex<&cea::NativeChkBox_Click>>("NativeChkBox_Click"),
    callable<&withoutIndex<&cea::AudChCBox_Click>>("AudChCBox_Click"),
});

const Callable& find(std::span<const Callable> table, std::string_view bareName, std::string_view fullName) {
    for (const Callable& procedure : table) {
        if (procedure.name == bareName) {
            return procedure;
        }
    }
    throw ScriptError("unknown procedure '" + std::string(fullName) + "'");
}

} // namespace

const Callable& procedureNamed(std::string_view name) {
    if (name.starts_with(extensionPrefix)) {
        return find(extensionProcedures, name.substr(extensionPrefix.size()), name);
    }
    return find(procedures, name.starts_with(edidPrefix) ? name.substr(edidPrefix.size()) : name, name);
}

} // namespace wb::script
