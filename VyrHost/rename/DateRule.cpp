// Chooses the date, lets the engine write it, and puts in camera and folders.
#include <VyrHost/rename/DateRule.h>

#include <VyrHost/rename/PictureAccess.h>
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

/// Whether a name begins or ends where a text does.
struct Edges
{
    bool isStart;
    bool isEnd;
};

/// Puts `value` in place of every `token`. Where it is empty, a blank beside the token goes too, unless that would join
/// two words.
CString PutIn(const CString& text, std::u16string_view token, std::u16string_view value, Edges edges)
{
    std::u16string result;
    std::u16string_view rest = text;
    for (std::size_t found = rest.find(token); found != std::u16string_view::npos; found = rest.find(token)) {
        result.append(rest.substr(0, found)).append(value);
        rest.remove_prefix(found + token.size());
        if (!value.empty())
            continue;
        const bool isBehindBlank = result.ends_with(u' ');
        const bool begins = result.empty() ? edges.isStart : result.ends_with(Token::Folder);
        const bool ends = rest.empty() ? edges.isEnd : rest.starts_with(Token::Folder);
        if (rest.starts_with(u' ') && (isBehindBlank || begins))
            rest.remove_prefix(1);
        else if (isBehindBlank && ends)
            result.pop_back();
    }
    return std::u16string_view(result.append(rest));
}

} // namespace

DateRule::DateRule(NameFuncs::ITEM settings, std::vector<Model::DateSource> sources)
    : EngineRule(std::move(settings)), m_sources(std::move(sources)),
      m_hasMake(m_item.dateTimeFormat.Find(Token::Make) >= 0),
      m_hasModel(m_item.dateTimeFormat.Find(Token::Model) >= 0),
      m_hasFolder(m_item.dateTimeFormat.Find(Token::Folder) >= 0)
{}

Reason DateRule::Apply(Subject& subject)
{
    const CString oldName = subject.name;
    Reason fault = ComputeDated(subject);
    if (fault != Reason::None || (!m_hasMake && !m_hasModel && !m_hasFolder))
        return fault;

    const int oldLength = m_item.dateTimePosition == 0 ? 0 : oldName.GetLength();
    const int textLength = subject.name.GetLength() - oldLength;
    subject.name =
        m_item.dateTimePosition == AfterName ? subject.name.Right(textLength) : subject.name.Left(textLength);
    fault = PutInCamera(subject, subject.name);
    if (fault == Reason::None && m_hasFolder)
        fault = TakeFolders(subject);
    if (m_item.dateTimePosition == BeforeName)
        subject.name += oldName;
    else if (m_item.dateTimePosition == AfterName)
        subject.name = oldName + subject.name;
    return fault;
}

Reason DateRule::ComputeDated(Subject& subject)
{
    const CString oldName = subject.name;
    const int oldLength = m_item.dateTimePosition == 0 ? 0 : oldName.GetLength();
    for (std::size_t rank = 0; rank < m_sources.size(); ++rank) {
        m_item.dateTimeTarget = static_cast<int>(m_sources[rank]);
        Compute(subject);
        // The engine writes nothing for a date that is not there.
        if (subject.name.GetLength() > oldLength) {
            subject.dateRank = std::max(subject.dateRank, rank);
            if (m_sources.size() > 1)
                subject.datesTaken.Add(m_sources[rank]);
            return Reason::None;
        }
        subject.name = oldName;
        if (m_sources[rank] == Model::DateSource::Picture && PictureReadError(subject.path) != 0) {
            subject.dateRank = std::max(subject.dateRank, rank);
            return Reason::PictureNotRead;
        }
    }
    return Reason::NoDate;
}

Reason DateRule::PutInCamera(const Subject& subject, CString& text) const
{
    const CString make = m_hasMake ? AsNamePart(ImageUtils::GetEquipMake(subject.path)) : CString();
    const CString model = m_hasModel ? AsNamePart(ImageUtils::GetEquipModel(subject.path)) : CString();
    const bool isSilent = (m_hasMake && make.IsEmpty()) || (m_hasModel && model.IsEmpty());
    if (isSilent && PictureReadError(subject.path) != 0)
        return Reason::PictureNotRead;
    const Edges edges{m_item.dateTimePosition != AfterName, m_item.dateTimePosition != BeforeName};
    text = PutIn(PutIn(text, Token::Make, make, edges), Token::Model, model, edges);
    return Reason::None;
}

Reason DateRule::TakeFolders(Subject& subject)
{
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    CString rest = subject.name;
    for (int end = rest.Find(Token::Folder); end >= 0; end = rest.Find(Token::Folder)) {
        const CString step = rest.Left(end);
        if (step.IsEmpty() || step == u"." || step == u"..")
            return Reason::NamelessFolder;
        subject.folder = CString::Join({subject.folder, step, std::u16string_view(&separator, 1)});
        rest = rest.Mid(end + static_cast<int>(Token::Folder.size()));
    }
    subject.name = rest;
    return Reason::None;
}

} // namespace VyrHost::Rename
