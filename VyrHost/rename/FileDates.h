/// @file
/// Finds the date of a file for its name, and writes it.
#pragma once

#include <VyrHost/metadata/Shift.h>
#include <VyrHost/model/DateSource.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHost/rename/FileValues.h>
#include <VyrHost/rename/ZoneClock.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

/// The date that rules use.
struct DateSettings
{
    /// The first one that a file has is used.
    std::vector<Model::DateSource> sources = {Model::DateSource::Modified};
    /// Every date is shifted by this.
    std::optional<Metadata::Amounts> shift = {};
    /// The time zone for dates whose instant is known; nothing for that of the source.
    std::optional<ZoneClock> clock = {};
};

struct FoundDate
{
    /// Why there is none.
    Reason reason = Reason::NoDate;
    /// The index of its source in DateSettings::sources.
    std::size_t rank = 0;
    FileMoment moment = {};
};

/// The content values that every file is asked for: those of the first source, since the others are needed only if it
/// is missing.
[[nodiscard]] Media::MediaQuestion QuestionFor(const DateSettings& settings);

/// The date by `settings`. A file whose content cannot be read is an error, not a file without a date.
/// @param question  all content values that the rule needs of every file.
[[nodiscard]] FoundDate FindDate(FileValues& values, const DateSettings& settings,
                                 const Media::MediaQuestion& question);

/// A date format, prepared for many dates.
class DateWriter
{
public:
    /// `format` in the letters of docs/date-time-formats.md, and "SSS" for the milliseconds.
    explicit DateWriter(std::u16string_view format);

    [[nodiscard]] CString Write(const FileMoment& moment) const;

private:
    /// The patterns of the pieces that the milliseconds separate.
    std::vector<CString> m_patterns;
};

} // namespace VyrHost::Rename
