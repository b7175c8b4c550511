// Judges new names: what the system forbids, and halves of characters.
#include <VyrHost/rename/NameValidator.h>

#include <VyrPlatform/text/Surrogates.h>

#include <cstddef>

namespace VyrHost::Rename {

namespace {

using VyrHostPlatform::NameFault;

/// The index of the first lone surrogate from `start` on.
std::size_t FindLoneSurrogate(std::u16string_view text, std::size_t start)
{
    for (std::size_t index = start; index < text.size(); ++index) {
        if (VyrPlatform::BeginsWithPair(text.substr(index)))
            ++index;
        else if (VyrPlatform::IsSurrogate(text[index]))
            return index;
    }
    return std::u16string_view::npos;
}

bool HasLoneSurrogate(std::u16string_view text, char16_t surrogate)
{
    std::size_t found = FindLoneSurrogate(text, 0);
    while (found != std::u16string_view::npos && text[found] != surrogate)
        found = FindLoneSurrogate(text, found + 1);
    return found != std::u16string_view::npos;
}

bool HasNewLoneSurrogate(std::u16string_view newName, std::u16string_view oldName)
{
    for (std::size_t found = FindLoneSurrogate(newName, 0); found != std::u16string_view::npos;
         found = FindLoneSurrogate(newName, found + 1))
        if (!HasLoneSurrogate(oldName, newName[found]))
            return true;
    return false;
}

Reason ReasonOf(NameFault fault)
{
    switch (fault) {
    case NameFault::NoName:
        return Reason::DotName;
    case NameFault::ForbiddenCharacter:
        return Reason::ForbiddenCharacter;
    case NameFault::TooLong:
        return Reason::TooLong;
    case NameFault::ReservedWord:
        return Reason::ReservedWord;
    case NameFault::TrailingDotOrBlank:
        return Reason::TrailingDotOrBlank;
    case NameFault::None:
        break;
    }
    return Reason::None;
}

} // namespace

NameValidity ValidateName(std::u16string_view newName, std::u16string_view oldName)
{
    const VyrHostPlatform::NameVerdict verdict = VyrHostPlatform::CheckName(newName);
    if (verdict.isError)
        return {ReasonOf(verdict.fault), NameFault::None};
    if (HasNewLoneSurrogate(newName, oldName))
        return {Reason::NewLoneSurrogate, NameFault::None};
    const bool isNew = verdict.fault != NameFault::None && VyrHostPlatform::CheckName(oldName).fault != verdict.fault;
    return {Reason::None, isNew ? verdict.fault : NameFault::None};
}

} // namespace VyrHost::Rename
