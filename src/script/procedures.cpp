#include <array>
#include <span>

#include "acquire/base_location.h"
#include "acquire/get_edid.h"
#include "acquire/scan.h"
#include "block0/dispatch.h"
#include "block0/extension_button.h"
#include "block0/panel_basic.h"
#include "block0/panel_chromaticity.h"
#include "block0/panel_descriptor.h"
#include "block0/panel_standard.h"
#include "block0/panel_vendor.h"
#include "cea/audio_panel.h"
#include "cea/checksum.h"
#include "cea/data_blocks.h"
#include "cea/definitions.h"
#include "cea/detailed_slots.h"
#include "cea/dtv_support.h"
#include "cea/header.h"
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
#include "shell/calculator.h"
#include "shell/frame.h"
#include "shell/information.h"
#include "shell/lifecycle.h"
#include "shell/printing.h"
#include "shell/startup.h"
#include "shell/wiring_block_screen.h"

namespace wb::script {

namespace {

constexpr std::string_view edidPrefix = "frmEDID.";
constexpr std::string_view extensionPrefix = "frmCEA_EXT.";

/// A handler that is the only one of its control and has no use for an index.
template <auto handler>
void withoutIndex(Workbench& workbench) {
    handler(workbench, Control::noIndex);
}

/// The entry of a handler that the two block screens share.
template <const block0::BlockScreenRules& rules, void (*procedure)(const block0::BlockScreenRules&, Workbench&)>
constexpr Callable shared(std::string_view name) {
    return callable<&withoutIndex<&shell::screenHandler<rules, procedure>>>(name);
}

/// A step that sets the button; what it found is for its callers in the program alone.
void updateExtensionButton(Workbench& workbench) {
    block0::UpdateExtensionButton(workbench);
}

constexpr auto procedures = std::to_array<Callable>({
    callable<&RecalcBlock0Checksum>("RecalcBlock0Checksum"),
    callable<&updateExtensionButton>("UpdateExtensionButton"),

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

    callable<&acquire::GetEDIDData>("GetEDIDData"),
    callable<&shell::FillInModelInfo>("FillInModelInfo"),
    callable<&shell::StartSysInfo>("StartSysInfo"),

    callable<&shell::frmEDID_Load>("Form_Load"),
    callable<&withoutIndex<&block0::VendorInfo_GotFocus>>("VendorInfo_GotFocus"),
    callable<&withoutIndex<&block0::VerRev_GotFocus>>("VerRev_GotFocus"),
    callable<&withoutIndex<&block0::BasicInput_GotFocus>>("BasicInput_GotFocus"),
    callable<&withoutIndex<&block0::ChromaValue_GotFocus>>("ChromaValue_GotFocus"),
    callable<&withoutIndex<&block0::STAInput_GotFocus>>("STAInput_GotFocus"),
    callable<&withoutIndex<&block0::ExtStaInput_GotFocus>>("ExtStaInput_GotFocus"),
    callable<&withoutIndex<&block0::DTaInput_GotFocus>>("DTaInput_GotFocus"),
    callable<&withoutIndex<&block0::DTAGTF_Click>>("DTAGTF_Click"),
    shared<block0::edidScreenRules, block0::DTInput_GotFocus>("DTInput_GotFocus"),
    shared<block0::edidScreenRules, block0::DT1_Click>("DT1_Click"),
    shared<block0::edidScreenRules, block0::SyncLine_Click>("SyncLine_Click"),
    shared<block0::edidScreenRules, block0::VSyncLine_Click>("VSyncLine_Click"),
    shared<block0::edidScreenRules, block0::SyncSerrate_Click>("SyncSerrate_Click"),

    callable<&shell::mnuFileNew>("mnuFileNew_Click"),
    callable<&shell::mnuFileOpen>("mnuFileOpen_Click"),
    callable<&shell::mnuFileClose>("mnuFileClose_Click"),
    callable<&files::FileSave>("mnuFileSave_Click"),
    callable<&files::FileSaveAs>("mnuFileSaveAs_Click"),
    callable<&shell::mnuFilePageSetup>("mnuFilePageSetup_Click"),
    callable<&shell::translateEDID>("mnuFilePrintPreview_Click"),
    callable<&shell::mnuFilePrint>("mnuFilePrint_Click"),
    callable<&files::ExportHex_Click>("ExportHex_Click"),
    callable<&shell::HexCalculator_Click>("HexCalculator_Click"),
    callable<&acquire::GetEDIDData>("GetEDIDData_Click"),
    callable<&acquire::Windows2000_Click>("Windows2000_Click"),
    callable<&shell::mnuFileExit>("mnuFileExit_Click"),
    callable<&shell::arrange<platform::Arrangement::Cascade>>("mnuWindowCascade_Click"),
    callable<&shell::arrange<platform::Arrangement::TileHorizontal>>("mnuWindowTileHorizontal_Click"),
    callable<&shell::arrange<platform::Arrangement::TileVertical>>("mnuWindowTileVertical_Click"),
    callable<&shell::arrange<platform::Arrangement::ArrangeIcons>>("mnuWindowArrangeIcons_Click"),
    callable<&shell::Info_Click>("Info_Click"),
    callable<&shell::mnuHelpAbout_Click>("mnuHelpAbout_Click"),
    callable<&shell::translateEDID>("Command1_Click"),
    callable<&shell::Command2_Click>("Command2_Click"),
    callable<&shell::Command3_Click>("Command3_Click"),
    callable<&shell::Command4_Click>("Command4_Click"),
    callable<&acquire::Command5_Click>("Command5_Click"),
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
    callable<&withoutIndex<&cea::bitrateCBox_Click>>("bitrateCBox_Click"),
    callable<&withoutIndex<&cea::txtBoxVendorID_GotFocus>>("txtBoxVendorID_GotFocus"),
    callable<&withoutIndex<&cea::txtBoxVendorData_GotFocus>>("txtBoxVendorData_GotFocus"),
    shared<cea::ceaScreenRules, block0::DTInput_GotFocus>("DTInput_GotFocus"),
    shared<cea::ceaScreenRules, block0::DT1_Click>("DT1_Click"),
    shared<cea::ceaScreenRules, block0::SyncLine_Click>("SyncLine_Click"),
    shared<cea::ceaScreenRules, block0::VSyncLine_Click>("VSyncLine_Click"),
    shared<cea::ceaScreenRules, block0::SyncSerrate_Click>("SyncSerrate_Click"),
});

const Callable& find(std::span<const Callable> table, std::string_view bareName, std::string_view fullName) {
    const std::string clickHandler = std::string(bareName) + "_Click";
    for (const Callable& procedure : table) {
        if (procedure.name == bareName || procedure.name == clickHandler) {
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
