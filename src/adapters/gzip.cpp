#include "adapters/gzip.h"

#include <zlib.h>

#include <array>
#include <limits>

namespace wb::adapters {

namespace {

/// An open stream, which is closed when it goes out of scope.
class InflateStream {
public:
    explicit InflateStream(std::string_view bytes) {
        constexpr int gzipOnly = 16;
        // The library does not change its input, but declares it so.
        stream_.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(bytes.data()));
        stream_.avail_in = static_cast<uInt>(bytes.size());
        good_ = inflateInit2(&stream_, MAX_WBITS + gzipOnly) == Z_OK;
    }
    InflateStream(const InflateStream&) = delete;
    InflateStream& operator=(const InflateStream&) = delete;
    ~InflateStream() { inflateEnd(&stream_); }

    /// The next piece of the content, of all members as one; nothing where the data is damaged or ends early.
    std::optional<std::string> next() {
        stream_.next_out = reinterpret_cast<Bytef*>(buffer_.data());
        stream_.avail_out = static_cast<uInt>(buffer_.size());
        const int result = good_ ? inflate(&stream_, Z_NO_FLUSH) : Z_DATA_ERROR;
        if (result == Z_STREAM_END) {
            endMember();
        } else if (result != Z_OK) {
            return std::nullopt;
        }
        return std::string(buffer_.data(), buffer_.size() - stream_.avail_out);
    }

    bool ended() const { return ended_; }

private:
    /// Behind a member stands another one, or the end with the zeros that fill the last block of a medium. All else
    /// is refused as damage: gzip passes over it with a warning, but it may be what is left of a member with an image.
    void endMember() {
        const std::string_view rest(reinterpret_cast<const char*>(stream_.next_in), stream_.avail_in);
        ended_ = rest.find_first_not_of('\0') == std::string_view::npos;
        good_ = inflateReset(&stream_) == Z_OK;
    }

    z_stream stream_{};
    std::array<char, 1U << 14U> buffer_{};
    bool good_ = false;
    bool ended_ = false;
};

} // namespace

std::optional<std::string> uncompressGzip(std::string_view bytes, std::size_t most) {
    if (bytes.size() > std::numeric_limits<uInt>::max()) {
        return std::nullopt;
    }
    InflateStream stream(bytes);
    std::string content;
    while (!stream.ended()) {
        const std::optional<std::string> piece = stream.next();
        if (!piece) {
            return std::nullopt;
        }
        if (content.size() + piece->size() > most) {
            files::failAbove(most);
        }
        content += *piece;
    }
    return content;
}

} // namespace wb::adapters
