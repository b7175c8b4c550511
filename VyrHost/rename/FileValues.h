/// @file
/// The values of one file, for names made from them.
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

/// A date-time of a file.
struct FileMoment
{
    /// The local time at its source.
    COleDateTime local;
    /// 0 to 999; 0 if there are none.
    int milliseconds = 0;
    /// The instant, if it is known.
    std::optional<VyrPlatform::FileTicks> instant = {};
};

/// Adds the values of `more` to `question`.
void AddTo(Media::MediaQuestion& question, const Media::MediaQuestion& more);
/// The content values that the date of that source needs.
[[nodiscard]] Media::MediaQuestion QuestionFor(Model::DateSource source);

/// The tags of a document, a piece of music or a film. A missing text is empty, a missing number 0.
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

/// Reads the requested values of a file, each at most once.
class FileValues
{
public:
    /// Switches to the file at `path` (absolute), and discards the values of the previous one.
    void Enter(const CString& path);

    /// The values in the content.
    /// @param question  all values that a rule may need, so that the file is read once.
    [[nodiscard]] const Media::MediaValues& Content(const Media::MediaQuestion& question);
    /// The tags in the content, or the properties of a document: its author is the artist, its keywords the genre.
    [[nodiscard]] const WorkValues& Work(const Media::MediaQuestion& question);
    /// The date from that source; nothing if the file has none.
    [[nodiscard]] std::optional<FileMoment> Moment(Model::DateSource source, const Media::MediaQuestion& question);
    /// The camera's maker and model as parts of names; empty if the picture lacks them.
    [[nodiscard]] CString Make();
    [[nodiscard]] CString Model();
    /// In bytes; nothing unless it is a file.
    [[nodiscard]] std::optional<std::int64_t> Size();
    /// The digits of its SHA-256; empty if it cannot be read.
    [[nodiscard]] const CString& Hash();
    /// The system's error code if its content cannot be read; 0 if it can, or has none.
    [[nodiscard]] std::uint32_t ReadError();

private:
    [[nodiscard]] std::optional<FileMoment> TimeOf(Model::DateSource source);

    CString m_path;
    /// The last question, and its answer.
    Media::MediaQuestion m_question;
    std::shared_ptr<const Media::MediaValues> m_content;
    std::shared_ptr<const WorkValues> m_work;
    /// By date source.
    std::array<std::optional<std::optional<FileMoment>>, Model::dateSourceCount> m_times;
    std::optional<VyrPlatform::FileSystem::Entry> m_state;
    std::optional<CString> m_make;
    std::optional<CString> m_model;
    std::optional<CString> m_hash;
};

/// `text` as a part of a name that is valid on every system: characters that Windows forbids become "_", and blanks at
/// the ends are removed.
[[nodiscard]] CString AsNamePart(const CString& text);

} // namespace VyrHost::Rename
