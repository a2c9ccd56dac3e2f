#include "cli/bus_read.h"

#include <algorithm>
#include <array>

#include "acquire/ddc_read.h"
#include "cli/cli_error.h"
#include "cli/output.h"
#include "core/base/digits.h"
#include "fields/words.h"

namespace wb::cli {

namespace {

constexpr const char* noAnswer = "nothing answers at address 50h";
constexpr const char* notAble = "the bus cannot transfer an offset and data in one go";
constexpr const char* notPermitted = "not permitted; root may read it, and mostly the group i2c";
constexpr const char* noBus = "there is no such bus; the kernel's module i2c-dev makes them";

struct Trouble {
    std::errc error;
    const char* words;
};

/// Drivers tell in many ways that nobody answers (Documentation/i2c/fault-codes of the Linux kernel).
constexpr auto troubles = std::to_array<Trouble>({
    {std::errc::no_such_file_or_directory, noBus},
    {std::errc::no_such_device, noBus},
    {std::errc::permission_denied, notPermitted},
    {std::errc::operation_not_permitted, notPermitted},
    {std::errc::no_such_device_or_address, noAnswer},
    {std::errc::io_error, noAnswer},
    {std::errc::timed_out, noAnswer},
    {std::errc::resource_unavailable_try_again, noAnswer},
    {std::errc::operation_not_supported, notAble},
    {std::errc::inappropriate_io_control_operation, "is no I2C bus"},
});

/// The system's own number for "remote I/O error", which has no name in the language.
constexpr int remoteInputOutputError = 121;

} // namespace

std::string busDevice(const std::string& number) {
    const auto bus = wholeNumber<unsigned>(number);
    if (!bus) {
        throw UsageError("the number of a bus is that of /dev/i2c-N, not '" + number + "'");
    }
    return "/dev/i2c-" + std::to_string(*bus);
}

Image imageFromBus(platform::DdcBus& bus, const std::string& device) {
    acquire::DdcEdid edid;
    try {
        edid = acquire::readByDdc(bus);
    } catch (const std::system_error& error) {
        throw CliError(busTrouble(error.code()));
    }
    Image image = Image::fromBytes(edid.bytes).value();
    if (!edid.headed) {
        throw CliError("what answers at address 50h is no EDID: it begins with " +
                       fields::hexText(image.bytes().first(imageHeader.size())));
    }
    if (edid.beyond > 0) {
        complain(device, "announces " + std::to_string(edid.beyond + 2) +
                             " blocks; this way reaches two of them, and what the system stored may have all");
    }
    return image;
}

std::string busTrouble(const std::error_code& error) {
    const auto* const known =
        std::find_if(troubles.begin(), troubles.end(), [&](const Trouble& trouble) { return error == trouble.error; });
    if (known != troubles.end()) {
        return known->words;
    }
    return error.value() == remoteInputOutputError ? noAnswer : error.message();
}

} // namespace wb::cli
