// The words for decisions, and the results made of them.
#include <VyrHost/rename/Decision.h>

#include <VyrHost/media/MediaValues.h>
#include <VyrHost/text/Errors.h>

#include <utility>

namespace VyrHost::Rename {

using VyrHostPlatform::NameFault;

namespace {

/// The words for `dates` in the form of --date-from: "picture,modified"; empty for none.
CString WordsFor(Model::DateSourceSet dates)
{
    CString words;
    for (const auto& [source, word] : Model::dateSourceWords)
        if (dates.Has(source))
            words = CString::Join({words, words.IsEmpty() ? u"" : u",", word});
    return words;
}

} // namespace

std::u16string_view WordsFor(Reason reason)
{
    switch (reason) {
    case Reason::None:
        break;
    case Reason::NoSuchEntry:
        return u"there is nothing of that name";
    case Reason::FolderNotRead:
        return u"its folder cannot be read";
    case Reason::NoDate:
        return u"it has no date of the kind asked for";
    case Reason::DateOutOfRange:
        return u"its date would leave the calendar's range";
    case Reason::NoValue:
        return u"it has no value for a token";
    case Reason::PictureNotRead:
        return u"the picture cannot be read";
    case Reason::NamelessFolder:
        return u"the name of its new folder would be empty, . or ..";
    case Reason::BadFolder:
        return u"a folder of that name cannot be made";
    case Reason::OtherFileSystem:
        return u"the new path is on another file system";
    case Reason::FolderLocked:
        return u"its folder may not be changed";
    case Reason::NotOwnEntry:
        return u"in this folder only its owner may rename it";
    case Reason::MustStay:
        return u"it must stay where it is";
    case Reason::BeyondName:
        return u"the place or count is beyond the name";
    case Reason::PatternGaveUp:
        return u"the pattern is too complex for this name";
    case Reason::ContentNotRead:
        return u"it cannot be read";
    case Reason::UnknownContent:
        return u"its content is of no kind that is known";
    case Reason::EmptyName:
        return u"the new name would be empty";
    case Reason::TargetExists:
        return u"the new name is there already";
    case Reason::TwoToOne:
        return u"another entry gets the same name";
    case Reason::StemTaken:
        return u"files that do not belong to it get the same name";
    case Reason::NoFreeNumber:
        return u"every number is taken";
    case Reason::CompanionRefused:
        return u"a file that it belongs to cannot get its name";
    case Reason::NewLoneSurrogate:
        return u"the new name would hold half a character, or a byte that is not UTF-8";
    case Reason::DotName:
        return u"the new name would be . or ..";
    case Reason::ForbiddenCharacter:
        return u"the new name would hold a forbidden character";
    case Reason::TooLong:
        return u"the new name would be too long";
    case Reason::ReservedWord:
        return u"the new name would be a reserved word";
    case Reason::InsideItself:
        return u"the folder would end up inside itself";
    case Reason::PlaceKept:
        return u"the new path is taken by an entry that keeps it";
    case Reason::FolderKept:
        return u"its folder cannot be made: an entry keeps the path";
    case Reason::Stopped:
        return u"another entry's name is taken";
    case Reason::TrailingDotOrBlank:
        return u"the new name would end in a dot or a blank";
    }
    return {};
}

std::u16string_view WarningFor(NameFault fault)
{
    switch (fault) {
    case NameFault::ForbiddenCharacter:
        return u"Windows forbids a character of the new name";
    case NameFault::ReservedWord:
        return u"the new name is reserved on Windows";
    case NameFault::TrailingDotOrBlank:
        return u"on Windows no name ends in a dot or a blank";
    case NameFault::None:
    case NameFault::NoName:
    case NameFault::TooLong:
        break;
    }
    return {};
}

RenameResults::RenameResults(const Model::EntryList& list, std::vector<Decision> decisions, Causes causes)
    : m_list(list), m_decisions(std::move(decisions)), m_causes(std::move(causes))
{
    for (std::uint32_t entry = 0; entry < m_decisions.size(); ++entry)
        if (const std::uint32_t error = CauseOf(entry))
            m_causes.emplace(entry, Text::ErrorText(error));
}

/// The system's error code if something could not be read and the entry has no name for that reason; else 0.
std::uint32_t RenameResults::CauseOf(std::uint32_t entry) const
{
    const Decision& decision = m_decisions[entry];
    if (decision.reason == Reason::FolderNotRead)
        return m_list.folders[decision.folder].error;
    if (decision.reason == Reason::PictureNotRead || decision.reason == Reason::ContentNotRead)
        return Media::ReadMedia(m_list.PathOf(m_list.entries[entry]), {}).error;
    return 0;
}

void RenameResults::Set(std::uint32_t entry, const Model::Outcome& outcome)
{
    if (outcome.status == Model::Status::Done)
        return;
    m_decisions[entry].status = outcome.status;
    m_decisions[entry].reason = Reason::None;
    if (!outcome.reason.IsEmpty())
        m_causes.insert_or_assign(entry, outcome.reason);
}

Model::Result RenameResults::At(std::size_t index) const
{
    const Model::Entry& entry = m_list.entries[index];
    const Decision& decision = m_decisions[index];
    const auto pathOf = [this](std::uint32_t folder, std::u16string_view name) {
        return Model::ResultPath{m_list.folders[folder].path, m_list.folders[folder].shown, name};
    };
    Model::Result result;
    result.kind = "rename";
    result.from = pathOf(entry.folder, entry.name);
    if (!decision.name.IsEmpty())
        result.to = pathOf(decision.folder, decision.name);
    result.status = decision.status;
    result.reason = WordsFor(decision.reason);
    if (const auto cause = m_causes.find(static_cast<std::uint32_t>(index)); cause != m_causes.end())
        result.reason = Model::ReasonAndCause(result.reason, cause->second);
    if (decision.IsRename()) {
        result.dateFrom = WordsFor(decision.datesTaken);
        result.warning = WarningFor(decision.warning);
    }
    return result;
}

} // namespace VyrHost::Rename
