#include "forms/recogniser.h"

#include <gtest/gtest.h>

#include "adapters/recognise.h"
#include "forms/writers.h"
#include "fuzz/targets.h"

namespace wb::fuzz {

namespace {

void expectWholeImages(const forms::Recognition& recognition) {
    for (const Image& image : recognition.images) {
        ASSERT_GE(image.blockCount(), 1U);
        ASSERT_EQ(image.bytes().size() % Image::blockSize, 0U);
        ASSERT_FALSE(image.origin().form.empty());
    }
    ASSERT_TRUE(!recognition.images.empty() || recognition.isDataFile || !recognition.refusal.empty());
}

/// An image whose bytes are those of the input, with the header and the number of its blocks.
Image imageOf(std::string_view input) {
    std::string bytes(imageHeader);
    bytes += input.substr(0, 3 * Image::blockSize);
    const std::size_t blocks = 1 + bytes.size() / Image::blockSize;
    bytes.resize(blocks * Image::blockSize);
    bytes[extensionCountCell] = static_cast<char>(blocks - 1);
    return *Image::fromBytes(bytes);
}

/// One of them, another for each length: to try all of them takes so long that few inputs would be tried.
template <class List>
const auto& oneOf(const List& list, std::string_view input) {
    return list[input.size() % list.size()];
}

} // namespace

void recogniser(std::string_view input) {
    forms::RecognitionOptions options;
    for (const bool anyHeader : {false, true}) {
        options.anyHeader = anyHeader;
        options.form.clear();
        expectWholeImages(adapters::recognise(input, options));
        options.form = oneOf(forms::formNames(), input);
        expectWholeImages(adapters::recognise(input, options));
    }
    const Image image = imageOf(input);
    const forms::WrittenForm& form = oneOf(forms::writtenForms(), input);
    const forms::Recognition back = adapters::recognise(form.write(image));
    ASSERT_EQ(back.images.size(), 1U) << form.name << ": " << back.refusal;
    ASSERT_EQ(back.images[0].content(), image.content()) << form.name;
}

} // namespace wb::fuzz
