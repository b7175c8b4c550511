// Root keys of the tests' own: keys below a scratch key of the user, to which the process's root keys are redirected.
#include <tests/support/ScratchRegistry.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <array>
#include <windows.h>

namespace VyrTests {

using VyrPlatform::ToWide;

namespace {

constexpr std::array<const wchar_t*, 3> names = {L"ClassesRoot", L"CurrentUser", L"LocalMachine"};

std::array<HKEY, 3> RootKeys()
{
    return {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE};
}

} // namespace

struct ScratchRegistry::Roots
{
    std::wstring path;
    std::array<HKEY, 3> keys{};

    [[nodiscard]] HKEY At(HKEY root) const
    {
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (RootKeys()[i] == root)
                return keys[i];
        return root;
    }
};

ScratchRegistry::ScratchRegistry() : m_roots(std::make_unique<Roots>())
{
    m_roots->path = L"Software\\VyrLibraryTests\\" + std::to_wstring(::GetCurrentProcessId());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, (m_roots->path + L'\\' + names[i]).c_str(), 0, nullptr, 0,
                                    KEY_ALL_ACCESS, nullptr, &m_roots->keys[i], nullptr),
                  ERROR_SUCCESS);
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(::RegOverridePredefKey(RootKeys()[i], m_roots->keys[i]), ERROR_SUCCESS);
}

ScratchRegistry::~ScratchRegistry()
{
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(::RegOverridePredefKey(RootKeys()[i], nullptr), ERROR_SUCCESS);
        ::RegCloseKey(m_roots->keys[i]);
    }
    EXPECT_EQ(::RegDeleteTreeW(HKEY_CURRENT_USER, m_roots->path.c_str()), ERROR_SUCCESS);
}

void ScratchRegistry::AddKey(Handle root, const CString& path)
{
    HKEY key = nullptr;
    EXPECT_EQ(::RegCreateKeyExW(m_roots->At(root), ToWide(path), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    ::RegCloseKey(key);
}

void ScratchRegistry::SetValue(Handle root, const CString& path, const CString& name, std::uint32_t type,
                               std::string_view bytes)
{
    HKEY key = nullptr;
    ASSERT_EQ(::RegCreateKeyExW(m_roots->At(root), ToWide(path), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    // The system looks behind a text that does not end in a NUL, and takes one that it finds there along.
    const std::string shielded = std::string(bytes) + "\xFF\xFF";
    EXPECT_EQ(::RegSetValueExW(key, ToWide(name), 0, type, reinterpret_cast<const BYTE*>(shielded.data()),
                               static_cast<DWORD>(bytes.size())),
              ERROR_SUCCESS);
    ::RegCloseKey(key);
}

} // namespace VyrTests
