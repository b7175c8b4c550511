// The allocations of texts, and the exception for failing calls.
#include <VyrPlatform/documents/LinuxCom.h>

#include <limits>
#include <new>
#include <string_view>

namespace {

/// The header of a text: the length in bytes, as on Windows.
using ByteCount = std::uint32_t;
constexpr std::size_t unitSize = sizeof(OLECHAR);
constexpr std::size_t maxLength = (std::numeric_limits<ByteCount>::max() - sizeof(ByteCount)) / unitSize - 1;

} // namespace

BSTR SysAllocString(const OLECHAR* text) noexcept
{
    if (!text)
        return nullptr;
    const std::u16string_view units(text);
    if (units.size() > maxLength)
        return nullptr;
    void* const allocation = ::operator new(sizeof(ByteCount) + (units.size() + 1) * unitSize, std::nothrow);
    if (!allocation)
        return nullptr;
    *static_cast<ByteCount*>(allocation) = static_cast<ByteCount>(units.size() * unitSize);
    const auto copy = reinterpret_cast<BSTR>(static_cast<std::byte*>(allocation) + sizeof(ByteCount));
    units.copy(copy, units.size());
    copy[units.size()] = 0;
    return copy;
}

void SysFreeString(BSTR text) noexcept
{
    if (text)
        ::operator delete(reinterpret_cast<std::byte*>(text) - sizeof(ByteCount));
}

unsigned SysStringLen(BSTR text) noexcept
{
    if (!text)
        return 0;
    return *reinterpret_cast<const ByteCount*>(reinterpret_cast<const std::byte*>(text) - sizeof(ByteCount)) / unitSize;
}

_com_error::_com_error(HRESULT result) noexcept : m_result(result) {}
_com_error::_com_error(const _com_error& other) noexcept = default;
_com_error& _com_error::operator=(const _com_error& other) noexcept = default;
_com_error::~_com_error() = default;

void _com_issue_error(HRESULT result)
{
    throw _com_error(result);
}
