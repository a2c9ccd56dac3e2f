#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "cli/file_list.h"
#include "cli/temporary.h"
#include "files/text_file.h"

namespace wb::cli {

/// The files of a batch where they are needed several times: all are added before the first is read, and stand in a
/// temporary file as soon as there are many.
class KeptFiles {
public:
    static constexpr std::size_t usualLimit = std::size_t{1} << 20U;

    /// Up to `limit` bytes of names are held in memory.
    explicit KeptFiles(std::size_t limit = usualLimit) : limit_(limit) {}

    /// A failure of the temporary file is a CliError here and in what reads them.
    void add(const BatchFile& file);

    std::size_t count() const { return count_; }
    /// The file that has that place. May be called from several threads, as next().
    BatchFile at(std::uint64_t place);
    /// One after the other, from the first one on; nothing after the last.
    std::optional<BatchFile> next();
    /// All of them in their order, whatever next() has given.
    void forEach(const std::function<void(const BatchFile& file)>& work);

private:
    void append(std::string_view bytes);
    void moveToFile();
    std::string readBytes(std::uint64_t place, std::size_t count);
    std::string readText(std::uint64_t& place);
    BatchFile readFrom(std::uint64_t& place);

    std::size_t limit_;
    std::size_t count_ = 0;
    std::uint64_t size_ = 0; ///< of all that was added, in bytes
    std::uint64_t next_ = 0;
    std::string memory_; ///< empty as soon as there is a file
    std::optional<TemporaryFolder> folder_;
    files::FileHandle file_;
    std::mutex mutex_;
};

} // namespace wb::cli
