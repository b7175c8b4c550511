// Which names are equal in a folder, on Linux.
#include <VyrHostPlatform/NameFolding.h>

#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/FileIdentityAt.h>
#include <VyrPlatform/linux/files/NativePath.h>

#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/ioctl.h>
#include <sys/vfs.h>
#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

// The numbers of file systems in statfs (statfs(2), the kernel's magic.h).
using FileSystemNumber = std::uint32_t;
/// ext2 to ext4, xfs, btrfs, tmpfs, f2fs: they fold names only in folders that carry the flag.
constexpr std::array<FileSystemNumber, 5> exactUnlessFlagged{0xEF53, 0x58465342, 0x9123683E, 0x01021994, 0xF2F52010};
/// vfat, exfat.
constexpr std::array<FileSystemNumber, 2> foldingCase{0x4D44, 0x2011BAB0};
/// hfs, hfs+.
constexpr std::array<FileSystemNumber, 2> foldingCaseAndForm{0x4244, 0x482B};

template <std::size_t Count>
bool Contains(const std::array<FileSystemNumber, Count>& numbers, FileSystemNumber number) noexcept
{
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

CString ParentOf(const CString& path)
{
    const int separator = path.ReverseFind(u'/');
    return separator > 0 ? path.Left(separator) : CString(u"/");
}

/// Opens the folder at `path`, or its nearest existing parent.
int OpenNearest(CString path) noexcept
{
    for (;;) {
        const int folder = open(NativePath(path).Get(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder >= 0 || (errno != ENOENT && errno != ENOTDIR) || path.GetLength() <= 1)
            return folder;
        path = ParentOf(path);
    }
}

bool HasFoldingFlag(int folder) noexcept
{
    int flags = 0;
    return ioctl(folder, FS_IOC_GETFLAGS, &flags) == 0 && (flags & FS_CASEFOLD_FL);
}

/// `name` with the case of its ASCII letters swapped.
std::string TurnCase(std::string name)
{
    for (char& letter : name)
        if ((letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z'))
            letter = static_cast<char>(letter ^ 0x20);
    return name;
}

std::u16string Normalize(std::u16string_view text, const UNormalizer2* normalizer)
{
    UErrorCode error = U_ZERO_ERROR;
    std::u16string result(text.size() * 4 + 16, u'\0');
    for (int attempt = 0; attempt < 2; ++attempt) {
        error = U_ZERO_ERROR;
        const int32_t length = unorm2_normalize(normalizer, text.data(), static_cast<int32_t>(text.size()),
                                                result.data(), static_cast<int32_t>(result.size()), &error);
        result.resize(static_cast<std::size_t>(length));
        if (error != U_BUFFER_OVERFLOW_ERROR)
            break;
    }
    return U_SUCCESS(error) ? result : std::u16string(text);
}

std::u16string Decompose(std::u16string_view text)
{
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* const normalizer = unorm2_getNFDInstance(&error);
    return U_SUCCESS(error) ? Normalize(text, normalizer) : std::u16string(text);
}

std::u16string Compose(std::u16string_view text)
{
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* const normalizer = unorm2_getNFCInstance(&error);
    return U_SUCCESS(error) ? Normalize(text, normalizer) : std::u16string(text);
}

/// `name` in the other normal form.
std::string TurnForm(const std::string& name)
{
    const CString text = Encoding::FromNameBytes(name);
    const std::u16string composed = Compose(text);
    return Encoding::ToNameBytes(text == std::u16string_view(composed) ? Decompose(text) : composed);
}

using Entries = std::unique_ptr<DIR, int (*)(DIR*)>;

Entries OpenEntries(int folder) noexcept
{
    const int again = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return {again >= 0 ? fdopendir(again) : nullptr, closedir};
}

bool Lists(int folder, const std::string& name) noexcept
{
    const Entries entries = OpenEntries(folder);
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr)
        if (name == entry->d_name)
            return true;
    return false;
}

/// Whether `folder` finds its entry `name` also under `otherName`; nothing when this entry cannot show it.
std::optional<bool> IsFoundAs(int folder, const std::string& name, const std::string& otherName) noexcept
{
    if (otherName == name)
        return {};
    const FileState found = LookAtFile(folder, otherName.c_str());
    if (found.kind != FileSystem::Kind::Missing)
        return !Lists(folder, otherName);
    return found.error == ENOENT ? std::optional(false) : std::nullopt;
}

/// Tries it on the entries of the folder.
NameFolding TryFolding(int folder)
{
    constexpr int mostEntries = 10'000;
    const Entries entries = OpenEntries(folder);
    std::optional<bool> foldsCase;
    std::optional<bool> foldsForm;
    for (int count = 0; entries && count < mostEntries && !(foldsCase && foldsForm); ++count) {
        const dirent* const entry = readdir(entries.get());
        if (!entry)
            break;
        const std::string name = entry->d_name;
        if (!foldsCase)
            foldsCase = IsFoundAs(folder, name, TurnCase(name));
        if (!foldsForm)
            foldsForm = IsFoundAs(folder, name, TurnForm(name));
    }
    const auto caseBit = static_cast<unsigned>(foldsCase.value_or(false) ? NameFolding::Case : NameFolding::None);
    const auto formBit = static_cast<unsigned>(foldsForm.value_or(false) ? NameFolding::Form : NameFolding::None);
    return static_cast<NameFolding>(caseBit | formBit);
}

bool IsAscii(std::u16string_view text) noexcept
{
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
}

void LowerAscii(std::u16string& text) noexcept
{
    for (char16_t& unit : text)
        if (unit >= u'A' && unit <= u'Z')
            unit = static_cast<char16_t>(unit + (u'a' - u'A'));
}

void Append(std::u16string& text, UChar32 point)
{
    if (point >= 0x10000) {
        text += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
        point = 0xDC00 + (point & 0x3FF);
    }
    text += static_cast<char16_t>(point);
}

/// Folds each letter to one letter, as file systems with a table of capitals do.
std::u16string FoldLetters(std::u16string_view text)
{
    std::u16string folded;
    while (!text.empty())
        Append(folded, u_foldCase(static_cast<UChar32>(TakeCharacter(text)), U_FOLD_CASE_DEFAULT));
    return folded;
}

/// Full case folding without invisible code points, as ext4 compares (utf8_nfdicf of the kernel).
std::u16string FoldFully(std::u16string_view text)
{
    std::u16string visible;
    while (!text.empty()) {
        const auto point = static_cast<UChar32>(TakeCharacter(text));
        if (!u_hasBinaryProperty(point, UCHAR_DEFAULT_IGNORABLE_CODE_POINT))
            Append(visible, point);
    }
    // One unit folds to at most three.
    std::u16string folded(visible.size() * 3, u'\0');
    UErrorCode error = U_ZERO_ERROR;
    const int32_t length = u_strFoldCase(folded.data(), static_cast<int32_t>(folded.size()), visible.data(),
                                         static_cast<int32_t>(visible.size()), U_FOLD_CASE_DEFAULT, &error);
    if (U_FAILURE(error))
        return visible;
    folded.resize(static_cast<std::size_t>(length));
    return folded;
}

} // namespace

NameFolding GetNameFolding(const CString& path)
{
    const Descriptor folder(OpenNearest(path));
    if (!folder.IsOpen())
        return NameFolding::None;
    if (HasFoldingFlag(folder.Get()))
        return NameFolding::CaseAndForm;
    struct statfs system;
    if (fstatfs(folder.Get(), &system) != 0)
        return NameFolding::None;
    const auto number = static_cast<FileSystemNumber>(system.f_type);
    if (Contains(exactUnlessFlagged, number))
        return NameFolding::None;
    if (Contains(foldingCase, number))
        return NameFolding::Case;
    if (Contains(foldingCaseAndForm, number))
        return NameFolding::CaseAndForm;
    return TryFolding(folder.Get());
}

CString FoldName(const CString& name, NameFolding folding)
{
    if (folding == NameFolding::None || (folding == NameFolding::Form && IsAscii(name)))
        return name;
    if (folding == NameFolding::Form)
        return std::u16string_view(Compose(name));
    if (IsAscii(name)) {
        std::u16string lower(name.View());
        LowerAscii(lower);
        return std::u16string_view(lower);
    }
    if (folding == NameFolding::Case)
        return std::u16string_view(FoldLetters(name));
    return std::u16string_view(Decompose(FoldFully(Decompose(name))));
}

} // namespace VyrHostPlatform
