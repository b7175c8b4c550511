#include "Surroundings.h"

#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/registry/Registry.h>

#include <tests/support/CompoundDocument.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/RegistryTree.h>
#include <tests/support/StdPath.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace VyrCTests {

namespace {

namespace Registry = VyrPlatform::Registry;

constexpr VyrPlatform::FileTicks preparedTime = VyrTests::TicksOfUnixTime(1'700'000'000);
const char updates[] = "<r><update name='n' version='1.2.3.4'><moreinfo><item><category>1</category>"
                       "<description>d</description></item></moreinfo></update></r>";
const char designs[] = "<r><design><moreinfo><item id='3' value='v' name='n'/></moreinfo></design></r>";

std::string DocumentBytes()
{
    VyrTests::CompoundDocument document;
    document.streams[VyrTests::summaryName] =
        VyrTests::BuildSummary({{1, VyrTests::StoredCodePage(1252)}, {2, VyrTests::StoredByteText("Old")}});
    return document.Bytes();
}

vyr_text InC(const CString& text)
{
    return {reinterpret_cast<const std::uint16_t*>(text.GetString()), text.GetLength()};
}

std::string BytesOf(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The mark of a download may be a file of its own beside the marked one.
bool IsMark(const std::filesystem::path& path)
{
    return path.u16string().ends_with(u":Zone.Identifier");
}

/// The time at which a call writes differs between two calls.
std::string Shown(VyrPlatform::FileTicks time)
{
    constexpr VyrPlatform::FileTicks later = VyrTests::TicksOfUnixTime(1'735'689'600);
    return time < later ? std::to_string(time) : "written";
}

void ShowFile(std::ostream& shown, const std::filesystem::path& path)
{
    const CString name(path.u16string());
    shown << " attributes " << VyrPlatform::FileAttributes::Get(name);
    if (std::filesystem::is_directory(path))
        return;
    shown << " modified " << Shown(VyrPlatform::FileTimes::GetModified(name).value_or(0)) << " marked "
          << VyrTests::IsMarkedAsDownloaded(name) << " content " << std::hash<std::string>()(BytesOf(path));
}

void ShowTree(std::ostream& shown, const std::filesystem::path& root)
{
    std::set<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
        if (!IsMark(entry.path()))
            paths.insert(entry.path());
    for (const std::filesystem::path& path : paths) {
        shown << path.lexically_relative(root).generic_string();
        ShowFile(shown, path);
        shown << '\n';
    }
}

void ShowKeys(std::ostream& shown, Registry::Handle key)
{
    for (const CString& name : VyrTests::ValueNames(key)) {
        std::array<std::byte, 256> bytes{};
        const Registry::ReadResult read = Registry::ReadValue(key, name, bytes);
        shown << VyrTests::ToStdPath(name).string() << '=' << read.type << ':';
        for (std::size_t at = 0; at < read.byteCount && at < bytes.size(); ++at)
            shown << static_cast<int>(bytes[at]) << ' ';
        shown << '\n';
    }
    for (const CString& name : VyrTests::KeyNames(key)) {
        shown << '[' << VyrTests::ToStdPath(name).string() << "]\n";
        ShowKeys(shown, Registry::Key::Open(key, name, Registry::Access::Read).Get());
    }
}

} // namespace

Surroundings::Surroundings(const Parts& parts)
    : m_hasRegistry(parts.hasRegistry), m_paths{m_folder.Path(u"a.doc"),       m_folder.Path(u"from"),
                                                m_folder.Path(u"to"),          m_folder.Path(u"none"),
                                                m_folder.Path(u"updates.xml"), m_folder.Path(u"designs.xml")}
{
    if (parts.hasList)
        m_list.emplace(std::initializer_list<CString>{u"IMG_0001.JPG", u"1.2.3.4"});
}

void Surroundings::Prepare()
{
    MakeFiles();
    m_userData.reset();
    m_userData.emplace();
    m_registry.reset();
    if (m_hasRegistry)
        MakeRegistry();
    VyrTests::HtmlElement picture;
    picture.address = u"a.jpg";
    picture.width = 2000;
    picture.height = 100;
    m_page.emplace(std::vector{picture});
    if (m_outside)
        m_outside->Clear();
    else
        m_outside.emplace();
    const shared_places places{InC(m_paths[0]),
                               InC(m_paths[1]),
                               InC(m_paths[2]),
                               InC(m_paths[3]),
                               InC(m_paths[4]),
                               InC(m_paths[5]),
                               m_list ? reinterpret_cast<std::intptr_t>(m_list->GetHandle()) : 0,
                               m_page->Document(),
                               reinterpret_cast<std::intptr_t>(HKEY_LOCAL_MACHINE)};
    set_places(&places);
}

void Surroundings::MakeFiles()
{
    const std::filesystem::path root = VyrTests::ToStdPath(m_folder.Path());
    for (const auto& entry : std::filesystem::directory_iterator(root)) {
        VyrTests::SetReadOnly(CString(entry.path().u16string()), false);
        std::filesystem::remove_all(entry.path());
    }
    m_folder.WriteFile(u"a.doc", DocumentBytes());
    VyrTests::MarkAsDownloaded(m_paths[0]);
    m_folder.WriteFile(u"updates.xml", updates);
    m_folder.WriteFile(u"designs.xml", designs);
    m_folder.MakeFolder(u"from/a/b");
    m_folder.WriteFile(u"from/a/b/file", "content");
    m_folder.MakeFolder(u"to");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
        if (!IsMark(entry.path()))
            VyrTests::StampFile(CString(entry.path().u16string()), preparedTime, preparedTime);
}

void Surroundings::MakeRegistry()
{
    m_registry.emplace();
    m_registry->AddKey(HKEY_LOCAL_MACHINE, u"Software\\Microsoft\\Internet Explorer\\Main\\FeatureControl");
    const CString program = u"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\IMG_0001.JPG";
    m_registry->SetText(HKEY_LOCAL_MACHINE, program, u"DisplayName", u"A sample");
    m_registry->SetText(HKEY_LOCAL_MACHINE, program, u"InstallDate", u"20240105");
    m_registry->SetNumber(HKEY_LOCAL_MACHINE, program, u"EstimatedSize", 417);
}

std::string Surroundings::State() const
{
    std::ostringstream shown;
    ShowTree(shown, VyrTests::ToStdPath(m_folder.Path()));
    shown << BytesOf(VyrTests::ToStdPath(VyrLibraryUtils::PathUtils::GetUpdatesFilePath())) << '\n';
    if (m_registry)
        ShowKeys(shown, HKEY_CURRENT_USER);
    const VyrTests::HtmlElement& picture = m_page->Elements()[0];
    shown << VyrTests::ToStdPath(picture.styleWidth.value_or(CString())).string() << '\n' << m_outside->Text();
    return std::move(shown).str();
}

} // namespace VyrCTests
