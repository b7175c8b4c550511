// Describes the columns of files, and lists files.
#include <VyrHost/cli/FileRecords.h>

#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/time/Epochs.h>

#include <cmath>
#include <cstddef>
#include <optional>

namespace VyrHost::Cli {

namespace {

using Metadata::ListedFile;
using Ui::RecordKind;
using Ui::RecordValue;
using VyrPlatform::FileTicks;
using VyrPlatform::FileSystem::Kind;

RecordValue SizeOf(const std::optional<std::int64_t>& size)
{
    return size ? RecordValue(*size) : RecordValue();
}

RecordValue KindOf(const ListedFile& file)
{
    switch (file.Kind()) {
    case Kind::File:
        return CString(u"file");
    case Kind::Folder:
        return CString(u"folder");
    case Kind::Missing:
    case Kind::Other:
        break;
    }
    return CString(u"other");
}

RecordValue TakenOf(const ListedFile& file)
{
    const COleDateTime taken = file.Taken();
    return taken.GetStatus() == COleDateTime::valid ? RecordValue(Ui::RecordDate{taken}) : RecordValue();
}

RecordValue FlagOf(std::optional<bool> flag)
{
    return flag ? RecordValue(*flag) : RecordValue();
}

/// The value that `make` makes from the answer of a file.
template <auto make, auto ask>
RecordValue Told(const ListedFile& file)
{
    return make((file.*ask)());
}

template <auto member>
RecordValue MarkText(const ListedFile& file)
{
    return Ui::ValueOf(file.Mark().*member);
}

RecordValue AttributesOf(const ListedFile& file)
{
    const std::uint32_t attributes = file.Attributes();
    if (attributes == VyrPlatform::FileAttributes::unknown)
        return {};
    return Metadata::AttributeLetters(attributes);
}

} // namespace

RecordValue DateOf(const std::optional<FileTicks>& ticks)
{
    constexpr double ticksPerDay = VyrPlatform::secondsPerDay * VyrPlatform::ticksPerSecond;
    constexpr double daysTo1899 = 109'205;
    constexpr double minutesPerDay = 1440;
    const COleDateTime local = ticks ? VyrPlatform::FileTimes::ToLocal(*ticks) : COleDateTime();
    if (!ticks || local.GetStatus() != COleDateTime::valid)
        return {};
    Ui::RecordDate date{local};
    if (local.m_dt > 1)
        date.minutesAheadOfUtc = static_cast<int>(
            std::lround((local.m_dt - (static_cast<double>(*ticks) / ticksPerDay - daysTo1899)) * minutesPerDay));
    return date;
}

std::span<const Ui::RecordField<ListedFile>> FileFields()
{
    static const Ui::RecordField<ListedFile> fields[] = {
        {{"name", "Name", RecordKind::Text, true}, Told<Ui::ValueOf, &ListedFile::ShownPath>},
        {{"path", "Path", RecordKind::Text}, Told<Ui::ValueOf, &ListedFile::Path>},
        {{"kind", "Kind", RecordKind::Text}, KindOf},
        {{"size", "Size", RecordKind::Size, true}, Told<SizeOf, &ListedFile::Size>},
        {{"modified", "Modified", RecordKind::Date, true}, Told<DateOf, &ListedFile::Modified>},
        {{"created", "Created", RecordKind::Date}, Told<DateOf, &ListedFile::Created>},
        {{"accessed", "Accessed", RecordKind::Date}, Told<DateOf, &ListedFile::Accessed>},
        {{"taken", "Taken", RecordKind::Date}, TakenOf},
        {{"attributes", "Attributes", RecordKind::Text}, AttributesOf},
        {{"downloaded", "Downloaded", RecordKind::Flag}, Told<FlagOf, &ListedFile::IsMarked>},
        {{"zone", "Zone", RecordKind::Text}, MarkText<&Metadata::ZoneMark::zone>},
        {{"from", "From", RecordKind::Text}, MarkText<&Metadata::ZoneMark::from>},
        {{"referrer", "Referrer", RecordKind::Text}, MarkText<&Metadata::ZoneMark::referrer>},
        {{"maker", "Maker", RecordKind::Text}, Told<Ui::ValueOf, &ListedFile::Make>},
        {{"model", "Model", RecordKind::Text}, Told<Ui::ValueOf, &ListedFile::Model>},
    };
    return fields;
}

FileRecords::FileRecords(const Collect::SourceSettings& sources, Collect::SortSettings order)
    : m_collected(TakeEntries(sources, order)), m_code(CodeOf(m_collected))
{
    const Model::EntryList& list = m_collected.list;
    m_files.reserve(list.entries.size());
    for (std::size_t index = 0; index < list.entries.size(); ++index) {
        ListedFile file(list, index);
        if (list.entries[index].kind != Kind::Missing) {
            m_files.push_back(std::move(file));
            continue;
        }
        m_code = ExitCode::partly;
        Cli::Complain("'" + Text::SafeText(file.ShownPath()) +
                      "': " + Text::SafeText(Text::ErrorText(VyrPlatform::LookAtFile(file.Path()).error)));
    }
}

Ui::RecordTable FileRecords::Table() const
{
    Ui::RecordTable table = Ui::TableOf(m_files, FileFields());
    table.title = "Files";
    table.fileOf = [this](std::size_t row) {
        return m_files[row].Path();
    };
    return table;
}

std::string FileRecords::Total() const
{
    std::string total = CountedNoun(m_files.size(), "entry", "entries") + ".";
    if (std::string leftOut = LeftOutNotice(m_collected); !leftOut.empty()) {
        leftOut.pop_back();
        total += " " + leftOut;
    }
    return total;
}

} // namespace VyrHost::Cli
