/// @file
/// The standard output in big pieces.
#pragma once

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
    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }

private:
    static constexpr std::size_t FlushSize = std::size_t{1} << 18;

    std::string m_text;
    bool m_hasFailed = false;
};

} // namespace VyrHost::Ui
