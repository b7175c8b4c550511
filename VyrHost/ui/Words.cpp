// Words for statuses, reasons and warnings.
#include <VyrHost/ui/Words.h>

#include <VyrPlatform/text/Encoding.h>

namespace VyrHost::Ui {

using VyrHostPlatform::NameFault;

std::string_view WordFor(Model::Status status)
{
    switch (status) {
    case Model::Status::Renamed:
        return "renamed";
    case Model::Status::Numbered:
        return "numbered";
    case Model::Status::Unchanged:
        return "unchanged";
    case Model::Status::Skipped:
        return "skipped";
    case Model::Status::Failed:
        return "failed";
    case Model::Status::NotReached:
        return "not reached";
    case Model::Status::Refused:
        break;
    }
    return "refused";
}

Model::Status StatusOf(Model::RenameOutcome outcome)
{
    switch (outcome) {
    case Model::RenameOutcome::Done:
        return Model::Status::Renamed;
    case Model::RenameOutcome::Failed:
        return Model::Status::Failed;
    case Model::RenameOutcome::Refused:
        return Model::Status::Refused;
    case Model::RenameOutcome::NotReached:
        break;
    }
    return Model::Status::NotReached;
}

std::string_view WordsFor(Model::Reason reason)
{
    switch (reason) {
    case Model::Reason::None:
    case Model::Reason::Applying:
        break;
    case Model::Reason::NoSuchEntry:
        return "nothing of that name is there";
    case Model::Reason::FolderNotRead:
        return "its folder cannot be read";
    case Model::Reason::NoDate:
        return "it has no date of the kind asked for";
    case Model::Reason::PictureNotRead:
        return "the picture cannot be read";
    case Model::Reason::NamelessFolder:
        return "the name of its new folder would be empty, . or ..";
    case Model::Reason::BadFolder:
        return "a folder of that name cannot be made";
    case Model::Reason::OtherFileSystem:
        return "the new path is on another file system";
    case Model::Reason::EmptyName:
        return "the new name would be empty";
    case Model::Reason::TargetExists:
        return "the new name is there already";
    case Model::Reason::TwoToOne:
        return "another entry gets the same name";
    case Model::Reason::NoFreeNumber:
        return "every number is taken";
    case Model::Reason::CompanionRefused:
        return "a file that it belongs to cannot get its name";
    case Model::Reason::NewLoneSurrogate:
        return "the new name would hold half a character";
    case Model::Reason::DotName:
        return "the new name would be . or ..";
    case Model::Reason::ForbiddenCharacter:
        return "the new name would hold a forbidden character";
    case Model::Reason::TooLong:
        return "the new name would be too long";
    case Model::Reason::ReservedWord:
        return "the new name would be a reserved word";
    case Model::Reason::InsideItself:
        return "the folder would end up inside itself";
    case Model::Reason::PlaceKept:
        return "the new path is taken by an entry that keeps it";
    case Model::Reason::FolderKept:
        return "its folder cannot be made: an entry keeps the path";
    case Model::Reason::Stopped:
        return "another entry's name is taken";
    case Model::Reason::TrailingDotOrBlank:
        return "the new name would end in a dot or a blank";
    }
    return {};
}

std::string ReasonFor(const Model::Outcome& outcome, std::size_t index)
{
    std::string text(WordsFor(outcome.decisions[index].reason));
    const auto cause = outcome.causes.find(static_cast<std::uint32_t>(index));
    if (cause != outcome.causes.end())
        text.append(text.empty() ? "" : ": ").append(VyrPlatform::Encoding::ToUtf8(cause->second));
    return text;
}

std::string WordsFor(Model::DateSourceSet dates)
{
    std::string words;
    for (const auto& [source, word] : Model::DateSourceWords)
        if (dates.Has(source))
            words.append(words.empty() ? "" : ",").append(VyrPlatform::Encoding::ToUtf8(word));
    return words;
}

std::string_view WarningFor(NameFault fault)
{
    switch (fault) {
    case NameFault::ForbiddenCharacter:
        return "Windows forbids a character of the new name";
    case NameFault::ReservedWord:
        return "the new name is reserved on Windows";
    case NameFault::TrailingDotOrBlank:
        return "on Windows no name ends in a dot or a blank";
    case NameFault::None:
    case NameFault::NoName:
    case NameFault::TooLong:
        break;
    }
    return {};
}

} // namespace VyrHost::Ui
