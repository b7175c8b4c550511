// A ZIP archive in an open file: read, rewritten with other members, and compared.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>

struct zip;

namespace VyrPlatform {

/// Contents of members by their names.
using ZipMembers = std::map<std::string, std::string>;

class VYR_PLATFORM_API ZipArchive
{
public:
    /// Reads the directory of the archive in `file`, which must outlive this object.
    explicit ZipArchive(int file);
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;
    ~ZipArchive();

    [[nodiscard]] bool IsOpen() const noexcept { return m_archive != nullptr; }
    [[nodiscard]] bool Has(const std::string& name) const;
    /// The content of a member; nothing when there is none, when it is damaged or has more than `limit` bytes.
    [[nodiscard]] std::optional<std::string> Read(const std::string& name, std::size_t limit) const;

    /// Writes the archive of `source` to the empty file `target`, with these members replaced or added at the end. All
    /// others are copied without unpacking them.
    /// @return 0, or the error code: EILSEQ when the archive is damaged.
    [[nodiscard]] static int WriteWith(int source, int target, const ZipMembers& members);
    /// Whether `after` has these members, and all others of `before` in the same order, with the same packed bytes.
    [[nodiscard]] static bool IsSameBut(int before, int after, const ZipMembers& members);

private:
    struct Storage;
    std::unique_ptr<Storage> m_storage;
    zip* m_archive = nullptr;
};

} // namespace VyrPlatform
