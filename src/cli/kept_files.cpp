#include "cli/kept_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "cli/cli_error.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace {

/// In front of each text, as names may hold any byte.
using Length = std::uint32_t;

[[noreturn]] void fail() {
    throw CliError(std::string("the names of the files: ") + std::strerror(errno));
}

} // namespace

void KeptFiles::add(const BatchFile& file) {
    const std::lock_guard lock(mutex_);
    for (const std::string& text : {file.name, file.below}) {
        const auto length = static_cast<Length>(text.size());
        std::array<char, sizeof length> bytes{};
        std::memcpy(bytes.data(), &length, sizeof length);
        append({bytes.data(), bytes.size()});
        append(text);
    }
    ++count_;
}

BatchFile KeptFiles::at(std::uint64_t place) {
    const std::lock_guard lock(mutex_);
    return readFrom(place);
}

std::optional<BatchFile> KeptFiles::next() {
    const std::lock_guard lock(mutex_);
    return next_ < size_ ? std::optional(readFrom(next_)) : std::nullopt;
}

void KeptFiles::forEach(const std::function<void(const BatchFile& file)>& work) {
    for (std::uint64_t place = 0; place < size_;) {
        std::unique_lock lock(mutex_);
        const BatchFile file = readFrom(place);
        lock.unlock();
        work(file);
    }
}

void KeptFiles::append(std::string_view bytes) {
    if (file_ == nullptr && memory_.size() + bytes.size() > limit_) {
        moveToFile();
    }
    if (file_ == nullptr) {
        memory_ += bytes;
    } else if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
        fail();
    }
    size_ += bytes.size();
}

void KeptFiles::moveToFile() {
    folder_.emplace("names");
    file_.reset(openStream(pathOf(folder_->file()), "w+b"));
    if (file_ == nullptr || std::fwrite(memory_.data(), 1, memory_.size(), file_.get()) != memory_.size()) {
        fail();
    }
    memory_ = std::string();
}

std::string KeptFiles::readBytes(std::uint64_t place, std::size_t count) {
    if (file_ == nullptr) {
        return memory_.substr(place, count);
    }
    std::string bytes(count, '\0');
    if (std::fseek(file_.get(), static_cast<long>(place), SEEK_SET) != 0 ||
        std::fread(bytes.data(), 1, count, file_.get()) != count) {
        fail();
    }
    return bytes;
}

/// Leaves the place behind it.
std::string KeptFiles::readText(std::uint64_t& place) {
    Length length = 0;
    std::memcpy(&length, readBytes(place, sizeof length).data(), sizeof length);
    std::string text = readBytes(place + sizeof length, length);
    place += sizeof length + length;
    return text;
}

BatchFile KeptFiles::readFrom(std::uint64_t& place) {
    BatchFile file{.name = {}, .below = {}, .place = place};
    file.name = readText(place);
    file.below = readText(place);
    return file;
}

} // namespace wb::cli
