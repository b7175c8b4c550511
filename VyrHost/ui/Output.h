/// @file
/// Buffered standard output, and JSON lines on it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// Collects text and writes it in large pieces; the destructor writes the rest.
class OutputBuffer
{
public:
    OutputBuffer() = default;
    OutputBuffer(const OutputBuffer&) = delete;
    OutputBuffer& operator=(const OutputBuffer&) = delete;
    ~OutputBuffer() { Flush(); }

    OutputBuffer& operator<<(std::string_view text)
    {
        m_text += text;
        if (m_text.size() >= flushSize)
            Flush();
        return *this;
    }
    void Flush();
    /// Whether a write failed (a closed pipe, a full disk); nothing is written after that.
    [[nodiscard]] bool HasFailed() const { return m_error != 0; }
    /// The system's error code of that failure; else 0.
    [[nodiscard]] std::uint32_t Error() const { return m_error; }

private:
    static constexpr std::size_t flushSize = std::size_t{1} << 18;

    std::string m_text;
    std::uint32_t m_error = 0;
};

/// Appends `text` as a JSON text with quotes: UTF-8, control characters escaped, a lone surrogate (a byte of a name
/// that is not UTF-8) as its `\ud...` escape.
void AppendJsonText(std::string& line, std::u16string_view text);

/// Each of these appends a field to the object in `line`, or begins the object where `line` is empty.
/// @param more  is appended to `text`. The two must not split a surrogate pair.
void AppendJsonField(std::string& line, std::string_view key, std::u16string_view text, std::u16string_view more = {});
void AppendJsonNumber(std::string& line, std::string_view key, std::int64_t number);
void AppendJsonFlag(std::string& line, std::string_view key, bool flag);
void AppendJsonNull(std::string& line, std::string_view key);

} // namespace VyrHost::Ui
