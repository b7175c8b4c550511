/// @file
/// Reads the properties of documents, and replaces a document by one with other properties.
///
/// Compound documents (OLE2) are read and written on both systems. Documents in ZIP archives have a handler with a
/// class id (PropertyStorage.h): on Linux one of the library's own, on Windows one that must be registered. The calling
/// thread must have COM initialised there.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>

struct _GUID; // NOLINT(bugprone-reserved-identifier): the system's own tag

namespace VyrPlatform {

/// Ids of the summary information ([MS-OLEPS] 3.1.1), used for documents of all kinds.
namespace SummaryId {
inline constexpr std::uint32_t title = 2;
inline constexpr std::uint32_t subject = 3;
inline constexpr std::uint32_t author = 4;
inline constexpr std::uint32_t keywords = 5;
inline constexpr std::uint32_t comments = 6;
inline constexpr std::uint32_t templateName = 7;
inline constexpr std::uint32_t lastAuthor = 8;
inline constexpr std::uint32_t revision = 9;
inline constexpr std::uint32_t printed = 11;
inline constexpr std::uint32_t created = 12;
inline constexpr std::uint32_t saved = 13;
inline constexpr std::uint32_t thumbnail = 17;
inline constexpr std::uint32_t application = 18;
} // namespace SummaryId

/// The properties of a document.
struct DocumentProperties
{
    /// Title, subject, author, keywords, comments, template, last author, revision and application, by their ids;
    /// without empty ones.
    std::map<std::uint32_t, CString> texts;
    /// When it was printed, created and saved.
    std::map<std::uint32_t, FileTicks> times;
    /// The number of other properties: of the second standard set (company, category, manager and so on), and the
    /// user's own.
    std::size_t others = 0;
    bool hasThumbnail = false;
    bool isSigned = false;
    /// Its contents are encrypted; its properties may be missing here, and are not written.
    bool isEncrypted = false;
    /// Its summary information does not name the code page of its texts. They are read as 1252, and cannot be written.
    bool lacksCodePage = false;
};

/// Reads the properties of the document at `path`.
/// @param handler  the class id of the handler of its kind, which a compound document does not need; all zero for none.
/// @return a result code (PropertyStorage.h): fileNotFound also for a compound document without any property set,
///     notSupported for a file that is not a compound document and has no handler, damaged for a document of another
///     kind, or whose properties cannot be read.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t ReadDocumentProperties(const CString& path, const _GUID& handler,
                                                                    DocumentProperties& properties);

/// The changes of a document's properties.
struct PropertyEdit
{
    /// First removes all properties in DocumentProperties; keeps the thumbnail.
    bool clearsAll = false;
    /// New texts by their ids; nothing removes a property of any kind.
    std::map<std::uint32_t, std::optional<CString>> values;
    /// New times by their ids, which differ from those of texts.
    std::map<std::uint32_t, FileTicks> times;

    /// Whether properties other than those that clearsAll removes are changed.
    [[nodiscard]] bool NamesAny() const noexcept { return !values.empty() || !times.empty(); }
    [[nodiscard]] bool Names(std::uint32_t id) const { return values.contains(id) || times.contains(id); }
};

/// A new document that was written beside an old one, and can replace it atomically, flushed, with the same owner,
/// mode, attributes, times, and extended attributes or streams. At any time either the old or the new document is
/// complete at the path. Until then the new one has a temporary name; it is removed with this object, or by
/// RemoveLeftover after a program was killed.
///
/// Refuses a document that may not be written, that another program has open for writing or has locked, or that has
/// several hard links, since its other names would keep the old document.
class VYR_PLATFORM_API DocumentReplacement
{
public:
    DocumentReplacement(DocumentReplacement&&) noexcept = default;
    DocumentReplacement& operator=(DocumentReplacement&&) noexcept = default;

    /// Writes the document at `path` with other properties; everything else in it is unchanged.
    /// @param handler  as for ReadDocumentProperties.
    [[nodiscard]] static DocumentReplacement WithProperties(const CString& path, const PropertyEdit& edit,
                                                            const _GUID& handler);
    /// Writes the content of the file `source` as the document at `path`.
    [[nodiscard]] static DocumentReplacement WithContent(const CString& path, const CString& source);

    /// Removes the new document that a killed program left beside the document at `path`, if there is one. Do not call
    /// it while another program may be replacing that document.
    static void RemoveLeftover(const CString& path);

    /// The reason why there is no new document, a result code (PropertyStorage.h): notSupported for a property that
    /// this kind of document lacks, fileNotFound for a compound document without summary information, invalidParameter
    /// for a text that the kind cannot store, damaged for a document that cannot be written without loss.
    [[nodiscard]] std::uint32_t Error() const noexcept { return m_error; }
    /// The path of the new document. Call it only if there is one.
    [[nodiscard]] const CString& NewPath() const noexcept;
    /// Keeps the old document at the free path `path`: on Linux as a hard link if possible, else as a copy. It is
    /// removed with this object unless Commit succeeds.
    /// @return a result code.
    [[nodiscard]] std::uint32_t Keep(const CString& path);
    /// Flushes the new document and the kept old one, reads the new one back, compares it with the old one, and
    /// replaces the old one, unless that was modified meanwhile. Until the folder is flushed, too, a power failure may
    /// restore the old one.
    /// @return a result code; after a failure the old document is unchanged.
    [[nodiscard]] std::uint32_t Commit();

private:
    struct State;
    DocumentReplacement(std::shared_ptr<State> state, std::uint32_t error) noexcept
        : m_state(std::move(state)), m_error(error)
    {}

    /// Null when there is no new document. Has one owner; a shared pointer only because each system defines State.
    std::shared_ptr<State> m_state;
    std::uint32_t m_error;
};

/// Whether DocumentReplacement::WithProperties would succeed now, as far as can be predicted without writing.
/// @return the result code that it would give.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t CheckDocumentEdit(const CString& path, const PropertyEdit& edit,
                                                               const _GUID& handler);

} // namespace VyrPlatform
