// Documents of other kinds, written by a handler that is registered: a library in this process.
#include <tests/support/ChildProcess.h>
#include <tests/support/ComThread.h>
#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using VyrLibraryFuncs::OfficePropertyFuncs;

namespace {

constexpr GUID handler{0x7D1E4A52, 0x3C0B, 0x4F6E, {0x9A, 0x55, 0x1B, 0x2C, 0x3D, 0x4E, 0x5F, 0x60}};
const CString classKey = u"CLSID\\{7D1E4A52-3C0B-4F6E-9A55-1B2C3D4E5F60}";
const CString extensionKey = u".vyr-test\\ShellEx\\PropertyHandler";
constexpr std::uint32_t titleId = 2;

/// The handler, registered in the real HKEY_CLASSES_ROOT: redirected keys are not asked for classes.
class RegisteredHandler : public testing::Test
{
protected:
    RegisteredHandler()
    {
        const CString library = VyrTests::BesideThisProgram(u"PropertyHandler.dll");
        m_isRegistered = SetText(classKey + u"\\InprocServer32", u"", WithoutProgramEnding(library)) &&
                         SetText(classKey + u"\\InprocServer32", u"ThreadingModel", u"Both") &&
                         SetText(extensionKey, u"", u"{7D1E4A52-3C0B-4F6E-9A55-1B2C3D4E5F60}");
        value.vt = VT_LPWSTR;
        value.pwszVal = reinterpret_cast<wchar_t*>(text.data());
    }
    ~RegisteredHandler() override
    {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, VyrPlatform::ToWide(classKey));
        RegDeleteTreeW(HKEY_CLASSES_ROOT, L".vyr-test");
    }

    void SetUp() override
    {
        if (!m_isRegistered)
            GTEST_SKIP() << "the user may not register classes for the machine";
    }

    int Write(std::string_view failing)
    {
        const CString path = scratch.WriteFile(u"a.vyr-test", failing);
        return OfficePropertyFuncs::SetDumpProps(path, titleId, &value, handler);
    }
    std::string Calls() const { return scratch.ReadFile(u"a.vyr-test.calls"); }

    VyrTests::ComThread com;
    VyrTests::ScratchFolder scratch;
    VyrTests::DebugCapture debug;
    std::u16string text = u"Новый";
    PROPVARIANT value{};

private:
    /// BesideThisProgram puts the ending of programs behind a name that has none of its own.
    static CString WithoutProgramEnding(const CString& path)
    {
        const CString ending = u".exe";
        return path.Right(4) == ending ? path.Left(path.GetLength() - 4) : path;
    }
    static bool SetText(const CString& key, const CString& name, const CString& data)
    {
        const auto size = static_cast<DWORD>((data.GetLength() + 1) * 2);
        return RegSetKeyValueW(HKEY_CLASSES_ROOT, VyrPlatform::ToWide(key), VyrPlatform::ToWide(name), REG_SZ,
                               VyrPlatform::ToWide(data), size) == ERROR_SUCCESS;
    }

    bool m_isRegistered = false;
};

} // namespace

TEST_F(RegisteredHandler, LoadsTheDocumentAndReceivesTheWrite)
{
    EXPECT_EQ(Write("document"), 1);
    EXPECT_EQ(Calls(), "load 18\nopen summary 18\nwrite 1 2 31 2 Новый\n");
    EXPECT_TRUE(debug.Texts().empty());
}

TEST_F(RegisteredHandler, IsFoundByTheExtension)
{
    const auto items = OfficePropertyFuncs::GetClassIdItemList({{u".vyr-test", 1}});
    ASSERT_EQ(items.size(), 1U);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".VYR-TEST", items) == handler);
}

TEST_F(RegisteredHandler, ThatFailsGivesZeroAtEachStep)
{
    EXPECT_EQ(Write("load"), 0);
    EXPECT_EQ(Calls(), "load 18\n");
    EXPECT_EQ(Write("sets"), 0);
    EXPECT_EQ(Calls(), "load 18\nload 18\n");
    EXPECT_TRUE(debug.Texts().empty());
    EXPECT_EQ(Write("open"), 0);
    EXPECT_EQ(debug.Texts(), std::vector<CString>{u"No Summary-Information.\n"});
    EXPECT_EQ(Write("write"), 0);
    EXPECT_EQ(debug.Texts().back(), u"IPropertyStg::WriteMultiple() failed w/error 80030005\n");
}

TEST_F(RegisteredHandler, IsNotAskedForACompoundDocumentsSignatureThatIsMissing)
{
    const CString path = scratch.WriteFile(u"a.vyr-test", "document");
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, &value, GUID{}), 0);
    EXPECT_EQ(scratch.Has(u"a.vyr-test.calls"), false);
}
