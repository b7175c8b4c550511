// The Windows loader's side of loading a library: its exports are read from the export directory of the loaded image.
#include <tests/support/DynamicLibrary.h>

#include <windows.h>

#include <cstdint>

namespace {

template <class Record>
const Record* At(const void* image, std::uint32_t offset)
{
    return reinterpret_cast<const Record*>(static_cast<const char*>(image) + offset);
}

} // namespace

namespace VyrTests {

DynamicLibrary::DynamicLibrary(const std::string& name) : m_handle(LoadLibraryA((name + ".dll").c_str())) {}

DynamicLibrary::~DynamicLibrary()
{
    if (m_handle)
        FreeLibrary(static_cast<HMODULE>(m_handle));
}

void* DynamicLibrary::Find(const std::string& symbol) const
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(m_handle), symbol.c_str()));
}

std::vector<std::string> DynamicLibrary::Exports() const
{
    const auto* const dosHeader = At<IMAGE_DOS_HEADER>(m_handle, 0);
    const auto* const headers = At<IMAGE_NT_HEADERS64>(m_handle, static_cast<std::uint32_t>(dosHeader->e_lfanew));
    const IMAGE_DATA_DIRECTORY& place = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* const directory = At<IMAGE_EXPORT_DIRECTORY>(m_handle, place.VirtualAddress);
    const auto* const offsets = At<std::uint32_t>(m_handle, directory->AddressOfNames);
    std::vector<std::string> names;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i)
        names.emplace_back(At<char>(m_handle, offsets[i]));
    return names;
}

bool DynamicLibrary::IsInProcess(const std::string& name)
{
    return GetModuleHandleA((name + ".dll").c_str()) != nullptr;
}

} // namespace VyrTests
