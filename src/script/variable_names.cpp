#include <array>

#include "script/script_error.h"
#include "script/variables.h"

namespace wb::script {

namespace {

using Shared = SharedVariables;

using Member =
    std::variant<std::string SharedVariables::*, std::int16_t SharedVariables::*, TextArray SharedVariables::*>;

struct SharedName {
    std::string_view name;
    Member member;
};

constexpr auto sharedNames = std::to_array<SharedName>({
    {"EDIDCells", &Shared::EDIDCells},
    {"LoadedBytes", &Shared::LoadedBytes},
    {"CurrentFileName", &Shared::CurrentFileName},
    {"EDIDLoaded", &Shared::EDIDLoaded},
    {"DocumentOpen", &Shared::DocumentOpen},
    {"ModifyEDIDOn", &Shared::ModifyEDIDOn},
    {"AutoCellSeekOn", &Shared::AutoCellSeekOn},
    {"EDIDModified", &Shared::EDIDModified},
    {"EDIDRedecodeNeeded", &Shared::EDIDRedecodeNeeded},
    {"Block0ChecksumAsLoaded", &Shared::Block0ChecksumAsLoaded},
    {"Block0ChecksumLast", &Shared::Block0ChecksumLast},
    {"CEAScreenOpen", &Shared::CEAScreenOpen},
    {"HexCalculatorOpen", &Shared::HexCalculatorOpen},
    {"CEADtdOffset", &Shared::CEADtdOffset},
    {"RegBaseLocation", &Shared::RegBaseLocation},
    {"SplashShowing", &Shared::SplashShowing},
    {"IDManufacturerName", &Shared::IDManufacturerName},
    {"EDIDProductCodeRaw", &Shared::EDIDProductCodeRaw},
    {"ProductIDCode", &Shared::ProductIDCode},
    {"ProductCodeHex", &Shared::ProductCodeHex},
    {"ProductHardwareCode", &Shared::ProductHardwareCode},
    {"SerialLast5", &Shared::SerialLast5},
    {"ManufactureWeek", &Shared::ManufactureWeek},
    {"ManufactureYear", &Shared::ManufactureYear},
    {"CompleteSerial", &Shared::CompleteSerial},
    {"EDIDVersionText", &Shared::EDIDVersionText},
    {"EDIDRevisionText", &Shared::EDIDRevisionText},
    {"EDIDVersionRevisionText", &Shared::EDIDVersionRevisionText},
    {"VideoInputText", &Shared::VideoInputText},
    {"MaxHImageSizeText", &Shared::MaxHImageSizeText},
    {"MaxVImageSizeText", &Shared::MaxVImageSizeText},
    {"DisplayGammaText", &Shared::DisplayGammaText},
    {"PowerFeatureText", &Shared::PowerFeatureText},
    {"DisplayTypeText", &Shared::DisplayTypeText},
    {"ChromaText1", &Shared::ChromaText1},
    {"ChromaText2", &Shared::ChromaText2},
    {"EstablishedTiming1Text", &Shared::EstablishedTiming1Text},
    {"EstablishedTiming2Text", &Shared::EstablishedTiming2Text},
    {"ReservedTimingText", &Shared::ReservedTimingText},
    {"StandardTimingText", &Shared::StandardTimingText},
    {"DetailedBlockText", &Shared::DetailedBlockText},
    {"ExtensionFlagText", &Shared::ExtensionFlagText},
    {"Block0ChecksumText", &Shared::Block0ChecksumText},
    {"VideoBlockStart", &Shared::VideoBlockStart},
    {"VideoBlockLength", &Shared::VideoBlockLength},
    {"AudioBlockStart", &Shared::AudioBlockStart},
    {"AudioBlockLength", &Shared::AudioBlockLength},
    {"SpeakerBlockStart", &Shared::SpeakerBlockStart},
    {"SpeakerBlockLength", &Shared::SpeakerBlockLength},
    {"VendorBlockStart", &Shared::VendorBlockStart},
    {"VendorBlockLength", &Shared::VendorBlockLength},
    {"LastAudioDescriptor", &Shared::LastAudioDescriptor},
    {"AudioDescriptorCount", &Shared::AudioDescriptorCount},
    {"ExtDtdStart", &Shared::ExtDtdStart},
    {"ExtDtdSlotCount", &Shared::ExtDtdSlotCount},
    {"ShortVideoCell", &Shared::ShortVideoCell},
    {"ExtDtdOffsetText", &Shared::ExtDtdOffsetText},
    {"DataBlockKind", &Shared::DataBlockKind},
    {"LastAudioFocus", &Shared::LastAudioFocus},
    {"DTVSupportText", &Shared::DTVSupportText},
    {"VideoTagText", &Shared::VideoTagText},
    {"AudioTagText", &Shared::AudioTagText},
    {"SpeakerTagText", &Shared::SpeakerTagText},
    {"VendorTagText", &Shared::VendorTagText},
    {"ShortVideoText", &Shared::ShortVideoText},
    {"ShortVideoNativeText", &Shared::ShortVideoNativeText},
    {"AudioKindText", &Shared::AudioKindText},
    {"AudioFormatText", &Shared::AudioFormatText},
    {"AudioChannelsText", &Shared::AudioChannelsText},
    {"SampFreqText", &Shared::SampFreqText},
    {"BitRateText", &Shared::BitRateText},
    {"LastAudioKindText", &Shared::LastAudioKindText},
    {"LastAudioFormatText", &Shared::LastAudioFormatText},
    {"LastAudioChannelsText", &Shared::LastAudioChannelsText},
    {"LastSampFreqText", &Shared::LastSampFreqText},
    {"LastBitRateText", &Shared::LastBitRateText},
    {"AudioChannelDigit", &Shared::AudioChannelDigit},
    {"SpeakerText", &Shared::SpeakerText},
    {"VendorIDText", &Shared::VendorIDText},
    {"VendorDataText", &Shared::VendorDataText},
    {"VSDBExtText", &Shared::VSDBExtText},
    {"ExtDetailedBlockText", &Shared::ExtDetailedBlockText},
    {"ExtDetailedBlockNote", &Shared::ExtDetailedBlockNote},
    {"ReportBlock0Lines", &Shared::ReportBlock0Lines},
    {"ReportExtLines", &Shared::ReportExtLines},
});

struct ScreenVariable {
    ScreenId screen;
    std::string_view name;
    Variable (*find)(Screen&);
};

template <auto Field, class ScreenType>
Variable fieldOf(Screen& screen) {
    return &(static_cast<ScreenType&>(screen).*Field);
}

constexpr auto screenVariables = std::to_array<ScreenVariable>({
    {ScreenId::Edid, "InFocusDispatch", &fieldOf<&BlockScreen::InFocusDispatch, BlockScreen>},
    {ScreenId::Edid, "CurrentBlockBase", &fieldOf<&BlockScreen::CurrentBlockBase, BlockScreen>},
    {ScreenId::Edid, "CurrentBlockNumber", &fieldOf<&BlockScreen::CurrentBlockNumber, BlockScreen>},
    {ScreenId::Edid, "CurrentBlockIsDescriptor", &fieldOf<&BlockScreen::CurrentBlockIsDescriptor, BlockScreen>},
    {ScreenId::CeaExt, "InFocusDispatch", &fieldOf<&BlockScreen::InFocusDispatch, BlockScreen>},
    {ScreenId::CeaExt, "CurrentBlockBase", &fieldOf<&BlockScreen::CurrentBlockBase, BlockScreen>},
    {ScreenId::CeaExt, "CurrentBlockNumber", &fieldOf<&BlockScreen::CurrentBlockNumber, BlockScreen>},
    {ScreenId::CeaExt, "CurrentBlockIsDescriptor", &fieldOf<&BlockScreen::CurrentBlockIsDescriptor, BlockScreen>},
    {ScreenId::HexCalculator, "CalcMode", &fieldOf<&FrmHexCalculator::CalcMode, FrmHexCalculator>},
    {ScreenId::HexCalculator, "PendingOperator", &fieldOf<&FrmHexCalculator::PendingOperator, FrmHexCalculator>},
    {ScreenId::HexCalculator, "OperatorPressed", &fieldOf<&FrmHexCalculator::OperatorPressed, FrmHexCalculator>},
    {ScreenId::HexCalculator, "PreviousCurrent", &fieldOf<&FrmHexCalculator::PreviousCurrent, FrmHexCalculator>},
    {ScreenId::Main, "Left", &fieldOf<&FrmMain::Left, FrmMain>},
    {ScreenId::Main, "Top", &fieldOf<&FrmMain::Top, FrmMain>},
    {ScreenId::Main, "Width", &fieldOf<&FrmMain::Width, FrmMain>},
    {ScreenId::Main, "Height", &fieldOf<&FrmMain::Height, FrmMain>},
    {ScreenId::Main, "minimised", &fieldOf<&FrmMain::minimised, FrmMain>},
    {ScreenId::Main, "FirstActivation", &fieldOf<&FrmMain::FirstActivation, FrmMain>},
});

Variable sharedVariable(SharedVariables& variables, const std::string& name) {
    for (const SharedName& known : sharedNames) {
        if (known.name == name) {
            return std::visit([&](auto member) -> Variable { return &(variables.*member); }, known.member);
        }
    }
    throw ScriptError("unknown variable '" + name + "'");
}

Variable screenVariable(Workbench& workbench, const NamePart& screen, const std::string& name) {
    const ScreenId id = screenNamed(screen.name);
    for (const ScreenVariable& known : screenVariables) {
        if (known.screen == id && known.name == name && screen.index == Control::noIndex) {
            return known.find(workbench.touch(id));
        }
    }
    throw ScriptError("unknown variable '" + screen.name + '.' + name + "'");
}

} // namespace

Variable variableNamed(Workbench& workbench, const std::vector<NamePart>& parts) {
    if (parts.size() > 2) {
        throw ScriptError("a variable has at most two names");
    }
    return parts.size() == 1 ? sharedVariable(workbench, parts[0].name)
                             : screenVariable(workbench, parts[0], parts[1].name);
}

} // namespace wb::script
