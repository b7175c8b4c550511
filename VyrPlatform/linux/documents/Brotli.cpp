#include <VyrPlatform/documents/Brotli.h>

#include <algorithm>
#include <brotli/decode.h>
#include <cstdint>
#include <memory>

namespace VyrPlatform::Brotli {
namespace {

struct Destroyer
{
    void operator()(BrotliDecoderState* state) const { BrotliDecoderDestroyInstance(state); }
};

} // namespace

bool IsAvailable() noexcept
{
    return true;
}

std::string Unpack(std::string_view packed, std::size_t limit)
{
    const std::unique_ptr<BrotliDecoderState, Destroyer> state(BrotliDecoderCreateInstance(nullptr, nullptr, nullptr));
    if (!state)
        return {};
    std::string unpacked;
    std::size_t packedLeft = packed.size();
    auto next = reinterpret_cast<const std::uint8_t*>(packed.data());
    BrotliDecoderResult result = BROTLI_DECODER_RESULT_NEEDS_MORE_OUTPUT;
    while (result == BROTLI_DECODER_RESULT_NEEDS_MORE_OUTPUT && unpacked.size() < limit) {
        std::size_t noRoom = 0;
        result = BrotliDecoderDecompressStream(state.get(), &packedLeft, &next, &noRoom, nullptr, nullptr);
        std::size_t size = limit - unpacked.size();
        const std::uint8_t* output = BrotliDecoderTakeOutput(state.get(), &size);
        unpacked.append(reinterpret_cast<const char*>(output), size);
    }
    return unpacked;
}

} // namespace VyrPlatform::Brotli
