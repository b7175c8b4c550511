// Converts paths to the bytes of Linux, quickly for ASCII paths.
#include "NativePath.h"

#include "FolderPins.h"

#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <climits>

namespace VyrPlatform {

namespace {

bool StandsForByte(char16_t unit) noexcept
{
    return unit >= 0xDC80 && unit <= 0xDCFF;
}

/// Whether a file can have this path.
bool CanName(std::u16string_view path) noexcept
{
    while (!path.empty()) {
        if (path.front() == 0 || (BeginsWithLoneSurrogate(path) && !StandsForByte(path.front())))
            return false;
        path.remove_prefix(BeginsWithPair(path) ? 2 : 1);
    }
    return true;
}

} // namespace

NativePath::NativePath(std::u16string_view path, std::string_view suffix) : m_bytes(m_short)
{
    if (TakeShortAscii(path, suffix))
        return;
    if (CanName(path)) {
        Encoding::AppendNameBytes(m_long, path);
        m_long += suffix;
        if (m_long.size() >= PATH_MAX)
            Shorten();
    }
    m_bytes = m_long.c_str();
}

NativePath::~NativePath() = default;

void NativePath::Shorten()
{
    FolderPins* pins = SharedFolderPins();
    if (!pins) {
        m_pins = std::make_unique<FolderPins>();
        pins = m_pins.get();
    }
    m_long = pins->Shorten(m_long);
}

bool NativePath::TakeShortAscii(std::u16string_view path, std::string_view suffix) noexcept
{
    if (path.size() + suffix.size() >= shortLength)
        return false;
    // A loop without an early exit is vectorised. A NUL and units beyond ASCII wrap round to 0x7F and above.
    unsigned highest = 0;
    for (std::size_t index = 0; index < path.size(); ++index) {
        highest = std::max(highest, static_cast<unsigned>(static_cast<char16_t>(path[index] - 1)));
        m_short[index] = static_cast<char>(path[index]);
    }
    if (highest >= 0x7F)
        return false;
    *std::copy(suffix.begin(), suffix.end(), m_short + path.size()) = '\0';
    return true;
}

} // namespace VyrPlatform
