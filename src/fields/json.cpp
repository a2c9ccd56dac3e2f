#include "fields/json.h"

#include <algorithm>

namespace wb::fields {

namespace {

std::string_view sumName(Sum sum) {
    switch (sum) {
        case Sum::Ok:
            return "ok";
        case Sum::Wrong:
            return "wrong";
        case Sum::Missing:
            break;
    }
    return "missing";
}

std::string_view sourceName(ModeSource source) {
    switch (source) {
        case ModeSource::Established:
            return "established";
        case ModeSource::Standard:
            return "standard";
        case ModeSource::Detailed:
            return "detailed";
        case ModeSource::Video:
            break;
    }
    return "video";
}

void writeOrigin(JsonWriter& json, const Reading& reading) {
    const std::string& file = reading.image.origin().file;
    json.member("file", file);
    if (const std::string& output = reading.image.origin().output; !output.empty()) {
        json.member("output", output);
    }
    json.member("bytes", reading.image.bytes().size());
}

void writeBlocks(JsonWriter& json, const Reading& reading) {
    json.key("blocks").beginArray();
    for (const BlockInfo& block : reading.blocks) {
        json.beginObject().member("index", block.index).member("tag", static_cast<int>(block.tag));
        json.member("name", block.name).member("sum", sumName(block.sum)).endObject();
    }
    json.endArray();
}

void writePoint(JsonWriter& json, std::string_view name, const Point& point) {
    json.key(name).beginArray().value(point.x).value(point.y).endArray();
}

void writePrimaries(JsonWriter& json, const Summary& summary) {
    json.key("primaries");
    if (!summary.primaries) {
        json.null();
        return;
    }
    json.beginObject();
    constexpr std::array<std::string_view, 4> names = {"red", "green", "blue", "white"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        writePoint(json, names[i], (*summary.primaries)[i]);
    }
    json.endObject();
}

void writeRange(JsonWriter& json, const Summary& summary) {
    json.key("range");
    if (!summary.range) {
        json.null();
        return;
    }
    const RangeLimits& range = *summary.range;
    json.beginObject().member("min_v_hz", range.minVerticalHertz).member("max_v_hz", range.maxVerticalHertz);
    json.member("min_h_khz", range.minHorizontalKilohertz).member("max_h_khz", range.maxHorizontalKilohertz);
    json.member("max_clock_mhz", range.maxClockMegahertz).endObject();
}

void writeModes(JsonWriter& json, const Summary& summary) {
    writeMode(json.key("preferred_mode"), summary.preferredMode);
    json.key("modes").beginArray();
    for (const Mode& mode : summary.modes) {
        writeMode(json, mode);
    }
    json.endArray();
}

void writeAudio(JsonWriter& json, const Summary& summary) {
    json.key("audio").beginArray();
    for (const AudioFormat& audio : summary.audio) {
        json.beginObject().member("format", audio.format).member("channels", audio.channels);
        json.key("rates_khz").beginArray();
        for (const double rate : audio.ratesKilohertz) {
            json.value(rate);
        }
        json.endArray().endObject();
    }
    json.endArray();
}

void writeNames(JsonWriter& json, std::string_view key, const std::vector<std::string_view>& names) {
    json.key(key).beginArray();
    for (const std::string_view name : names) {
        json.value(name);
    }
    json.endArray();
}

void writeHdmi(JsonWriter& json, const Summary& summary) {
    json.key("hdmi");
    if (!summary.hdmi) {
        json.null();
        return;
    }
    json.beginObject().member("physical_address", summary.hdmi->physicalAddress);
    json.member("max_tmds_mhz", summary.hdmi->maxTmdsClockMegahertz).member("forum", summary.hdmi->forum).endObject();
}

/// The members of the summary, without the braces around them.
void writeSummary(JsonWriter& json, const Summary& summary) {
    const auto textOrNull = [&](std::string_view name, const std::string& text) {
        json.key(name);
        text.empty() ? json.null() : json.value(text);
    };
    textOrNull("version", summary.version);
    textOrNull("maker", summary.maker);
    json.member("product_code", summary.productCode).member("serial_number", summary.serialNumber);
    json.member("serial_text", summary.serialText).member("name", summary.name);
    json.member("week", summary.week).member("year", summary.year).member("model_year", summary.modelYear);
    json.member("digital", summary.digital).member("interface", summary.videoInterface);
    json.member("bits_per_color", summary.bitsPerColor);
    json.member("width_mm", summary.widthMillimetres).member("height_mm", summary.heightMillimetres);
    json.member("diagonal_in", summary.diagonalInches).member("gamma", summary.gamma);
    writePrimaries(json, summary);
    writeRange(json, summary);
    writeModes(json, summary);
    writeAudio(json, summary);
    writeNames(json, "speakers", summary.speakers);
    writeHdmi(json, summary);
    writeNames(json, "hdr", summary.hdr);
    writeNames(json, "colorimetry", summary.colorimetry);
    writeNames(json, "extensions", summary.extensions);
    json.member("sums_ok", summary.sumsOk);
}

void writeWhere(JsonWriter& json, const Where& where) {
    json.key("where").beginArray();
    for (const BitRange& range : where) {
        for (std::size_t i = 0; i < range.count; ++i) {
            json.beginObject().member("byte", range.byte + i).member("high", static_cast<int>(range.high));
            json.member("low", static_cast<int>(range.low)).endObject();
        }
    }
    json.endArray();
}

struct ValueWriter {
    JsonWriter& json;

    void operator()(std::monostate) const { json.null(); }
    void operator()(const std::vector<Scalar>& list) const {
        json.beginArray();
        for (const Scalar& scalar : list) {
            std::visit(*this, scalar);
        }
        json.endArray();
    }
    template <class T>
    void operator()(const T& plain) const {
        json.value(plain);
    }
};

void writeField(JsonWriter& json, const Reading& reading, const Field& field) {
    json.beginObject().member("path", field.path).member("label", field.label);
    writeWhere(json, field.where);
    json.member("raw", rawText(reading.image, field)).key("value");
    writeValue(json, field.value);
    if (!field.unit.empty()) {
        json.member("unit", field.unit);
    }
    json.member("text", field.text).member("clause", field.clause).endObject();
}

void writeFinding(JsonWriter& json, const Finding& finding) {
    json.beginObject().member("severity", severityName(finding.severity)).member("code", finding.code);
    json.member("block", finding.block).member("byte", finding.byte).key("path");
    finding.path.empty() ? json.null() : json.value(finding.path);
    json.member("text", finding.text).member("clause", finding.clause).endObject();
}

/// Begins the object of one file.
void writeHead(JsonWriter& json, const Reading& reading) {
    json.beginObject().member("schema", jsonSchema);
    writeOrigin(json, reading);
    writeBlocks(json, reading);
}

void writeFindings(JsonWriter& json, std::span<const Finding> findings) {
    json.key("findings").beginArray();
    for (const Finding& finding : findings) {
        writeFinding(json, finding);
    }
    json.endArray();
}

} // namespace

void writeMode(JsonWriter& json, const std::optional<Mode>& mode) {
    if (!mode) {
        json.null();
        return;
    }
    json.beginObject().member("source", sourceName(mode->source));
    json.member("width_px", mode->width).member("height_px", mode->height).member("interlaced", mode->interlaced);
    json.member("refresh_mhz", mode->refreshMilliHertz).member("pixel_clock_khz", mode->pixelClockKilohertz);
    json.member("h_total", mode->horizontalTotal).member("v_total", mode->verticalTotal);
    json.member("native", mode->native).endObject();
}

void writeValue(JsonWriter& json, const Value& value) {
    std::visit(ValueWriter{json}, value);
}

std::string toJson(const Reading& reading) {
    JsonWriter json;
    writeHead(json, reading);
    json.key("summary").beginObject();
    writeSummary(json, reading.summary);
    json.endObject().key("fields").beginArray();
    for (const Field& field : reading.fields) {
        writeField(json, reading, field);
    }
    json.endArray();
    writeFindings(json, reading.findings);
    json.endObject();
    return std::move(json).text();
}

std::string findingsToJson(const Reading& reading, std::span<const Finding> findings) {
    JsonWriter json;
    writeHead(json, reading);
    writeFindings(json, findings);
    json.endObject();
    return std::move(json).text();
}

std::string summaryToJson(const Reading& reading) {
    JsonWriter json;
    json.beginObject().member("schema", jsonSchema);
    writeOrigin(json, reading);
    json.key("findings").beginObject();
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        json.member(severityName(severity),
                    std::count_if(reading.findings.begin(), reading.findings.end(),
                                  [&](const Finding& finding) { return finding.severity == severity; }));
    }
    json.endObject();
    writeSummary(json, reading.summary);
    json.endObject();
    return std::move(json).text();
}

} // namespace wb::fields
