// Any bytes as a piece of music: texts are clean and bounded.
#include <VyrHost/media/Music.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string_view>

namespace {

using namespace VyrHost::Media;

class Input final : public MusicBytes
{
public:
    explicit Input(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    [[nodiscard]] std::uint64_t Size() const override { return m_bytes.size(); }
    [[nodiscard]] std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) const override
    {
        if (offset >= m_bytes.size())
            return 0;
        const std::size_t count = std::min<std::size_t>(buffer.size(), m_bytes.size() - offset);
        std::memcpy(buffer.data(), m_bytes.data() + offset, count);
        return count;
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

void CheckText(const CString& text)
{
    constexpr int longest = 4096;
    const std::u16string_view units = text;
    const bool isClean = std::none_of(units.begin(), units.end(), [](char16_t unit) { return unit < u' '; });
    if (!isClean || text.GetLength() > longest)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    MediaValues values;
    ReadMusic(Input(std::span(data, size)), {.duration = true, .tags = true}, values);
    for (const CString* const text : {&values.title, &values.artist, &values.album, &values.genre})
        CheckText(*text);
    return 0;
}
