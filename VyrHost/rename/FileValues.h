/// @file
/// What one file tells of itself, for the names that are made of it.
#pragma once

#include <VyrHost/model/DateSource.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstdint>
#include <optional>

namespace VyrHost::Rename {

/// A date-time that a file tells.
struct FileMoment
{
    /// As the clock showed it that the date was taken from.
    COleDateTime local;
    /// 0 to 999; 0 where there is none.
    int milliseconds = 0;
    /// The instant, where it is known.
    std::optional<VyrPlatform::FileTicks> instant = {};
};

/// Reads what it is asked of a file, each at most once. Texts of the file's content are cleaned (AsNamePart).
class FileValues
{
public:
    /// Turns to the file at `path` (absolute); what another one told is forgotten.
    void Enter(const CString& path);

    /// The date of that source; nothing where the file does not tell it.
    [[nodiscard]] std::optional<FileMoment> Moment(Model::DateSource source);
    /// The camera's maker and model; empty where the picture does not tell.
    [[nodiscard]] CString Make();
    [[nodiscard]] CString Model();
    /// In bytes; nothing unless it is a file.
    [[nodiscard]] std::optional<std::int64_t> Size();
    /// Why its content cannot be read (the system's code); 0 where it can be, and for what has none.
    [[nodiscard]] std::uint32_t ReadError();

private:
    [[nodiscard]] std::optional<FileMoment> ReadMoment(Model::DateSource source) const;

    CString m_path;
    /// By date source.
    std::array<std::optional<std::optional<FileMoment>>, Model::dateSourceCount> m_moments;
    std::optional<CString> m_make;
    std::optional<CString> m_model;
    std::optional<VyrPlatform::FileSystem::Entry> m_state;
    std::optional<std::uint32_t> m_readError;
};

/// `text` as a part of a name that every system allows: what Windows forbids becomes "_", blanks around it go.
[[nodiscard]] CString AsNamePart(const CString& text);

} // namespace VyrHost::Rename
