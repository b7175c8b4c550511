/// @file
/// The standard output in big pieces.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// Collects text and writes it a large piece at a time, the rest at its end.
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
        if (m_text.size() >= FlushSize)
            Flush();
        return *this;
    }
    void Flush();
    /// Whether the system refused something (a closed pipe, a full disk); nothing is written from then on.
    [[nodiscard]] bool HasFailed() const { return m_error != 0; }
    /// Why (the system's code); 0 when nothing was refused.
    [[nodiscard]] std::uint32_t Error() const { return m_error; }

private:
    static constexpr std::size_t FlushSize = std::size_t{1} << 18;

    std::string m_text;
    std::uint32_t m_error = 0;
};

} // namespace VyrHost::Ui
