// Reads documents with our own readers, and replaces them like PropertyStorage.
#include <VyrPlatform/documents/DocumentProperties.h>

#include "CompoundEdit.h"
#include "CompoundFile.h"
#include "DocumentFile.h"
#include "PackageParts.h"
#include "PropertySets.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/PropertyWrites.h>
#include <VyrPlatform/linux/files/FileContent.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/linux/files/OpenToLook.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace VyrPlatform {

namespace {

namespace Result = PropertyStorage::Result;

class OpenRoot : public RootStorage
{
public:
    explicit OpenRoot(const CompoundFile& file) : m_file(file) {}

    [[nodiscard]] bool Has(std::u16string_view name) const override { return m_file.Has(name); }
    [[nodiscard]] std::optional<std::string> Read(std::u16string_view name, std::size_t limit) const override
    {
        return m_file.ReadBeginning(name, limit);
    }

private:
    const CompoundFile& m_file;
};

bool HasCompoundSignature(int file)
{
    constexpr std::string_view signature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
    std::array<char, signature.size()> beginning{};
    return pread(file, beginning.data(), beginning.size(), 0) == static_cast<ssize_t>(beginning.size()) &&
           std::string_view(beginning.data(), beginning.size()) == signature;
}

std::uint32_t ReadPackage(PropertyFormat format, int file, DocumentProperties& properties)
{
    const PackageTraits traits = ReadPackageTraits(format, file);
    properties.isSigned = traits.isSigned;
    properties.isEncrypted = traits.isEncrypted;
    properties.hasThumbnail = traits.hasThumbnail;
    if (traits.isEncrypted)
        return Result::ok;
    const auto part = FindPropertyPart(format, file);
    if (!part || !ReadPropertyXml(format, part->text, properties))
        return Result::damaged;
    for (const PackagePart& further : FindFurtherParts(file))
        if (!ReadPropertyXml(further.format, further.text, properties))
            ++properties.others;
    return Result::ok;
}

EditedXml EditPart(PropertyFormat format, const std::string& text, const PropertyEdit& edit)
{
    const PropertyWrites writes(edit, [format](std::uint32_t id) { return HasPropertyElement(format, id); });
    if (!edit.clearsAll)
        return EditPropertyXml(format, text, writes.Get());
    EditedXml cleared = ClearPropertyXml(format, text);
    return cleared.result == Result::ok ? EditPropertyXml(format, cleared.text, writes.Get()) : cleared;
}

/// Whether the package can store what is to be set. Removing a property that such documents lack is allowed.
bool HasPlaces(PropertyFormat format, const std::vector<PackagePart>& further, const PropertyEdit& edit)
{
    const auto hasPlace = [&](std::uint32_t id) {
        return HasPropertyElement(format, id) ||
               std::any_of(further.begin(), further.end(),
                           [id](const PackagePart& part) { return HasPropertyElement(part.format, id); });
    };
    return std::all_of(edit.values.begin(), edit.values.end(),
                       [&](const auto& value) {
                           return hasPlace(value.first) || (!value.second && value.first != SummaryId::thumbnail);
                       }) &&
           std::all_of(edit.times.begin(), edit.times.end(), [&](const auto& time) { return hasPlace(time.first); });
}

/// Whether the part is to be written.
bool Concerns(const PropertyEdit& edit, PropertyFormat format)
{
    const auto isHere = [format](const auto& value) {
        return HasPropertyElement(format, value.first);
    };
    return edit.clearsAll || std::any_of(edit.values.begin(), edit.values.end(), isHere) ||
           std::any_of(edit.times.begin(), edit.times.end(), isHere);
}

/// @return a result code.
std::uint32_t EditPackage(PropertyFormat format, int file, const PropertyEdit& edit, ZipMembers& members)
{
    if (ReadPackageTraits(format, file).isEncrypted)
        return Result::accessDenied;
    auto part = FindPropertyPart(format, file);
    if (!part)
        return Result::damaged;
    std::vector<PackagePart> parts = FindFurtherParts(file);
    if (!HasPlaces(format, parts, edit))
        return Result::notSupported;
    if (Concerns(edit, format)) {
        members = std::move(part->others);
        parts.push_back({part->name, format, std::move(part->text)});
    }
    for (const PackagePart& each : parts) {
        if (!Concerns(edit, each.format))
            continue;
        EditedXml edited = EditPart(each.format, each.text, edit);
        if (edited.result != Result::ok)
            return edited.result;
        members[each.name] = std::move(edited.text);
    }
    return Result::ok;
}

/// The content of another file.
class ContentEdit : public DocumentEdit
{
public:
    explicit ContentEdit(const CString& path) : m_content(open(NativePath(path).Get(), O_RDONLY | O_CLOEXEC)) {}

    [[nodiscard]] bool IsOpen() const noexcept { return m_content.IsOpen(); }

    [[nodiscard]] int Write(int /*source*/, int target) override
    {
        return Walk([target](std::string_view piece, std::uint64_t place) {
            return WriteAllAt(target, static_cast<off_t>(place), piece);
        });
    }
    [[nodiscard]] bool IsWritten(int /*source*/, int target) override
    {
        std::uint64_t size = 0;
        const int error = Walk([target, &size](std::string_view piece, std::uint64_t place) {
            std::string read(piece.size(), '\0');
            size = place + piece.size();
            const ssize_t count = pread(target, read.data(), read.size(), static_cast<off_t>(place));
            return count == static_cast<ssize_t>(piece.size()) && read == piece ? 0 : EILSEQ;
        });
        struct stat status;
        return error == 0 && fstat(target, &status) == 0 && static_cast<std::uint64_t>(status.st_size) == size;
    }

private:
    /// Calls `use` with each piece and its offset, until it returns an error code.
    template <class Use>
    [[nodiscard]] int Walk(const Use& use) const
    {
        std::string piece(std::size_t{1} << 16, '\0');
        for (std::uint64_t place = 0;;) {
            const ssize_t count = pread(m_content.Get(), piece.data(), piece.size(), static_cast<off_t>(place));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return count < 0 ? errno : 0;
            if (const int error = use(std::string_view(piece).substr(0, static_cast<std::size_t>(count)), place))
                return error;
            place += static_cast<std::uint64_t>(count);
        }
    }

    Descriptor m_content;
};

/// Chooses the edit that makes the new document.
/// @return a result code.
std::uint32_t MakeEdit(const DocumentFile& file, const PropertyEdit& edit, const GUID& handler,
                       std::unique_ptr<DocumentEdit>& made)
{
    if (file.Error() != 0)
        return ToResult(file.Error());
    if (HasCompoundSignature(file.Get())) {
        const auto container = CompoundFile::Read(file.Get());
        NewStreams streams;
        const std::uint32_t result =
            container ? EditCompoundProperties(OpenRoot(*container), edit, streams) : Result::damaged;
        made = std::make_unique<StreamsEdit>(std::move(streams));
        return result;
    }
    const auto format = FormatOfHandler(handler);
    ZipMembers members;
    const std::uint32_t result =
        format ? EditPackage(*format, file.Get(), edit, members) : std::uint32_t{Result::notSupported};
    made = std::make_unique<MemberEdit>(std::move(members));
    return result;
}

} // namespace

std::uint32_t ReadDocumentProperties(const CString& path, const GUID& handler, DocumentProperties& properties)
{
    const Descriptor file(OpenToLook(NativePath(path).Get(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status;
    if (!file.IsOpen() || fstat(file.Get(), &status) != 0)
        return ToResult(errno);
    if (!S_ISREG(status.st_mode))
        return Result::notSupported;
    if (HasCompoundSignature(file.Get())) {
        const auto container = CompoundFile::Read(file.Get());
        return container ? ReadCompoundProperties(OpenRoot(*container), properties) : Result::damaged;
    }
    const auto format = FormatOfHandler(handler);
    return format ? ReadPackage(*format, file.Get(), properties) : Result::notSupported;
}

struct DocumentReplacement::State
{
    explicit State(const CString& path) : file(path) {}

    std::unique_ptr<DocumentEdit> edit;
    DocumentFile file;
};

DocumentReplacement DocumentReplacement::WithProperties(const CString& path, const PropertyEdit& edit,
                                                        const GUID& handler)
{
    auto state = std::make_shared<State>(path);
    std::uint32_t result = MakeEdit(state->file, edit, handler, state->edit);
    if (result == Result::ok)
        result = ToResult(state->file.Prepare(*state->edit));
    return {result == Result::ok ? std::move(state) : nullptr, result};
}

DocumentReplacement DocumentReplacement::WithContent(const CString& path, const CString& source)
{
    auto edit = std::make_unique<ContentEdit>(source);
    if (!edit->IsOpen())
        return {nullptr, ToResult(errno)};
    auto state = std::make_shared<State>(path);
    state->edit = std::move(edit);
    const std::uint32_t result = ToResult(state->file.Prepare(*state->edit));
    return {result == Result::ok ? std::move(state) : nullptr, result};
}

void DocumentReplacement::RemoveLeftover(const CString& path)
{
    DocumentFile::RemoveLeftover(path);
}

const CString& DocumentReplacement::NewPath() const noexcept
{
    return m_state->file.NewPath();
}

std::uint32_t DocumentReplacement::Keep(const CString& path)
{
    return ToResult(m_state->file.Keep(path));
}

std::uint32_t DocumentReplacement::Commit()
{
    return ToResult(m_state->file.Commit());
}

std::uint32_t CheckDocumentEdit(const CString& path, const PropertyEdit& edit, const GUID& handler)
{
    std::unique_ptr<DocumentEdit> documentEdit;
    return MakeEdit(DocumentFile(path), edit, handler, documentEdit);
}

} // namespace VyrPlatform
