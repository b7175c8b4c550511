/// @file
/// What one file tells of itself, for the names that are made of it.
#pragma once

#include <VyrHost/media/MediaValues.h>
#include <VyrHost/model/DateSource.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstdint>
#include <memory>
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

/// Adds to `question` what `more` asks.
void AddTo(Media::MediaQuestion& question, const Media::MediaQuestion& more);
/// What is asked of the content of a file for the date of that source.
[[nodiscard]] Media::MediaQuestion QuestionFor(Model::DateSource source);

/// What a document, or a piece of music or a film, says of its making. A text that is missing is empty, a number 0.
struct WorkValues
{
    CString title;
    CString artist;
    CString album;
    CString genre;
    unsigned track = 0;
    unsigned disc = 0;
    unsigned year = 0;
};

/// Reads what it is asked of a file, each at most once.
class FileValues
{
public:
    /// Turns to the file at `path` (absolute); what another one told is forgotten.
    void Enter(const CString& path);

    /// What the content tells.
    /// @param question  all that a rule may ask, so that the file is read once.
    [[nodiscard]] const Media::MediaValues& Content(const Media::MediaQuestion& question);
    /// The tags in the content, or the properties of a document: its author is the artist, its keywords the genre.
    [[nodiscard]] const WorkValues& Work(const Media::MediaQuestion& question);
    /// The date of that source; nothing where the file does not tell it.
    [[nodiscard]] std::optional<FileMoment> Moment(Model::DateSource source, const Media::MediaQuestion& question);
    /// The camera's maker and model as parts of names; empty where the picture does not tell.
    [[nodiscard]] CString Make();
    [[nodiscard]] CString Model();
    /// In bytes; nothing unless it is a file.
    [[nodiscard]] std::optional<std::int64_t> Size();
    /// The digits of its SHA-256; empty where it cannot be read.
    [[nodiscard]] const CString& Hash();
    /// Why its content cannot be read (the system's code); 0 where it can be, and for what has no content.
    [[nodiscard]] std::uint32_t ReadError();

private:
    [[nodiscard]] std::optional<FileMoment> TimeOf(Model::DateSource source);

    CString m_path;
    /// What was asked, and the answer.
    Media::MediaQuestion m_question;
    std::shared_ptr<const Media::MediaValues> m_content;
    std::shared_ptr<const WorkValues> m_work;
    /// Of the file, by date source.
    std::array<std::optional<std::optional<FileMoment>>, Model::dateSourceCount> m_times;
    std::optional<VyrPlatform::FileSystem::Entry> m_state;
    std::optional<CString> m_make;
    std::optional<CString> m_model;
    std::optional<CString> m_hash;
};

/// `text` as a part of a name that every system allows: what Windows forbids becomes "_", blanks around it go.
[[nodiscard]] CString AsNamePart(const CString& text);

} // namespace VyrHost::Rename
