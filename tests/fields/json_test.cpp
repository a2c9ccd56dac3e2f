#include "fields/json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "good_image.h"

namespace wb::fields {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

Reading readingOf(const std::string& file, const std::string& output) {
    const std::string bytes = goodImage().withSums().image().content();
    return read(*Image::fromBytes(bytes, {.file = file, .form = "hex", .output = output}));
}

TEST(Json, NamesTheFileAndTheOutputWhereOneIsKnown) {
    const Reading named = readingOf("all.txt", "HDMI-1");
    const Reading plain = readingOf("a.bin", "");
    for (const auto& write : {+[](const Reading& reading) { return toJson(reading); },
                              +[](const Reading& reading) { return findingsToJson(reading, {}); },
                              +[](const Reading& reading) { return summaryToJson(reading); }}) {
        EXPECT_THAT(write(named), StartsWith(R"({"schema":1,"file":"all.txt","output":"HDMI-1","bytes":128,)"));
        EXPECT_THAT(write(plain), StartsWith(R"({"schema":1,"file":"a.bin","bytes":128,)"));
    }
}

TEST(Json, TellsTheSummaryOfAnImage) {
    const std::string json = summaryToJson(readingOf("a.bin", ""));
    EXPECT_THAT(json,
                HasSubstr(R"("bytes":128,"findings":{"error":0,"warning":0,"note":0},"version":"1.4","maker":"WBT",)"
                          R"("product_code":4660,"serial_number":1,"serial_text":"A1","name":"Plain","week":10,)"
                          R"("year":2020,"model_year":null,"digital":true,"interface":"DisplayPort",)"
                          R"("bits_per_color":8,"width_mm":519,"height_mm":293,"diagonal_in":23.5,)"));
    EXPECT_THAT(json, HasSubstr(R"("gamma":2.2,"primaries":{"red":[0.6396484375,0.330078125],)"
                                R"("green":[0.2998046875,0.599609375],"blue":[0.150390625,0.0595703125],)"
                                R"("white":[0.3125,0.3291015625]},"range":{"min_v_hz":48,"max_v_hz":75,)"
                                R"("min_h_khz":30,"max_h_khz":83,"max_clock_mhz":170},)"));
    const std::string detailed =
        R"({"source":"detailed","width_px":1920,"height_px":1080,"interlaced":false,"refresh_mhz":60000,)"
        R"("pixel_clock_khz":148500,"h_total":2200,"v_total":1125,"native":true})";
    const std::string standard =
        R"({"source":"standard","width_px":1920,"height_px":1080,"interlaced":false,"refresh_mhz":60000,)"
        R"("pixel_clock_khz":null,"h_total":null,"v_total":null,"native":false})";
    EXPECT_THAT(json, EndsWith(R"(,"preferred_mode":)" + detailed + R"(,"modes":[)" + standard + ',' + detailed +
                               R"(],"audio":[],"speakers":[],"hdmi":null,"hdr":[],"colorimetry":[],"extensions":[],)"
                               R"("sums_ok":true})"));
}

TEST(Json, TellsWhatAnExtensionAddsToTheSummary) {
    Reading reading{.image = ImageOf(2).image()};
    Summary& summary = reading.summary;
    summary.modelYear = 2021;
    summary.modes = {{.source = ModeSource::Established, .width = 1024, .height = 768, .interlaced = true},
                     {.source = ModeSource::Video, .width = 720, .height = 480}};
    summary.audio = {{.format = "L-PCM", .channels = 2, .ratesKilohertz = {44.1, 48}}, {.format = "DTS"}};
    summary.speakers = {"front left", "front right"};
    summary.hdmi = {.physicalAddress = "1.0.0.0", .maxTmdsClockMegahertz = 340, .forum = true};
    summary.hdr = {"PQ"};
    summary.colorimetry = {"BT.2020 RGB"};
    summary.extensions = {"CTA-861 extension"};
    const std::string json = summaryToJson(reading);
    EXPECT_THAT(json, HasSubstr(R"("version":null,"maker":null,"product_code":null,"serial_number":null,)"
                                R"("serial_text":null,"name":null,"week":null,"year":null,"model_year":2021,)"
                                R"("digital":false,"interface":null,"bits_per_color":null,"width_mm":null,)"
                                R"("height_mm":null,"diagonal_in":null,"gamma":null,"primaries":null,"range":null,)"
                                R"("preferred_mode":null,"modes":[{"source":"established","width_px":1024,)"
                                R"("height_px":768,"interlaced":true,"refresh_mhz":null,"pixel_clock_khz":null,)"
                                R"("h_total":null,"v_total":null,"native":false},{"source":"video","width_px":720,)"
                                R"("height_px":480,"interlaced":null,)"));
    EXPECT_THAT(json, EndsWith(R"("audio":[{"format":"L-PCM","channels":2,"rates_khz":[44.1,48]},)"
                               R"({"format":"DTS","channels":0,"rates_khz":[]}],"speakers":["front left",)"
                               R"("front right"],"hdmi":{"physical_address":"1.0.0.0","max_tmds_mhz":340,)"
                               R"("forum":true},"hdr":["PQ"],"colorimetry":["BT.2020 RGB"],)"
                               R"("extensions":["CTA-861 extension"],"sums_ok":false})"));
}

Field fieldWith(std::string path, std::string_view label, BitRange range, Value value) {
    Field field;
    field.path = std::move(path);
    field.label = label;
    field.where.add(range);
    field.value = std::move(value);
    return field;
}

TEST(Json, TellsBlocksFieldsAndFindings) {
    Reading reading{.image = ImageOf(1).set(2, {0xAB, 0xCD}).image()};
    reading.blocks = {{.index = 0, .tag = 0, .name = "base EDID", .sum = Sum::Wrong},
                      {.index = 1, .tag = 2, .name = "CTA-861 extension", .sum = Sum::Ok},
                      {.index = 2, .name = "missing", .sum = Sum::Missing}};
    reading.fields = {
        fieldWith("a.number", "A number", {.byte = 2, .high = 3, .low = 0}, std::int64_t{11}),
        fieldWith("a.list", "A list", {.byte = 2, .count = 2}, std::vector<Scalar>{std::int64_t{1}, 2.5, "x"}),
        fieldWith("a.b", "Nothing", {.byte = 4, .high = 7, .low = 7}, {})};
    reading.fields[0].unit = "px";
    reading.fields[0].text = "11 px";
    reading.fields[0].clause = "1.2";
    reading.findings = {{Severity::Error, "a.code", 1, 130, "a.b", "Wrong.", "3.4"},
                        {Severity::Note, "a.other", 0, 5, "", "Odd.", ""}};
    const std::string blocks = R"("bytes":128,"blocks":[{"index":0,"tag":0,"name":"base EDID","sum":"wrong"},)"
                               R"({"index":1,"tag":2,"name":"CTA-861 extension","sum":"ok"},)"
                               R"({"index":2,"tag":0,"name":"missing","sum":"missing"}],)";
    const std::string error = R"({"severity":"error","code":"a.code","block":1,"byte":130,"path":"a.b",)"
                              R"("text":"Wrong.","clause":"3.4"})";
    const std::string note = R"({"severity":"note","code":"a.other","block":0,"byte":5,"path":null,)"
                             R"("text":"Odd.","clause":""})";
    EXPECT_THAT(toJson(reading), HasSubstr(blocks + R"("summary":{"version":)"));
    EXPECT_THAT(toJson(reading),
                EndsWith(R"(},"fields":[{"path":"a.number","label":"A number","where":[{"byte":2,"high":3,"low":0}],)"
                         R"("raw":"B","value":11,"unit":"px","text":"11 px","clause":"1.2"},)"
                         R"({"path":"a.list","label":"A list","where":[{"byte":2,"high":7,"low":0},)"
                         R"({"byte":3,"high":7,"low":0}],"raw":"ABCD","value":[1,2.5,"x"],"text":"","clause":""},)"
                         R"({"path":"a.b","label":"Nothing","where":[{"byte":4,"high":7,"low":7}],"raw":"1",)"
                         R"("value":null,"text":"","clause":""}],"findings":[)" +
                         error + ',' + note + "]}"));
    EXPECT_THAT(findingsToJson(reading, std::span(reading.findings).first(1)),
                EndsWith(blocks + R"("findings":[)" + error + "]}"));
    EXPECT_THAT(summaryToJson(reading), HasSubstr(R"("bytes":128,"findings":{"error":1,"warning":0,"note":1},)"));
}

} // namespace
} // namespace wb::fields
