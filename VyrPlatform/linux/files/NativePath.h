// A path as Linux takes it: bytes with a NUL at the end.
#pragma once

#include <VyrPlatform/Export.h>

#include <memory>
#include <string>
#include <string_view>

namespace VyrPlatform {

class FolderPins;

/// Contains the bytes itself, so that an ASCII path of usual length costs no allocation.
class VYR_PLATFORM_API NativePath
{
public:
    /// The bytes of `path`, followed by the ASCII text `suffix`.
    explicit NativePath(std::u16string_view path, std::string_view suffix = {});
    NativePath(const NativePath&) = delete;
    NativePath& operator=(const NativePath&) = delete;
    ~NativePath();

    /// The bytes. A path that is longer than the system allows is replaced by a short path to the same file. A path
    /// that no file can have (with a NUL, or a lone surrogate that encodes no byte) gives the empty text, for which the
    /// system reports "no such file".
    [[nodiscard]] const char* Get() const noexcept { return m_bytes; }

private:
    bool TakeShortAscii(std::u16string_view path, std::string_view suffix) noexcept;
    void Shorten();

    static constexpr std::size_t shortLength = 512;
    const char* m_bytes;
    char m_short[shortLength];
    std::string m_long;
    /// Keeps the short path valid.
    std::unique_ptr<FolderPins> m_pins;
};

} // namespace VyrPlatform
