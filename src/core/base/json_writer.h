#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace wb {

/// Writes one JSON text (RFC 8259) on one line. Texts are in UTF-8; what is no UTF-8 in them is written as U+FFFD.
/// Objects and arrays are begun and ended in pairs; commas come by themselves.
class JsonWriter {
public:
    JsonWriter& beginObject() { return begin('{'); }
    JsonWriter& endObject() { return end('}'); }
    JsonWriter& beginArray() { return begin('['); }
    JsonWriter& endArray() { return end(']'); }
    /// The name of the member whose value comes next, in characters that stand for themselves.
    JsonWriter& key(std::string_view name);

    JsonWriter& value(std::string_view text);
    JsonWriter& value(const char* text) { return value(std::string_view(text)); }
    JsonWriter& value(bool truth);
    JsonWriter& value(std::int64_t number);
    JsonWriter& value(int number) { return value(std::int64_t{number}); }
    JsonWriter& value(std::size_t number) { return value(static_cast<std::int64_t>(number)); }
    /// The shortest digits that read back to the number; null where it is not finite.
    JsonWriter& value(double number);
    JsonWriter& null();

    template <class T>
    JsonWriter& value(const std::optional<T>& maybe) {
        return maybe ? value(*maybe) : null();
    }
    template <class T>
    JsonWriter& member(std::string_view name, const T& content) {
        return key(name).value(content);
    }

    const std::string& text() & {
        flush();
        return text_;
    }
    std::string text() && {
        flush();
        return std::move(text_);
    }

private:
    JsonWriter& begin(char bracket);
    JsonWriter& end(char bracket);
    void separate();
    void writeText(std::string_view text);
    void writeEscape(char control);
    void put(char c) {
        if (size_ == room_.size()) {
            flush();
        }
        room_[size_++] = c;
    }
    void put(std::string_view text) {
        if (text.size() > room_.size() - size_) {
            putBeyondRoom(text);
        } else {
            size_ += text.copy(room_.data() + size_, text.size());
        }
    }
    void putBeyondRoom(std::string_view text);
    template <class Number>
    void putNumber(Number number);
    void flush();

    std::string text_;            ///< without what is in the room
    std::array<char, 1024> room_; ///< what comes in small pieces, for which a text is slow to grow
    std::size_t size_ = 0;        ///< of what is in the room
    bool owesComma_ = false;      ///< an element stands before the next one
};

} // namespace wb
