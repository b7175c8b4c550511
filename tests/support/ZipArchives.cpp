#include <tests/support/ZipArchives.h>

#include <tests/support/CompoundDocument.h>

#include <cstdint>

namespace VyrTests {

namespace {

std::uint32_t CheckOf(std::string_view bytes)
{
    std::uint32_t check = 0xFFFFFFFF;
    for (const char byte : bytes) {
        check ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            check = check >> 1 ^ (check & 1 ? 0xEDB88320 : 0);
    }
    return ~check;
}

std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size)
{
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < size; ++index)
        number |= std::uint32_t{static_cast<unsigned char>(bytes.at(at + index))} << (8 * index);
    return number;
}

} // namespace

std::string BuildArchive(const ZipMembers& members)
{
    std::string files;
    std::string directory;
    for (const auto& [name, content] : members) {
        const auto size = static_cast<std::uint32_t>(content.size());
        const std::string common = LittleEndian(std::uint16_t{20}) + LittleEndian(std::uint16_t{0}) +
                                   LittleEndian(std::uint16_t{0}) + LittleEndian(0x5A210000U) +
                                   LittleEndian(CheckOf(content)) + LittleEndian(size) + LittleEndian(size) +
                                   LittleEndian(static_cast<std::uint16_t>(name.size())) + std::string(2, '\0');
        directory += "PK\1\2" + LittleEndian(std::uint16_t{20}) + common + std::string(10, '\0') +
                     LittleEndian(static_cast<std::uint32_t>(files.size())) + name;
        files += "PK\3\4" + common + name + content;
    }
    const auto count = static_cast<std::uint16_t>(members.size());
    return files + directory + "PK\5\6" + std::string(4, '\0') + LittleEndian(count) + LittleEndian(count) +
           LittleEndian(static_cast<std::uint32_t>(directory.size())) +
           LittleEndian(static_cast<std::uint32_t>(files.size())) + std::string(2, '\0');
}

ZipMembers ReadArchive(std::string_view bytes)
{
    ZipMembers members;
    std::size_t at = NumberAt(bytes, bytes.size() - 6, 4);
    while (bytes.substr(at, 4) == "PK\1\2") {
        const bool isPacked = NumberAt(bytes, at + 10, 2) != 0;
        const std::size_t size = isPacked ? 0 : NumberAt(bytes, at + 20, 4);
        const std::size_t nameSize = NumberAt(bytes, at + 28, 2);
        const std::size_t file = NumberAt(bytes, at + 42, 4);
        const std::size_t start = file + 30 + NumberAt(bytes, file + 26, 2) + NumberAt(bytes, file + 28, 2);
        members.emplace_back(bytes.substr(at + 46, nameSize), bytes.substr(start, size));
        at += 46 + nameSize + NumberAt(bytes, at + 30, 2) + NumberAt(bytes, at + 32, 2);
    }
    return members;
}

} // namespace VyrTests
