#include "forms/writers.h"

#include <gtest/gtest.h>

#include "core/base/image.h"
#include "forms/recogniser.h"
#include "support/monitor_images.h"

namespace wb::forms {
namespace {

/// An image of so many blocks, header in front, all other bytes different from place to place.
Image imageOf(std::size_t blocks) {
    std::string bytes("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);
    while (bytes.size() < blocks * Image::blockSize) {
        bytes += static_cast<char>(bytes.size() * 37 + bytes.size() / 128);
    }
    bytes[126] = static_cast<char>(blocks - 1);
    return *Image::fromBytes(bytes);
}

class EveryWrittenForm : public testing::TestWithParam<std::size_t> {};

TEST_P(EveryWrittenForm, IsReadBackToTheSameBytes) {
    const WrittenForm& form = writtenForms().at(GetParam());
    for (const std::size_t blocks : {1U, 2U, 3U, 4U, 255U, 256U}) {
        const Image image = imageOf(blocks);
        const Recognition result = recognise(form.write(image));
        ASSERT_EQ(result.images.size(), 1U) << form.name << ' ' << blocks << ": " << result.refusal;
        EXPECT_EQ(result.images[0].content(), image.content()) << form.name << ' ' << blocks;
    }
}

TEST_P(EveryWrittenForm, IsReadBackWithoutTheHeaderWhereAnyWillDoOrRefused) {
    const WrittenForm& form = writtenForms().at(GetParam());
    for (const std::size_t blocks : {1U, 2U}) {
        std::string bytes = imageOf(blocks).content();
        bytes[0] = '\x01';
        const std::string written = form.write(*Image::fromBytes(bytes));
        EXPECT_TRUE(recognise(written).images.empty()) << form.name;
        const Recognition any = recognise(written, {.anyHeader = true, .form = {}, .inflate = {}});
        if (form.name == "bin" || form.name == "hex") {
            ASSERT_EQ(any.images.size(), 1U) << form.name << ": " << any.refusal;
            EXPECT_EQ(any.images[0].content(), bytes) << form.name;
        } else {
            EXPECT_TRUE(any.images.empty()) << form.name;
        }
    }
}

/// Those with the header; a file without it is an image for nobody.
void expectRoundTrips(const WrittenForm& form, const std::vector<test::MonitorImage>& images) {
    std::size_t tried = 0;
    for (const test::MonitorImage& monitor : images) {
        const auto image = Image::fromBytes(monitor.bytes);
        if (!image || !monitor.bytes.starts_with(imageHeader)) {
            continue;
        }
        ++tried;
        const Recognition result = recognise(form.write(*image));
        ASSERT_EQ(result.images.size(), 1U) << form.name << ' ' << monitor.name << ": " << result.refusal;
        EXPECT_EQ(result.images[0].content(), monitor.bytes) << form.name << ' ' << monitor.name;
    }
    EXPECT_GT(tried, 0U);
}

TEST_P(EveryWrittenForm, ChangesNoByteOfTheSamples) {
    expectRoundTrips(writtenForms().at(GetParam()), test::sampleImages());
}

TEST_P(EveryWrittenForm, ChangesNoByteOfRealMonitors) {
    const auto images = test::foreignImages();
    if (!images) {
        GTEST_SKIP() << "set " << test::foreignFolder << " to a folder of raw images to write them too";
    }
    expectRoundTrips(writtenForms().at(GetParam()), *images);
}

INSTANTIATE_TEST_SUITE_P(Writers, EveryWrittenForm, testing::Range(std::size_t{0}, writtenForms().size()),
                         [](const auto& row) { return std::string(writtenForms()[row.param].name); });

TEST(Writers, WriteTheFormsAsTheirReadersExpect) {
    std::string bytes("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00\x10\xAC\x34\x12", 12); // DEL1234
    bytes.resize(128, 'A');
    const Image image = *Image::fromBytes(bytes);
    const auto begins = [&](std::string_view form, std::string_view with) {
        const std::string text = writtenForm(form)->write(image);
        EXPECT_EQ(text.substr(0, with.size()), with) << form;
    };
    begins("hex", "00 FF FF FF FF FF FF 00 10 AC 34 12 41 41 ");
    begins("c", "static const unsigned char edid[128] = {\n    0x00, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x00, 0x10, ");
    begins("base64", "AP///////wAQrDQSQUFBQUFB");
    begins("inf", "[DEL1234.AddReg]\r\nHKR,EDID_OVERRIDE,\"0\",0x01,0x00,0xff,0xff,");
    begins("xxd", "00000000: 00ff ffff ffff ff00 10ac 3412 4141 4141  ..........4.AAAA\n00000010: 4141 ");
    EXPECT_EQ(writtenForm("gif"), nullptr);
}

} // namespace
} // namespace wb::forms
