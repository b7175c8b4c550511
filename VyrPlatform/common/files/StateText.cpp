#include <VyrPlatform/common/files/StateText.h>

#include <algorithm>

namespace VyrPlatform {

std::string_view TakeWord(std::string_view& text) noexcept
{
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    return word;
}

std::string StateBytes(const CString& state)
{
    std::string bytes;
    for (const char16_t unit : state.View()) {
        if (unit >= 0x7F)
            return {};
        bytes += static_cast<char>(unit);
    }
    return bytes;
}

} // namespace VyrPlatform
