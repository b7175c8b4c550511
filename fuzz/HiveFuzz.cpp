// Any bytes as a hive: it is opened or refused, and read in bounded time and memory. The header is corrected first, so
// that the rest is reached.
#include <VyrPlatform/linux/registry/Hive.h>
#include <VyrPlatform/text/Encoding.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <string>

using namespace VyrPlatform::Registry;

namespace {

void Walk(Node& node, int levels)
{
    static_cast<void>(node.GetValues());
    static_cast<void>(node.GetLastWrite());
    if (levels == 0)
        return;
    int visited = 0;
    for (const auto& [folded, subkey] : node.GetSubkeys()) {
        if (++visited > 4)
            return;
        Walk(*subkey.node, levels - 1);
    }
}

/// A header for the bin `body`.
std::string WithHead(std::string body)
{
    body.resize(4096);
    const auto put = [](std::string& bytes, std::size_t at, std::uint32_t number) {
        std::memcpy(bytes.data() + at, &number, sizeof number);
    };
    body.replace(0, 4, "hbin");
    put(body, 4, 0);
    put(body, 8, 4096);
    std::string head(4096, '\0');
    head.replace(0, 4, "regf");
    put(head, 20, 1);
    put(head, 24, 3);
    put(head, 36, 32);
    put(head, 40, 4096);
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < 508; at += 4) {
        std::uint32_t number = 0;
        std::memcpy(&number, head.data() + at, sizeof number);
        sum ^= number;
    }
    put(head, 508, sum);
    return head + body;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const int file = memfd_create("hive", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    const std::string bytes = WithHead(std::string(data, data + size));
    if (pwrite(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
        return 0;
    const OpenedHive hive = OpenHive(VyrPlatform::Encoding::FromNameBytes(path));
    if (hive.top)
        Walk(*hive.top, 4);
    return 0;
}
