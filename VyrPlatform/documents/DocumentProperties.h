/// @file
/// Reads what documents tell of themselves, and replaces a document by one with other properties.
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

/// Ids of the summary information ([MS-OLEPS] 3.1.1), by which documents of all kinds are asked.
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

/// What a document tells of itself.
struct DocumentProperties
{
    /// Title, subject, author, keywords, comments, template, last author, revision and application, by their ids. One
    /// that is empty is not there.
    std::map<std::uint32_t, CString> texts;
    /// When it was printed, created and saved.
    std::map<std::uint32_t, FileTicks> times;
    /// How many others there are: of the second standard set (company, category, manager and so on), and the user's
    /// own.
    std::size_t others = 0;
    bool hasThumbnail = false;
    bool isSigned = false;
    /// Its contents are encrypted; its properties may be missing here, and are not written.
    bool isEncrypted = false;
    /// Its summary information does not say in which code page its texts are. They are read as if that were 1252, and
    /// are not written.
    bool lacksCodePage = false;
};

/// Reads the properties of the document at `path`.
/// @param handler  the class id of the handler of its kind, which a compound document does not need; all zero for none.
/// @return a result code (PropertyStorage.h): fileNotFound also for a compound document without any property set,
///     notSupported for a file that is neither a compound document nor has a handler, damaged for a document that is no
///     such document, or whose properties cannot be read.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t ReadDocumentProperties(const CString& path, const _GUID& handler,
                                                                    DocumentProperties& properties);

/// What a document's properties are changed to.
struct PropertyEdit
{
    /// First of all, all properties are removed that DocumentProperties tells of; the thumbnail stays.
    bool clearsAll = false;
    /// New texts by their ids; nothing removes a property of any kind.
    std::map<std::uint32_t, std::optional<CString>> values;
    /// New times by their ids, none of which has a text.
    std::map<std::uint32_t, FileTicks> times;

    /// Whether properties other than those that clearsAll removes are changed.
    [[nodiscard]] bool NamesAny() const noexcept { return !values.empty() || !times.empty(); }
    [[nodiscard]] bool Names(std::uint32_t id) const { return values.contains(id) || times.contains(id); }
};

/// A new document that has been written beside an old one, and that can take its place, flushed and at a stroke, with
/// owner, mode, attributes, times, and extended attributes or streams kept. Whatever happens meanwhile, the old or the
/// new document stands there, whole. Until then it stands under a temporary name, which is removed with this object;
/// one that a killed program leaves is removed by RemoveLeftover.
///
/// A document is refused that may not be written, that another program has open for writing or has locked, or that has
/// several hard links, since its other names would keep the old one.
class VYR_PLATFORM_API DocumentReplacement
{
public:
    DocumentReplacement(DocumentReplacement&&) noexcept = default;
    DocumentReplacement& operator=(DocumentReplacement&&) noexcept = default;

    /// Writes the document at `path` with other properties; whatever else it holds stays byte for byte.
    /// @param handler  as for ReadDocumentProperties.
    [[nodiscard]] static DocumentReplacement WithProperties(const CString& path, const PropertyEdit& edit,
                                                            const _GUID& handler);
    /// Writes the content of the file `source` as the document at `path`.
    [[nodiscard]] static DocumentReplacement WithContent(const CString& path, const CString& source);

    /// Removes the new document that a program which was killed left beside the document at `path`, if there is one.
    /// Not while another program may be replacing that document.
    static void RemoveLeftover(const CString& path);

    /// A result code (PropertyStorage.h) that says why there is no new document: notSupported for a property that such
    /// a document does not have, fileNotFound for a compound document without summary information, invalidParameter for
    /// a text that its kind cannot hold, damaged for a document that cannot be written without loss.
    [[nodiscard]] std::uint32_t Error() const noexcept { return m_error; }
    /// Where the new document stands. Only where there is one.
    [[nodiscard]] const CString& NewPath() const noexcept;
    /// Keeps the old document at `path`, where nothing stands yet: on Linux as a hard link where possible, else as a
    /// copy. It is removed with this object unless Commit succeeds.
    /// @return a result code.
    [[nodiscard]] std::uint32_t Keep(const CString& path);
    /// Waits until the new document, and what is kept of the old one, are on the disk; reads the new one back, compares
    /// it with the old one, and puts it in its place, unless that was written to meanwhile.
    /// The old one may be there again after a power failure until the folder is flushed, too.
    /// @return a result code; when it is a failure, the old document stands there unchanged.
    [[nodiscard]] std::uint32_t Commit();

private:
    struct State;
    DocumentReplacement(std::shared_ptr<State> state, std::uint32_t error) noexcept
        : m_state(std::move(state)), m_error(error)
    {}

    /// Null when there is no new document. It has one owner, and is shared only because each system defines the State.
    std::shared_ptr<State> m_state;
    std::uint32_t m_error;
};

/// Whether DocumentReplacement::WithProperties could do that now, as far as it can be told without writing anything.
/// @return the result code that it would give.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t CheckDocumentEdit(const CString& path, const PropertyEdit& edit,
                                                               const _GUID& handler);

} // namespace VyrPlatform
