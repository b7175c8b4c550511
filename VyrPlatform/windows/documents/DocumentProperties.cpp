// Reads documents by structured storage and by the handlers that are registered, and edits copies of them likewise.
#include <VyrPlatform/documents/DocumentProperties.h>

#include "PropertyHandler.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/CompoundProperties.h>
#include <VyrPlatform/common/documents/PropertySetStream.h>
#include <VyrPlatform/common/documents/PropertyWrites.h>
#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/text/WindowsCString.h>
#include <VyrPlatform/windows/Handle.h>
#include <VyrPlatform/windows/files/LongPath.h>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace VyrPlatform {

namespace {

namespace Result = PropertyStorage::Result;

// The import library may lack it.
constexpr GUID storageId{0x0000000B, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID summaryFormatId{0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};

constexpr DWORD forReading = STGM_READ | STGM_SHARE_DENY_WRITE;
constexpr DWORD forWriting = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
/// Streams and storages inside an open one must be opened exclusively.
constexpr DWORD inner = STGM_READ | STGM_SHARE_EXCLUSIVE;

struct ReleaseObject
{
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, ReleaseObject>;

std::uint32_t FromError(std::uint32_t error) noexcept
{
    switch (error) {
    case ERROR_SUCCESS:
        return Result::ok;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return Result::fileNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return Result::accessDenied;
    case ERROR_SHARING_VIOLATION:
        return Result::shareViolation;
    case ERROR_LOCK_VIOLATION:
        return Result::lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return Result::mediumFull;
    default:
        return Result::writeFault;
    }
}

std::uint32_t ToResult(HRESULT result) noexcept
{
    return SUCCEEDED(result) ? Result::ok : static_cast<std::uint32_t>(result);
}

/// The error code of a call that has just returned `result`.
DWORD ErrorOf(BOOL result) noexcept
{
    return result ? ERROR_SUCCESS : GetLastError();
}

bool HasCompoundSignature(const CString& path)
{
    constexpr std::array<unsigned char, 8> signature{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
    std::array<std::byte, signature.size()> beginning{};
    const FileReader reader(path, beginning);
    return reader.IsOpen() && reader.BeginningSize() == beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), signature.begin(), [](std::byte left, unsigned char right) {
               return std::to_integer<unsigned char>(left) == right;
           });
}

HRESULT OpenStorage(const CString& path, DWORD mode, Owned<IStorage>& storage)
{
    void* opened = nullptr;
    const HRESULT result =
        ::StgOpenStorageEx(ToWide(path), mode, STGFMT_STORAGE, 0, nullptr, nullptr, storageId, &opened);
    if (SUCCEEDED(result))
        storage.reset(static_cast<IStorage*>(opened));
    return result;
}

class SystemRoot : public RootStorage
{
public:
    explicit SystemRoot(IStorage* storage) : m_storage(storage) {}

    [[nodiscard]] bool Has(std::u16string_view name) const override
    {
        if (Open(name))
            return true;
        IStorage* storage = nullptr;
        const HRESULT result = m_storage->OpenStorage(ToWide(CString(name)), nullptr, inner, nullptr, 0, &storage);
        const Owned<IStorage> owner(SUCCEEDED(result) ? storage : nullptr);
        return owner != nullptr;
    }

    [[nodiscard]] std::optional<std::string> Read(std::u16string_view name, std::size_t limit) const override
    {
        const Owned<IStream> stream = Open(name);
        STATSTG status{};
        if (!stream || FAILED(stream->Stat(&status, STATFLAG_NONAME)))
            return std::nullopt;
        std::string content(static_cast<std::size_t>(std::min<ULONGLONG>(status.cbSize.QuadPart, limit)), '\0');
        ULONG count = 0;
        if (FAILED(stream->Read(content.data(), static_cast<ULONG>(content.size()), &count)) || count != content.size())
            return std::nullopt;
        return content;
    }

private:
    [[nodiscard]] Owned<IStream> Open(std::u16string_view name) const
    {
        IStream* stream = nullptr;
        const HRESULT result = m_storage->OpenStream(ToWide(CString(name)), nullptr, inner, 0, &stream);
        return Owned<IStream>(SUCCEEDED(result) ? stream : nullptr);
    }

    IStorage* m_storage;
};

/// Writes `content` over the beginning of the stream.
HRESULT WriteBeginning(IStream& stream, const std::string& content)
{
    ULONG count = 0;
    HRESULT result = stream.Seek({}, STREAM_SEEK_SET, nullptr);
    if (SUCCEEDED(result))
        result = stream.Write(content.data(), static_cast<ULONG>(content.size()), &count);
    return SUCCEEDED(result) && count != content.size() ? STG_E_MEDIUMFULL : result;
}

/// Overwrites the old content first: the system leaves it in unused parts of the file when a stream gets another size.
HRESULT WriteStream(IStorage& storage, std::u16string_view name, const std::string& content)
{
    IStream* opened = nullptr;
    HRESULT result = storage.OpenStream(ToWide(CString(name)), nullptr, forWriting, 0, &opened);
    if (FAILED(result))
        return result;
    const Owned<IStream> stream(opened);
    STATSTG before{};
    result = stream->Stat(&before, STATFLAG_NONAME);
    if (SUCCEEDED(result))
        result = WriteBeginning(*stream, std::string(static_cast<std::size_t>(before.cbSize.QuadPart), '\0'));
    ULARGE_INTEGER size;
    size.QuadPart = content.size();
    if (SUCCEEDED(result))
        result = stream->SetSize(size);
    return SUCCEEDED(result) ? WriteBeginning(*stream, content) : result;
}

/// Edits the compound document at `path` in place, and reads it back.
std::uint32_t EditCompound(const CString& path, const PropertyEdit& edit)
{
    NewStreams streams;
    {
        Owned<IStorage> storage;
        if (const HRESULT result = OpenStorage(path, forWriting, storage); FAILED(result))
            return ToResult(result);
        const std::uint32_t edited = EditCompoundProperties(SystemRoot(storage.get()), edit, streams);
        if (edited != Result::ok)
            return edited;
        for (const auto& [name, content] : streams)
            if (const HRESULT result = WriteStream(*storage, name, content); FAILED(result))
                return ToResult(result);
        if (const HRESULT result = storage->Commit(STGC_DEFAULT); FAILED(result))
            return ToResult(result);
    }
    Owned<IStorage> storage;
    if (const HRESULT result = OpenStorage(path, forReading, storage); FAILED(result))
        return ToResult(result);
    const SystemRoot root(storage.get());
    const bool isWritten = std::all_of(streams.begin(), streams.end(), [&root](const auto& stream) {
        return root.Read(stream.first, stream.second.size() + 1) == stream.second;
    });
    return isWritten ? Result::ok : Result::writeFault;
}

/// Reads a document that its handler has loaded.
std::uint32_t ReadByHandler(IPropertySetStorage& document, DocumentProperties& properties)
{
    IPropertyStorage* opened = nullptr;
    if (const HRESULT result = document.Open(summaryFormatId, inner, &opened); FAILED(result))
        return ToResult(result);
    const Owned<IPropertyStorage> set(opened);
    for (PROPID id = SummaryId::title; id <= SummaryId::application; ++id) {
        PROPSPEC asked{};
        asked.ulKind = PRSPEC_PROPID;
        asked.propid = id;
        PROPVARIANT value{};
        if (set->ReadMultiple(1, &asked, &value) != S_OK)
            continue;
        // The form in a property set covers texts and times of all types.
        const auto stored = StorePropertyValue(value, utf16CodePage);
        if (const auto text = stored ? ReadStoredText(*stored, utf16CodePage) : std::nullopt; text && !text->IsEmpty())
            properties.texts[id] = *text;
        else if (const auto time = stored ? ReadStoredTime(*stored) : std::nullopt; time && *time > 0)
            properties.times[id] = *time;
        ::PropVariantClear(&value);
    }
    return Result::ok;
}

/// The names of members are not compressed in a ZIP archive.
bool HasMemberNamed(const CString& path, std::string_view name)
{
    const FileReader reader(path);
    std::string piece(std::size_t{1} << 20, '\0');
    for (std::uint64_t offset = 0; offset < reader.Size(); offset += piece.size() - name.size()) {
        const std::size_t count = reader.ReadAt(offset, std::as_writable_bytes(std::span(piece)));
        if (std::string_view(piece).substr(0, count).find(name) != std::string_view::npos)
            return true;
        if (count < piece.size())
            break;
    }
    return false;
}

bool HasSignature(const CString& path)
{
    return HasMemberNamed(path, "_xmlsignatures/") || HasMemberNamed(path, "META-INF/documentsignatures.xml");
}

/// A handler does not list the second set and the user's own properties, so it cannot clear all.
std::uint32_t CheckHandlerEdit(const PropertyEdit& edit, const GUID& handler)
{
    return handler == GUID{} || edit.clearsAll ? Result::notSupported : Result::ok;
}

std::uint32_t EditByHandler(const CString& path, const GUID& handler, const PropertyEdit& edit)
{
    if (const std::uint32_t result = CheckHandlerEdit(edit, handler); result != Result::ok)
        return result;
    const auto document = PropertyStorage::Document::OpenByHandler(path, handler);
    if (!document.IsOpen())
        return document.GetError();
    const auto set = PropertyStorage::PropertySet::Open(document.Get(), PropertyStorage::StandardSet::Summary);
    if (!set.IsOpen())
        return set.GetError();
    const PropertyWrites writes(edit, [](std::uint32_t /*id*/) { return true; });
    return set.Write(writes.Get());
}

/// The old document as it was when its replacement was begun.
struct OldDocument
{
    std::uint32_t result = Result::ok;
    BY_HANDLE_FILE_INFORMATION information{};
};

/// Queries a document that nobody else has open.
OldDocument LookAt(const CString& path)
{
    OldDocument document;
    const Handle file(CreateFileW(LongPath(path).Get(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen() || !GetFileInformationByHandle(file.Get(), &document.information))
        document.result = FromError(GetLastError());
    else if (document.information.dwFileAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY))
        document.result = Result::accessDenied;
    else if (document.information.nNumberOfLinks > 1)
        document.result = Result::tooManyLinks;
    return document;
}

bool IsSame(const BY_HANDLE_FILE_INFORMATION& left, const BY_HANDLE_FILE_INFORMATION& right)
{
    return left.nFileSizeLow == right.nFileSizeLow && left.nFileSizeHigh == right.nFileSizeHigh &&
           left.nFileIndexLow == right.nFileIndexLow && left.nFileIndexHigh == right.nFileIndexHigh &&
           CompareFileTime(&left.ftLastWriteTime, &right.ftLastWriteTime) == 0;
}

/// Gives the file `to` the owner, the group and the access list of the file `from`, each if the user may set it.
void CopySecurity(const LongPath& from, const LongPath& to)
{
    for (const DWORD part :
         {DWORD{DACL_SECURITY_INFORMATION}, DWORD{GROUP_SECURITY_INFORMATION}, DWORD{OWNER_SECURITY_INFORMATION}}) {
        DWORD needed = 0;
        GetFileSecurityW(from.Get(), part, nullptr, 0, &needed);
        std::vector<std::byte> descriptor(needed);
        if (needed != 0 && GetFileSecurityW(from.Get(), part, descriptor.data(), needed, &needed))
            SetFileSecurityW(to.Get(), part, descriptor.data());
    }
}

/// Gives the file at `path` the old document's times, and flushes it.
DWORD Finish(const LongPath& path, const BY_HANDLE_FILE_INFORMATION& old)
{
    Handle file(CreateFileW(path.Get(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen() || !SetFileTime(file.Get(), &old.ftCreationTime, &old.ftLastAccessTime, &old.ftLastWriteTime) ||
        !FlushFileBuffers(file.Get()))
        return GetLastError();
    return file.Close();
}

/// Copies the content of the file `source` to `target`.
std::uint32_t WriteContent(const CString& source, const LongPath& target)
{
    const FileReader reader(source);
    if (!reader.IsOpen())
        return FromError(reader.Error());
    Handle file(
        CreateFileW(target.Get(), GENERIC_WRITE, 0, nullptr, TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen())
        return FromError(GetLastError());
    std::vector<std::byte> piece(std::size_t{1} << 16);
    for (std::uint64_t offset = 0; offset < reader.Size();) {
        const std::size_t count = reader.ReadAt(offset, piece);
        DWORD written = 0;
        if (count == 0)
            return FromError(ERROR_READ_FAULT);
        if (!WriteFile(file.Get(), piece.data(), static_cast<DWORD>(count), &written, nullptr) || written != count)
            return FromError(GetLastError());
        offset += count;
    }
    return FromError(file.Close());
}

} // namespace

std::uint32_t ReadDocumentProperties(const CString& path, const _GUID& handler, DocumentProperties& properties)
{
    const FileReader reader(path);
    if (!reader.IsOpen())
        return FromError(reader.Error());
    if (HasCompoundSignature(path)) {
        Owned<IStorage> storage;
        const HRESULT result = OpenStorage(path, forReading, storage);
        return SUCCEEDED(result) ? ReadCompoundProperties(SystemRoot(storage.get()), properties) : ToResult(result);
    }
    if (handler == GUID{})
        return Result::notSupported;
    IPropertySetStorage* opened = nullptr;
    if (const HRESULT result = LoadByHandler(path, handler, forReading, opened); FAILED(result))
        return ToResult(result);
    const Owned<IPropertySetStorage> document(opened);
    properties.isSigned = HasSignature(path);
    return ReadByHandler(*document, properties);
}

struct DocumentReplacement::State
{
    CString path;
    /// Empty without a new document.
    CString newPath;
    /// The path of the kept old document; empty for none.
    CString keptPath;
    OldDocument old;

    explicit State(const CString& document) : path(document), old(LookAt(document)) {}
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State()
    {
        for (const CString& left : {newPath, keptPath})
            if (!left.IsEmpty())
                DeleteFileW(LongPath(left).Get());
    }

    /// Copies the old document, and lets `edit` turn the copy into the new one.
    template <class Edit>
    std::uint32_t Prepare(const Edit& edit)
    {
        if (old.result != Result::ok)
            return old.result;
        CString copy = GetTemporaryPathOf(path);
        const LongPath from(path);
        DWORD error = ErrorOf(CopyFileW(from.Get(), LongPath(copy).Get(), TRUE));
        if (error == ERROR_FILE_EXISTS) {
            copy = MakeTemporaryPath(path);
            error = ErrorOf(CopyFileW(from.Get(), LongPath(copy).Get(), TRUE));
        }
        if (error != ERROR_SUCCESS)
            return FromError(error);
        newPath = copy;
        const LongPath to(newPath);
        if (const std::uint32_t result = edit(newPath); result != Result::ok)
            return result;
        CopySecurity(from, to);
        return FromError(Finish(to, old.information));
    }
};

DocumentReplacement DocumentReplacement::WithProperties(const CString& path, const PropertyEdit& edit,
                                                        const _GUID& handler)
{
    auto state = std::make_shared<State>(path);
    const std::uint32_t result = state->Prepare([&](const CString& copy) -> std::uint32_t {
        if (HasCompoundSignature(copy))
            return EditCompound(copy, edit);
        return EditByHandler(copy, handler, edit);
    });
    return {result == Result::ok ? std::move(state) : nullptr, result};
}

DocumentReplacement DocumentReplacement::WithContent(const CString& path, const CString& source)
{
    auto state = std::make_shared<State>(path);
    const std::uint32_t result =
        state->Prepare([&](const CString& copy) { return WriteContent(source, LongPath(copy)); });
    return {result == Result::ok ? std::move(state) : nullptr, result};
}

void DocumentReplacement::RemoveLeftover(const CString& path)
{
    DeleteFileW(LongPath(GetTemporaryPathOf(path)).Get());
}

const CString& DocumentReplacement::NewPath() const noexcept
{
    return m_state->newPath;
}

std::uint32_t DocumentReplacement::Keep(const CString& path)
{
    const LongPath to(path);
    DWORD error = ErrorOf(CopyFileW(LongPath(m_state->path).Get(), to.Get(), TRUE));
    if (error != ERROR_SUCCESS)
        return FromError(error);
    m_state->keptPath = path;
    return FromError(Finish(to, m_state->old.information));
}

std::uint32_t DocumentReplacement::Commit()
{
    State& state = *m_state;
    const OldDocument now = LookAt(state.path);
    if (now.result != Result::ok)
        return now.result;
    if (!IsSame(now.information, state.old.information))
        return Result::shareViolation;
    const DWORD error = ErrorOf(MoveFileExW(LongPath(state.newPath).Get(), LongPath(state.path).Get(),
                                            MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    if (error == ERROR_SUCCESS) {
        state.newPath.Empty();
        state.keptPath.Empty();
    }
    return FromError(error);
}

std::uint32_t CheckDocumentEdit(const CString& path, const PropertyEdit& edit, const _GUID& handler)
{
    const OldDocument document = LookAt(path);
    if (document.result != Result::ok || !HasCompoundSignature(path))
        return document.result != Result::ok ? document.result : CheckHandlerEdit(edit, handler);
    Owned<IStorage> storage;
    NewStreams streams;
    const HRESULT result = OpenStorage(path, forReading, storage);
    return SUCCEEDED(result) ? EditCompoundProperties(SystemRoot(storage.get()), edit, streams) : ToResult(result);
}

} // namespace VyrPlatform
