// Chooses the date, lets the engine write it, and puts in camera and folders.
#include <VyrHost/rename/DateRule.h>

#include <VyrHost/rename/Tokens.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <string>
#include <utility>

namespace VyrHost::Rename {

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::ImageUtils;

namespace {

/// Where the old name stands in the new one, as ITEM::dateTimePosition counts.
constexpr int BeforeName = 1;
constexpr int AfterName = 2;

bool IsPortable(char16_t unit)
{
    constexpr std::u16string_view Forbidden = u"<>:\"/\\|?*";
    return unit >= u' ' && unit != 0x7F && Forbidden.find(unit) == std::u16string_view::npos;
}

/// What a camera says of itself, as a part of a name that every system can hold.
CString AsNamePart(const CString& text)
{
    std::u16string part(text.View());
    std::replace_if(
        part.begin(), part.end(), [](char16_t unit) { return !IsPortable(unit); }, u'_');
    part.erase(0, part.find_first_not_of(u' '));
    part.erase(part.find_last_not_of(u' ') + 1);
    return std::u16string_view(part);
}

} // namespace

DateRule::DateRule(NameFuncs::ITEM settings, std::vector<DateSource> sources)
    : EngineRule(std::move(settings)), m_sources(std::move(sources)),
      m_hasMake(m_item.dateTimeFormat.Find(Token::Make) >= 0),
      m_hasModel(m_item.dateTimeFormat.Find(Token::Model) >= 0),
      m_hasFolder(m_item.dateTimeFormat.Find(Token::Folder) >= 0)
{}

RuleFault DateRule::Apply(Subject& subject)
{
    const CString oldName = subject.name;
    if (!ComputeDated(subject))
        return RuleFault::NoDate;
    if (!m_hasMake && !m_hasModel && !m_hasFolder)
        return RuleFault::None;

    const int oldLength = m_item.dateTimePosition == 0 ? 0 : oldName.GetLength();
    const int textLength = subject.name.GetLength() - oldLength;
    CString text =
        m_item.dateTimePosition == AfterName ? subject.name.Right(textLength) : subject.name.Left(textLength);
    if (m_hasMake)
        text.Replace(Token::Make, AsNamePart(ImageUtils::GetEquipMake(subject.path)));
    if (m_hasModel)
        text.Replace(Token::Model, AsNamePart(ImageUtils::GetEquipModel(subject.path)));
    subject.name = text;
    const RuleFault fault = m_hasFolder ? TakeFolders(subject) : RuleFault::None;
    if (m_item.dateTimePosition == BeforeName)
        subject.name += oldName;
    else if (m_item.dateTimePosition == AfterName)
        subject.name = oldName + subject.name;
    return fault;
}

bool DateRule::ComputeDated(Subject& subject)
{
    const CString oldName = subject.name;
    const int oldLength = m_item.dateTimePosition == 0 ? 0 : oldName.GetLength();
    for (std::size_t rank = 0; rank < m_sources.size(); ++rank) {
        m_item.dateTimeTarget = static_cast<int>(m_sources[rank]);
        Compute(subject);
        // The engine writes nothing for a date that is not there.
        if (subject.name.GetLength() > oldLength) {
            subject.dateRank = std::max(subject.dateRank, rank);
            return true;
        }
        subject.name = oldName;
    }
    return false;
}

RuleFault DateRule::TakeFolders(Subject& subject)
{
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    CString rest = subject.name;
    for (int end = rest.Find(Token::Folder); end >= 0; end = rest.Find(Token::Folder)) {
        const CString step = rest.Left(end);
        if (step.IsEmpty() || step == u"." || step == u"..")
            return RuleFault::NamelessFolder;
        subject.folder = CString::Join({subject.folder, step, std::u16string_view(&separator, 1)});
        rest = rest.Mid(end + static_cast<int>(Token::Folder.size()));
    }
    subject.name = rest;
    return RuleFault::None;
}

} // namespace VyrHost::Rename
