// Keys and values of a registry, as data.
#include <tests/support/RegistryTree.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace VyrTests {

namespace Registry = VyrPlatform::Registry;

namespace {

constexpr std::uint32_t wideCapacity = 20'000;

template <class Enumerate>
std::vector<CString> Names(Registry::Handle key, Enumerate enumerate)
{
    std::vector<CString> names;
    for (std::uint32_t index = 0;; ++index) {
        const auto [error, name] = enumerate(key, index, wideCapacity);
        if (error != Registry::Error::none) {
            EXPECT_EQ(error, Registry::Error::noMoreItems);
            return names;
        }
        names.push_back(name);
    }
}

} // namespace

std::string UnitBytes(std::u16string_view units)
{
    std::string bytes;
    for (const char16_t unit : units) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string TextBytes(std::u16string_view text)
{
    return UnitBytes(text) + std::string(2, '\0');
}

std::string NumberBytes(std::uint32_t number)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

std::vector<CString> KeyNames(Registry::Handle key)
{
    return Names(key, Registry::EnumerateKey);
}

std::vector<CString> ValueNames(Registry::Handle key)
{
    std::vector<CString> names = Names(key, Registry::EnumerateValue);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace VyrTests
