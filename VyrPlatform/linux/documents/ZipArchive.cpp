#include "ZipArchive.h"

#include <VyrPlatform/linux/files/FileContent.h>

#include <algorithm>
#include <cerrno>
#include <set>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>
#include <zip.h>

namespace VyrPlatform {

/// The storage for libzip: read from one file, written to another.
struct ZipArchive::Storage
{
    int source;
    int target = -1;
    zip_uint64_t readAt = 0;
    zip_uint64_t writeAt = 0;
    zip_error_t error = {};
    int systemError = 0;

    explicit Storage(int file) : source(file) { zip_error_init(&error); }
    Storage(const Storage&) = delete;
    Storage& operator=(const Storage&) = delete;
    ~Storage() { zip_error_fini(&error); }

    [[nodiscard]] static zip_uint64_t SizeOf(int file)
    {
        struct stat status;
        return fstat(file, &status) == 0 ? static_cast<zip_uint64_t>(status.st_size) : 0;
    }

    zip_int64_t Fail(int code, int reason)
    {
        systemError = reason;
        zip_error_set(&error, code, reason);
        return -1;
    }

    zip_int64_t Read(void* data, zip_uint64_t size)
    {
        const ssize_t count = pread(source, data, size, static_cast<off_t>(readAt));
        if (count < 0)
            return Fail(ZIP_ER_READ, errno);
        readAt += static_cast<zip_uint64_t>(count);
        return count;
    }

    zip_int64_t Write(const void* data, zip_uint64_t size)
    {
        // libzip fails after a partial write, without a reason.
        if (const int reason = WriteAllAt(target, static_cast<off_t>(writeAt), {static_cast<const char*>(data), size}))
            return Fail(ZIP_ER_WRITE, reason);
        writeAt += size;
        return static_cast<zip_int64_t>(size);
    }

    zip_int64_t Seek(zip_uint64_t& at, int file, void* data, zip_uint64_t size)
    {
        const zip_int64_t place = zip_source_seek_compute_offset(at, SizeOf(file), data, size, &error);
        if (place < 0)
            return -1;
        at = static_cast<zip_uint64_t>(place);
        return 0;
    }

    [[nodiscard]] zip_int64_t Tell(void* data, zip_uint64_t size) const
    {
        if (size < sizeof(zip_stat_t))
            return -1;
        auto* const status = static_cast<zip_stat_t*>(data);
        zip_stat_init(status);
        status->valid = ZIP_STAT_SIZE;
        status->size = SizeOf(source);
        return sizeof(zip_stat_t);
    }

    [[nodiscard]] zip_int64_t Abilities() const
    {
        const zip_int64_t reading = zip_source_make_command_bitmap(
            ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE,
            ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL, ZIP_SOURCE_SUPPORTS, -1);
        const zip_int64_t writing = zip_source_make_command_bitmap(
            ZIP_SOURCE_BEGIN_WRITE, ZIP_SOURCE_WRITE, ZIP_SOURCE_SEEK_WRITE, ZIP_SOURCE_TELL_WRITE,
            ZIP_SOURCE_COMMIT_WRITE, ZIP_SOURCE_ROLLBACK_WRITE, ZIP_SOURCE_REMOVE, -1);
        return target < 0 ? reading : reading | writing;
    }

    static zip_int64_t Serve(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command)
    {
        auto& storage = *static_cast<Storage*>(self);
        switch (command) {
        case ZIP_SOURCE_OPEN:
            storage.readAt = 0;
            return 0;
        case ZIP_SOURCE_BEGIN_WRITE:
            storage.writeAt = 0;
            return 0;
        case ZIP_SOURCE_READ:
            return storage.Read(data, size);
        case ZIP_SOURCE_WRITE:
            return storage.Write(data, size);
        case ZIP_SOURCE_SEEK:
            return storage.Seek(storage.readAt, storage.source, data, size);
        case ZIP_SOURCE_SEEK_WRITE:
            return storage.Seek(storage.writeAt, storage.target, data, size);
        case ZIP_SOURCE_TELL:
            return static_cast<zip_int64_t>(storage.readAt);
        case ZIP_SOURCE_TELL_WRITE:
            return static_cast<zip_int64_t>(storage.writeAt);
        case ZIP_SOURCE_STAT:
            return storage.Tell(data, size);
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&storage.error, data, size);
        case ZIP_SOURCE_SUPPORTS:
            return storage.Abilities();
        case ZIP_SOURCE_CLOSE:
        case ZIP_SOURCE_COMMIT_WRITE:
        case ZIP_SOURCE_ROLLBACK_WRITE:
        case ZIP_SOURCE_REMOVE:
        case ZIP_SOURCE_FREE:
            return 0;
        default:
            zip_error_set(&storage.error, ZIP_ER_OPNOTSUPP, 0);
            return -1;
        }
    }

    /// The archive; null when it is not a ZIP archive.
    [[nodiscard]] zip_t* Open()
    {
        zip_error_t problem;
        zip_error_init(&problem);
        zip_source_t* const file = zip_source_function_create(&Storage::Serve, this, &problem);
        zip_t* const archive = file ? zip_open_from_source(file, target < 0 ? ZIP_RDONLY : 0, &problem) : nullptr;
        if (file && !archive)
            zip_source_free(file);
        zip_error_fini(&problem);
        return archive;
    }
};

namespace {

/// The content of a member, packed or unpacked; nothing when it cannot be read or has more than `limit` bytes.
std::optional<std::string> ReadMember(zip_t* archive, zip_uint64_t index, zip_flags_t flags, std::size_t limit)
{
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(zip_fopen_index(archive, index, flags), &zip_fclose);
    if (!file)
        return std::nullopt;
    std::string content;
    char piece[1 << 14];
    zip_int64_t count = 0;
    while ((count = zip_fread(file.get(), piece, sizeof piece)) > 0) {
        content.append(piece, static_cast<std::size_t>(count));
        if (content.size() > limit)
            return std::nullopt;
    }
    return count < 0 ? std::nullopt : std::optional(std::move(content));
}

bool HasSamePackedBytes(zip_t* before, zip_t* after, zip_uint64_t index)
{
    using File = std::unique_ptr<zip_file_t, decltype(&zip_fclose)>;
    const File left(zip_fopen_index(before, index, ZIP_FL_COMPRESSED), &zip_fclose);
    const File right(zip_fopen_index(after, index, ZIP_FL_COMPRESSED), &zip_fclose);
    if (!left || !right)
        return false;
    char a[1 << 14];
    char b[1 << 14];
    zip_int64_t count = 0;
    do {
        count = zip_fread(left.get(), a, sizeof a);
        if (count < 0 || zip_fread(right.get(), b, sizeof b) != count || !std::equal(a, a + count, b))
            return false;
    } while (count > 0);
    return true;
}

bool IsSameMember(zip_t* before, zip_t* after, zip_uint64_t index)
{
    zip_stat_t left;
    zip_stat_t right;
    if (zip_stat_index(before, index, 0, &left) != 0 || zip_stat_index(after, index, 0, &right) != 0)
        return false;
    return std::string_view(left.name) == right.name && left.size == right.size && left.crc == right.crc &&
           left.comp_size == right.comp_size && left.comp_method == right.comp_method && left.mtime == right.mtime &&
           left.encryption_method == right.encryption_method && HasSamePackedBytes(before, after, index);
}

/// Sets the earliest possible time, like office programs: the same document always gives the same bytes.
bool AddMember(zip_t* archive, const std::string& name, zip_source_t* source)
{
    constexpr zip_uint16_t firstDay = 1 << 5 | 1;
    const zip_int64_t added = zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8);
    if (added < 0)
        zip_source_free(source);
    return added >= 0 && zip_file_set_dostime(archive, static_cast<zip_uint64_t>(added), 0, firstDay, 0) == 0;
}

/// Replaces or adds a member, with the compression and the time of the old one.
bool PutMember(zip_t* archive, const std::string& name, const std::string& content)
{
    zip_source_t* const source = zip_source_buffer(archive, content.data(), content.size(), 0);
    if (!source)
        return false;
    const zip_int64_t found = zip_name_locate(archive, name.c_str(), 0);
    if (found < 0)
        return AddMember(archive, name, source);
    const auto index = static_cast<zip_uint64_t>(found);
    zip_stat_t before;
    if (zip_stat_index(archive, index, 0, &before) != 0 || zip_file_replace(archive, index, source, 0) != 0) {
        zip_source_free(source);
        return false;
    }
    const bool isStored = (before.valid & ZIP_STAT_COMP_METHOD) && before.comp_method == ZIP_CM_STORE;
    // In this order: libzip drops the method that is set on a member with a new time.
    return zip_set_file_compression(archive, index, isStored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0) == 0 &&
           zip_file_set_mtime(archive, index, before.mtime, 0) == 0;
}

} // namespace

ZipArchive::ZipArchive(int file) : m_storage(std::make_unique<Storage>(file)), m_archive(m_storage->Open()) {}

ZipArchive::~ZipArchive()
{
    if (m_archive)
        zip_discard(m_archive);
}

bool ZipArchive::Has(const std::string& name) const
{
    return m_archive && zip_name_locate(m_archive, name.c_str(), 0) >= 0;
}

std::optional<std::string> ZipArchive::Read(const std::string& name, std::size_t limit) const
{
    const zip_int64_t index = m_archive ? zip_name_locate(m_archive, name.c_str(), 0) : -1;
    return index < 0 ? std::nullopt : ReadMember(m_archive, static_cast<zip_uint64_t>(index), 0, limit);
}

int ZipArchive::WriteWith(int source, int target, const ZipMembers& members)
{
    Storage storage(source);
    storage.target = target;
    zip_t* const archive = storage.Open();
    if (!archive)
        return EILSEQ;
    for (const auto& [name, content] : members)
        if (!PutMember(archive, name, content)) {
            zip_discard(archive);
            return EILSEQ;
        }
    if (zip_close(archive) == 0)
        return 0;
    zip_discard(archive);
    return storage.systemError != 0 ? storage.systemError : EILSEQ;
}

bool ZipArchive::IsSameBut(int before, int after, const ZipMembers& members)
{
    const ZipArchive left(before);
    const ZipArchive right(after);
    if (!left.IsOpen() || !right.IsOpen())
        return false;
    std::set<zip_int64_t> replaced;
    zip_int64_t added = 0;
    for (const auto& [name, content] : members) {
        if (right.Read(name, content.size()) != content)
            return false;
        const zip_int64_t index = zip_name_locate(left.m_archive, name.c_str(), 0);
        if (index < 0)
            ++added;
        else
            replaced.insert(index);
    }
    const zip_int64_t count = zip_get_num_entries(left.m_archive, 0);
    if (zip_get_num_entries(right.m_archive, 0) != count + added)
        return false;
    for (zip_int64_t index = 0; index < count; ++index)
        if (!replaced.contains(index) &&
            !IsSameMember(left.m_archive, right.m_archive, static_cast<zip_uint64_t>(index)))
            return false;
    return true;
}

} // namespace VyrPlatform
