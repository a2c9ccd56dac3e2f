#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desktop/pictures/subjects.h"
#include "support/temporary_folder.h"

namespace wb::test {

/// The bytes of an image as numbers.
class Bytes {
public:
    explicit Bytes(const std::string& bytes) : bytes_(bytes) {}
    int operator[](std::size_t number) const { return static_cast<unsigned char>(bytes_.at(number)); }
    /// Bits `high` to `low` of a byte.
    int bits(std::size_t number, int high, int low) const {
        return ((*this)[number] >> low) & ((2 << (high - low)) - 1);
    }
    std::size_t size() const { return bytes_.size(); }
    void set(std::size_t number, int value) { bytes_.at(number) = static_cast<char>(value); }
    fields::Reading reading() const { return fields::read(*Image::fromBytes(bytes_)); }

private:
    std::string bytes_;
};

/// Calls `test` for each of the samples, and for each of the images in the folder that the environment variable
/// WORKBENCH_MONITOR_IMAGES names.
inline void forEachImage(const std::function<void(const Bytes&)>& test) {
    std::vector<std::filesystem::path> folders = {WORKBENCH_SOURCE_DIR "/samples"};
    if (const char* more = std::getenv("WORKBENCH_MONITOR_IMAGES")) {
        folders.emplace_back(more);
    }
    for (const auto& folder : folders) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".bin") {
                SCOPED_TRACE(entry.path().filename().string());
                test(Bytes(TemporaryFolder::read(entry.path().string())));
            }
        }
    }
}

inline Bytes sample(const std::string& name) {
    return Bytes(TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/" + name));
}

/// The picture that goes with a byte; one without shapes where there is none.
inline desktop::Picture pictureAt(const Bytes& bytes, std::size_t byte, const QSizeF& size = {500, 300}) {
    const fields::Reading reading = bytes.reading();
    const auto subject = desktop::subjectAt(reading, byte);
    return subject ? desktop::draw(*subject, reading, {size, QFontMetricsF(QApplication::font())}) : desktop::Picture();
}

/// The first shape of that name, or null.
inline const desktop::Shape* find(const desktop::Picture& picture, std::string_view name) {
    for (const desktop::Shape& shape : picture.shapes) {
        if (shape.name == name) {
            return &shape;
        }
    }
    return nullptr;
}

inline std::string wordsOf(const desktop::Picture& picture, std::string_view name) {
    const desktop::Shape* shape = find(picture, name);
    return shape != nullptr ? shape->words.toStdString() : "nothing";
}

/// Nothing stands outside of the picture, or is a point that no screen has.
inline void expectInside(const desktop::Picture& picture, const QSizeF& size) {
    const QRectF room = QRectF(QPointF(0, 0), size).adjusted(-1, -1, 1, 1);
    for (const desktop::Shape& shape : picture.shapes) {
        for (const QPointF& point : shape.points) {
            EXPECT_TRUE(room.contains(point))
                << shape.name << shape.words.toStdString() << ' ' << point.x() << ' ' << point.y();
        }
    }
}

} // namespace wb::test
