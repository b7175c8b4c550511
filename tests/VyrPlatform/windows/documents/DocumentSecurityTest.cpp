// What a document on Windows keeps when it is replaced: owner, group and access list, attributes, times and streams.
#include <tests/support/ComThread.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <windows.h>

#include <sddl.h>

using namespace VyrTests;
using VyrPlatform::DocumentReplacement;
using VyrPlatform::ToWide;

namespace Result = VyrPlatform::PropertyStorage::Result;

namespace {

constexpr auto all =
    DWORD{OWNER_SECURITY_INFORMATION} | DWORD{GROUP_SECURITY_INFORMATION} | DWORD{DACL_SECURITY_INFORMATION};

/// Owner, group and access list as text.
std::wstring SecurityOf(const CString& path)
{
    DWORD needed = 0;
    GetFileSecurityW(ToWide(path), all, nullptr, 0, &needed);
    std::vector<std::byte> descriptor(needed);
    LPWSTR text = nullptr;
    if (!GetFileSecurityW(ToWide(path), all, descriptor.data(), needed, &needed) ||
        !ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor.data(), SDDL_REVISION_1, all, &text, nullptr))
        return {};
    const std::wstring copied(text);
    LocalFree(text);
    return copied;
}

/// Whom it belongs to may do everything with it, and nobody else anything.
bool MakePrivate(const CString& path)
{
    const std::wstring security = SecurityOf(path);
    const std::wstring owner = security.substr(2, security.find(L"G:") - 2);
    const std::wstring list = L"D:P(A;;FA;;;" + owner + L")";
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1, &descriptor, nullptr))
        return false;
    const bool isSet = SetFileSecurityW(ToWide(path), DACL_SECURITY_INFORMATION, descriptor) != FALSE;
    LocalFree(descriptor);
    return isSet;
}

} // namespace

TEST(DocumentSecurity, IsKeptWithAttributesTimesAndStreams)
{
    const ComThread com;
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.doc", "old");
    scratch.WriteFile(u"a.doc:Zone.Identifier", "[ZoneTransfer]");
    const std::wstring usual = SecurityOf(path);
    ASSERT_TRUE(MakePrivate(path));
    ASSERT_EQ(VyrPlatform::FileAttributes::Set(path, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE), 0U);
    StampFile(path, TicksOfUnixTime(1'000'000'000), TicksOfUnixTime(1'000'000'060));
    const std::wstring security = SecurityOf(path);
    ASSERT_NE(security, usual);
    const DWORD attributes = GetFileAttributesW(ToWide(path));
    {
        DocumentReplacement replacement = DocumentReplacement::WithContent(path, scratch.WriteFile(u"b", "new"));
        ASSERT_EQ(replacement.Error(), Result::ok);
        ASSERT_EQ(replacement.Commit(), Result::ok);
    }
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), "new");
    EXPECT_EQ(SecurityOf(path), security);
    EXPECT_EQ(GetFileAttributesW(ToWide(path)), attributes);
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(path), TicksOfUnixTime(1'000'000'000));
    EXPECT_EQ(scratch.ReadFile(u"a.doc:Zone.Identifier"), "[ZoneTransfer]");
}
