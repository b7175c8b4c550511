// A path in the form in which Linux takes it: bytes with a NUL behind them.
#pragma once

#include <VyrPlatform/Export.h>

#include <memory>
#include <string>
#include <string_view>

namespace VyrPlatform {

class FolderPins;

/// Holds the bytes itself, so that an ASCII path of usual length costs no allocation.
class VYR_PLATFORM_API NativePath
{
public:
    /// The bytes of `path`, with those of the ASCII text `suffix` behind them.
    explicit NativePath(std::u16string_view path, std::string_view suffix = {});
    NativePath(const NativePath&) = delete;
    NativePath& operator=(const NativePath&) = delete;
    ~NativePath();

    /// The bytes; of a path that is longer than the system takes, a short one to the same file. A path that no file can
    /// have (one with a NUL in it, or with a lone surrogate that stands for no byte) gives the empty text, which the
    /// system answers with "no such file".
    [[nodiscard]] const char* Get() const noexcept { return m_bytes; }

private:
    bool TakeShortAscii(std::u16string_view path, std::string_view suffix) noexcept;
    void Shorten();

    static constexpr std::size_t shortLength = 512;
    const char* m_bytes;
    char m_short[shortLength];
    std::string m_long;
    /// What keeps a short path good.
    std::unique_ptr<FolderPins> m_pins;
};

} // namespace VyrPlatform
