/// @file
/// Which date of a file goes into its name, and how it is written.
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

/// Which date rules take.
struct DateSettings
{
    /// The first that a file has.
    std::vector<Model::DateSource> sources = {Model::DateSource::Modified};
    /// How far every date is shifted.
    std::optional<Metadata::Amounts> shift = {};
    /// The clock that shows a date whose instant is known; nothing for the one that the date was taken from.
    std::optional<ZoneClock> clock = {};
};

struct FoundDate
{
    /// Why there is none.
    Reason reason = Reason::NoDate;
    /// The place of its source among those asked for.
    std::size_t rank = 0;
    FileMoment moment = {};
};

/// What those dates ask of the content of every file: what the first needs, as the others matter only where it is
/// missing.
[[nodiscard]] Media::MediaQuestion QuestionFor(const DateSettings& settings);

/// The date that `settings` ask for. A file whose content cannot be read is a fault, not one without a date.
/// @param question  all that the rule asks of the content of every file.
[[nodiscard]] FoundDate FindDate(FileValues& values, const DateSettings& settings,
                                 const Media::MediaQuestion& question);

/// A date format, ready to write many dates.
class DateWriter
{
public:
    /// `format` in the letters of docs/date-time-formats.md, and "SSS" for the milliseconds.
    explicit DateWriter(std::u16string_view format);

    [[nodiscard]] CString Write(const FileMoment& moment) const;

private:
    /// The patterns of the pieces between which the milliseconds stand.
    std::vector<CString> m_patterns;
};

} // namespace VyrHost::Rename
