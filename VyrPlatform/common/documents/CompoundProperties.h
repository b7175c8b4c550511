// The properties of a compound document, for both systems: everything except reading and writing its streams.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/documents/DocumentProperties.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace VyrPlatform {

/// The streams of the two standard sets ([MS-OLEPS] 2.24).
inline constexpr std::u16string_view summaryStream = u"\x05SummaryInformation";
inline constexpr std::u16string_view documentStream = u"\x05"
                                                      u"DocumentSummaryInformation";

/// The root storage of a compound document.
class RootStorage
{
public:
    RootStorage() = default;
    RootStorage(const RootStorage&) = delete;
    RootStorage& operator=(const RootStorage&) = delete;
    virtual ~RootStorage() = default;

    /// Whether a stream or a storage in it has this name.
    [[nodiscard]] virtual bool Has(std::u16string_view name) const = 0;
    /// The first bytes of a stream, `limit` at most; nothing when there is none, or it is damaged.
    [[nodiscard]] virtual std::optional<std::string> Read(std::u16string_view name, std::size_t limit) const = 0;
};

/// @return the result code of ReadDocumentProperties.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t ReadCompoundProperties(const RootStorage& root,
                                                                    DocumentProperties& properties);

/// New contents of streams by their names.
using NewStreams = std::map<std::u16string_view, std::string>;

/// Finds the streams that `edit` changes.
/// @return the result code of DocumentReplacement.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t EditCompoundProperties(const RootStorage& root, const PropertyEdit& edit,
                                                                    NewStreams& streams);

} // namespace VyrPlatform
