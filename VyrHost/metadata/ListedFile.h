/// @file
/// The properties of a file in a list.
#pragma once

#include <VyrHost/metadata/Marks.h>
#include <VyrHost/model/EntryList.h>
#include <VyrPlatform/files/FileSystem.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

namespace VyrHost::Metadata {

/// An entry of a list. Each property is read from the disk on first use, and kept.
class ListedFile
{
public:
    /// @param list  must outlive it.
    ListedFile(const Model::EntryList& list, std::size_t index) : m_list(&list), m_index(index) {}

    /// The path as the user wrote it, and the absolute path.
    [[nodiscard]] CString ShownPath() const;
    [[nodiscard]] CString Path() const;
    [[nodiscard]] VyrPlatform::FileSystem::Kind Kind() const;

    /// Nothing unless it is a file.
    [[nodiscard]] std::optional<std::int64_t> Size() const;
    /// Nothing where it cannot be read.
    [[nodiscard]] std::optional<VyrPlatform::FileTicks> Modified() const;
    [[nodiscard]] std::optional<VyrPlatform::FileTicks> Accessed() const;
    [[nodiscard]] std::optional<VyrPlatform::FileTicks> Created() const;
    /// FileAttributes::unknown where they cannot be read.
    [[nodiscard]] std::uint32_t Attributes() const;
    /// Whether the file has the mark of a download (nothing where that cannot be read), and its content.
    [[nodiscard]] std::optional<bool> IsMarked() const;
    [[nodiscard]] const ZoneMark& Mark() const;

    /// The time when a picture was taken; invalid where it has none.
    [[nodiscard]] COleDateTime Taken() const;
    /// Empty where a picture has none.
    [[nodiscard]] CString Make() const;
    [[nodiscard]] CString Model() const;

private:
    struct KnownMark
    {
        std::optional<bool> isMarked;
        ZoneMark mark;
    };
    struct Picture
    {
        COleDateTime taken;
        CString make;
        CString model;
    };

    [[nodiscard]] const Model::Entry& Entry() const { return m_list->entries[m_index]; }
    [[nodiscard]] const VyrPlatform::FileSystem::Entry& State() const;
    [[nodiscard]] const KnownMark& ReadMark() const;
    [[nodiscard]] const Picture& ReadPicture() const;

    const Model::EntryList* m_list;
    std::size_t m_index;
    mutable std::optional<VyrPlatform::FileSystem::Entry> m_state;
    mutable std::optional<std::optional<VyrPlatform::FileTicks>> m_created;
    mutable std::optional<std::uint32_t> m_attributes;
    mutable std::unique_ptr<KnownMark> m_mark;
    mutable std::unique_ptr<Picture> m_picture;
};

} // namespace VyrHost::Metadata
