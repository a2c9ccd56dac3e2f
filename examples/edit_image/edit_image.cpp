// usage: edit_image IN BYTE VALUE OUT
//
// Reads an image of any form, tells what it says, types a value (two hexadecimal digits) into the cell of a byte of
// block 0, as a user of the desktop program does, and writes the image to OUT in binary. The check sum follows.

#include <charconv>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "acquire/get_edid.h"
#include "core/base/image.h"
#include "core/input.h"
#include "core/version.h"
#include "core/workbench.h"
#include "fields/reading.h"
#include "forms/recogniser.h"
#include "platform/headless/headless_platform.h"
#include "report/show_report.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace {

wb::Image load(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    const wb::forms::Recognition found = wb::forms::recognise(content);
    if (found.images.size() != 1) {
        throw std::runtime_error(name + ": " + (found.images.empty() ? found.refusal : "several images"));
    }
    return found.images.front();
}

void inspect(const wb::Image& image) {
    const wb::fields::Reading reading = wb::fields::read(image);
    std::cout << reading.summary.maker << ' ' << reading.summary.name.value_or("(without a name)") << " of "
              << reading.summary.year.value_or(0) << '\n';
    for (const wb::fields::Finding& finding : reading.findings) {
        std::cout << wb::fields::severityName(finding.severity) << ": " << finding.text << '\n';
    }
}

/// The program of the screens, without a display: boxes are told on standard error and answered as they offer first.
class Screens {
public:
    explicit Screens(const wb::Image& image) {
        platform_.onBox = [](const std::string& text) { std::cerr << "box: " << text << '\n'; };
        workbench_.runAction([&] { wb::shell::Main(workbench_); });
        workbench_.runAction([&] { wb::acquire::LoadStoredEdid(workbench_, image.content()); });
    }

    std::string report() {
        workbench_.runAction([&] { wb::report::ShowReport(workbench_, false); });
        return workbench_.frmDocument().rtftext.text();
    }

    void type(int byte, const std::string& digits) {
        if (!wb::input::click(workbench_.frmMain().Command2)) { // Modify EDID
            throw std::runtime_error("the image cannot be edited");
        }
        wb::Control& cell = workbench_.frmEDID().txtEdit(byte);
        wb::input::moveFocus(cell);
        wb::input::select(cell, 0, static_cast<int>(cell.text().size()));
        for (const char digit : digits) {
            wb::input::typeCharacter(workbench_, digit);
        }
    }

    /// The cells are the only store of the image; here they hold nothing but bytes.
    std::string block0() {
        std::string bytes;
        for (int i = 0; i < wb::BlockScreen::cellCount; ++i) {
            bytes += static_cast<char>(std::stoi(workbench_.frmEDID().txtEdit(i).text(), nullptr, 16));
        }
        return bytes;
    }

private:
    wb::platform::headless::HeadlessPlatform platform_;
    wb::Workbench workbench_{platform_.services(), wb::shell::wiring()};
};

int byteNumber(std::string_view text) {
    int number = -1;
    std::from_chars(text.data(), text.data() + text.size(), number);
    if (number < 0 || number >= wb::BlockScreen::cellCount) {
        throw std::runtime_error("BYTE is a number from 0 to 127");
    }
    return number;
}

void run(const std::string& in, int byte, const std::string& value, const std::string& out) {
    std::cout << "EdidWorkbench " << wb::programVersion() << '\n';
    const wb::Image image = load(in);
    inspect(image);

    Screens screens(image);
    screens.type(byte, value);
    const std::string report = screens.report();
    std::cout << report.size() << " characters of report\n";

    std::string bytes = image.content();
    bytes.replace(0, wb::Image::blockSize, screens.block0());
    std::ofstream file(out, std::ios::binary);
    file << bytes;
    if (!file.flush()) {
        throw std::runtime_error(out + " cannot be written");
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: edit_image IN BYTE VALUE OUT\n";
        return 2;
    }
    try {
        run(argv[1], byteNumber(argv[2]), argv[3], argv[4]);
    } catch (const std::exception& error) {
        std::cerr << "edit_image: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
