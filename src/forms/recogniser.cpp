#include "forms/recogniser.h"

#include <algorithm>
#include <array>

#include "core/base/code_page.h"
#include "core/base/text.h"
#include "files/file_content.h"
#include "forms/data_file_form.h"
#include "forms/found.h"
#include "forms/outputs.h"
#include "forms/refusal.h"

namespace wb::forms {

namespace {

/// The program reads no more cells of a data file.
constexpr std::size_t bytesOfDataFile = Image::editedBlocks * Image::blockSize;

constexpr std::string_view gzipMark{"\x1F\x8B", 2};

struct TextForm {
    std::string_view name;
    std::vector<Found> (*read)(std::string_view text);
};

/// From the strictest to the loosest.
constexpr auto textForms = std::to_array<TextForm>({{"base64", &readBase64},
                                                    {"decimal", &readDecimalLists},
                                                    {"string", &readStringLiterals},
                                                    {"dump", &readDumps},
                                                    {"hex", &readHexLines}});

/// UTF-16 without a byte order mark: every other byte of its ASCII is zero.
bool looksLikeUtf16(std::string_view content) {
    constexpr std::size_t enough = 64;
    const std::string_view front = content.substr(0, enough);
    if (front.size() < enough) {
        return false;
    }
    for (std::size_t i = 0; i < front.size(); ++i) {
        if ((front[i] == '\0') != (i % 2 == 1)) {
            return false;
        }
    }
    return true;
}

std::string textOf(std::string_view content) {
    return looksLikeUtf16(content) ? fromUtf16(content) : decodeTextFile(content);
}

bool isTextCharacter(char c) {
    return (c >= ' ' && c <= '~') || (c >= '\t' && c <= '\r');
}

class Recogniser {
public:
    Recogniser(std::string_view content, const RecognitionOptions& options) : content_(content), options_(options) {}

    Recognition run() {
        if (content_.empty()) {
            return refused("is empty");
        }
        if (content_.starts_with(gzipMark)) {
            return uncompressed();
        }
        if (wants("bin") && content_.size() >= Image::blockSize && content_.starts_with(imageHeader)) {
            take("bin", {{std::string(content_), 0}}, {});
            return std::move(result_);
        }
        const std::string text = textOf(content_);
        if (wants("dat") && takeDataFile()) {
            return std::move(result_);
        }
        for (const TextForm& form : textForms) {
            if (result_.images.empty() && wants(form.name)) {
                take(form.name, form.read(text), text);
            }
        }
        if (options_.anyHeader && result_.images.empty()) {
            takeWithoutHeader(text);
        }
        if (result_.images.empty()) {
            result_.refusal = refusalOf(content_, text);
        }
        return std::move(result_);
    }

private:
    static Recognition refused(std::string why) { return {.images = {}, .refusal = std::move(why)}; }

    bool wants(std::string_view form) const { return options_.form.empty() || options_.form == form; }

    Recognition uncompressed() {
        std::optional<std::string> inner;
        try {
            inner = options_.inflate ? options_.inflate(content_) : std::nullopt;
        } catch (const files::InputError& error) {
            return refused(std::string("is gzip data that ") + error.what());
        }
        if (!inner) {
            return refused("is gzip data that cannot be uncompressed");
        }
        if (inner->starts_with(gzipMark)) {
            return refused("is gzip data that is compressed twice");
        }
        RecognitionOptions options = options_;
        options.form = options.form == "gzip" ? "" : options.form;
        Recognition result = recognise(*inner, options);
        result.uncompressed = inner;
        return result;
    }

    /// True where the content is a data file, whatever it holds. Its rows are read as they stand, of any text coding.
    bool takeDataFile() {
        const std::optional<DataFileBytes> file = readDataFile(content_);
        if (!file) {
            return false;
        }
        result_.isDataFile = true;
        take("dat", {{file->bytes.substr(0, bytesOfDataFile), 0}}, {});
        result_.refusal = file->refusal;
        if (file->refusal.empty() && result_.images.empty()) {
            result_.refusal = "has " + std::to_string(file->bytes.size()) + " bytes; an image has 128 or more";
        }
        if (!result_.refusal.empty()) {
            result_.images.clear();
        }
        return true;
    }

    void take(std::string_view form, const std::vector<Found>& found, std::string_view text) {
        Outputs outputs(text);
        for (const Found& one : found) {
            ImageOrigin origin{.file = {}, .form = std::string(form), .output = {}};
            origin.output = outputs.before(one.place);
            if (auto image = Image::fromBytes(one.bytes, std::move(origin))) {
                result_.images.push_back(std::move(*image));
            }
        }
    }

    void takeWithoutHeader(std::string_view text) {
        if (wants("hex")) {
            take("hex", readBareHex(text), {});
        }
        const bool binary = content_.size() % Image::blockSize == 0 && content_.size() >= Image::blockSize &&
                            !std::all_of(content_.begin(), content_.end(), isTextCharacter);
        if (result_.images.empty() && wants("bin") && binary) {
            take("bin", {{std::string(content_), 0}}, {});
        }
    }

    std::string_view content_;
    const RecognitionOptions& options_;
    Recognition result_;
};

} // namespace

std::vector<std::string> formNames() {
    std::vector<std::string> names = {"gzip", "bin", "dat"};
    for (const TextForm& form : textForms) {
        names.emplace_back(form.name);
    }
    return names;
}

Recognition recognise(std::string_view content, const RecognitionOptions& options) {
    return Recogniser(content, options).run();
}

} // namespace wb::forms
