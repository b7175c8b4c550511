// Words problems.
#include <VyrHost/foldercopy/TransferProblem.h>

#include <VyrHost/text/ErrorText.h>

#include <string_view>

namespace VyrHost::FolderCopy {

namespace {

std::u16string_view WordsFor(TransferFault fault)
{
    switch (fault) {
    case TransferFault::TargetExists:
        return u"the new path is there already";
    case TransferFault::TwoNamesInOne:
        return u"another entry's name is the same there";
    case TransferFault::TargetNotRead:
        return u"the folder where it would go cannot be read";
    case TransferFault::NotRead:
        return u"the folder cannot be read";
    case TransferFault::NoContent:
        return u"a pipe or a device has no content";
    case TransferFault::NoFolder:
        return u"its folder could not be made";
    case TransferFault::Differs:
        return u"what is there now is something else";
    case TransferFault::StillAtSource:
        return u"it has come there, but could not be removed here";
    case TransferFault::NotEmpty:
        return u"something new is in it";
    case TransferFault::FolderNotSet:
        return u"the times or permissions of the folder could not be set";
    case TransferFault::System:
        break;
    }
    return {};
}

} // namespace

CString ReasonOf(const TransferProblem& problem)
{
    const std::u16string_view words = WordsFor(problem.fault);
    if (problem.error == 0)
        return words;
    return CString::Join({words, words.empty() ? u"" : u": ", Text::ErrorText(problem.error)});
}

} // namespace VyrHost::FolderCopy
