#include <VyrPlatform/process/MemoryMap.h>

#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>

namespace MemoryMap = VyrPlatform::MemoryMap;

namespace {

const int constant = 417;
int variable = 417;

std::uintptr_t AddressOf(const void* place)
{
    return reinterpret_cast<std::uintptr_t>(place);
}

} // namespace

TEST(MemoryMap, DataIsReadableAndNoCode)
{
    const auto allocated = std::make_unique<int>(1);
    int local = 1;
    for (const void* const place : std::initializer_list<const void*>{&constant, &variable, allocated.get(), &local}) {
        EXPECT_TRUE(MemoryMap::IsReadable(AddressOf(place), sizeof(int)));
        EXPECT_FALSE(MemoryMap::IsCode(AddressOf(place)));
    }
}

TEST(MemoryMap, FunctionsOfAllLibrariesAreCode)
{
    EXPECT_TRUE(MemoryMap::IsCode(reinterpret_cast<std::uintptr_t>(&AddressOf)));
    EXPECT_TRUE(MemoryMap::IsCode(reinterpret_cast<std::uintptr_t>(&std::abort)));
}

TEST(MemoryMap, NothingIsWhereNoMemoryIs)
{
    for (const std::uintptr_t address : {std::uintptr_t{0}, std::uintptr_t{16}, UINTPTR_MAX - 7, UINTPTR_MAX / 2}) {
        EXPECT_FALSE(MemoryMap::IsReadable(address, 1));
        EXPECT_FALSE(MemoryMap::IsCode(address));
    }
}

TEST(MemoryMap, RangeLongerThanItsAreaIsNotReadable)
{
    EXPECT_FALSE(MemoryMap::IsReadable(AddressOf(&variable), SIZE_MAX));
}
