// Words for statuses, reasons and warnings.
#include <VyrHost/output/Words.h>

#include <VyrPlatform/text/Encoding.h>

namespace VyrHost {

using VyrHostPlatform::NameFault;

std::string_view WordFor(Status status)
{
    switch (status) {
    case Status::Renamed:
        return "renamed";
    case Status::Numbered:
        return "numbered";
    case Status::Unchanged:
        return "unchanged";
    case Status::Skipped:
        return "skipped";
    case Status::Failed:
        return "failed";
    case Status::NotReached:
        return "not reached";
    case Status::Refused:
        break;
    }
    return "refused";
}

Status StatusOf(RenameOutcome outcome)
{
    switch (outcome) {
    case RenameOutcome::Done:
        return Status::Renamed;
    case RenameOutcome::Failed:
        return Status::Failed;
    case RenameOutcome::Refused:
        return Status::Refused;
    case RenameOutcome::NotReached:
        break;
    }
    return Status::NotReached;
}

std::string_view WordsFor(Reason reason)
{
    switch (reason) {
    case Reason::None:
    case Reason::Applying:
        break;
    case Reason::NoSuchEntry:
        return "nothing of that name is there";
    case Reason::FolderNotRead:
        return "its folder cannot be read";
    case Reason::NoDate:
        return "it has no date of the kind asked for";
    case Reason::NamelessFolder:
        return "the name of its new folder would be empty, . or ..";
    case Reason::BadFolder:
        return "a folder of that name cannot be made";
    case Reason::OtherFileSystem:
        return "the new path is on another file system";
    case Reason::EmptyName:
        return "the new name would be empty";
    case Reason::TargetExists:
        return "the new name is there already";
    case Reason::TwoToOne:
        return "another entry gets the same name";
    case Reason::NoFreeNumber:
        return "every number is taken";
    case Reason::CompanionRefused:
        return "a file that it belongs to cannot get its name";
    case Reason::NewLoneSurrogate:
        return "the new name would hold half a character";
    case Reason::DotName:
        return "the new name would be . or ..";
    case Reason::ForbiddenCharacter:
        return "the new name would hold a forbidden character";
    case Reason::TooLong:
        return "the new name would be too long";
    case Reason::ReservedWord:
        return "the new name would be a reserved word";
    case Reason::Stopped:
        return "another entry's name is taken";
    case Reason::TrailingDotOrBlank:
        return "the new name would end in a dot or a blank";
    }
    return {};
}

std::string ReasonFor(const Outcome& outcome, std::size_t index)
{
    std::string text(WordsFor(outcome.decisions[index].reason));
    const auto cause = outcome.causes.find(static_cast<std::uint32_t>(index));
    if (cause != outcome.causes.end())
        text.append(text.empty() ? "" : ": ").append(VyrPlatform::Encoding::ToUtf8(cause->second));
    return text;
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

} // namespace VyrHost
