// Fills the engine's record, calls the engine, and splits its result.
#include <VyrHost/rename/Rule.h>

#include <VyrHost/model/DateSource.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <string>
#include <utility>

namespace VyrHost::Rename {

using VyrLibraryFuncs::NameFuncs;

NameFuncs::ITEM NewItem(NameFuncs::RenameType kind)
{
    NameFuncs::ITEM item;
    item.renameType = static_cast<int>(kind);
    return item;
}

NameFuncs::ITEM InsertItem(NameFuncs::AddDeleteType type, int position, std::u16string_view text)
{
    NameFuncs::ITEM item = NewItem(NameFuncs::RenameType::AddDelete);
    item.addDeleteType = static_cast<int>(type);
    item.position = position;
    item.addText = text;
    return item;
}

EngineRule::EngineRule(NameFuncs::ITEM settings) : m_item(std::move(settings)) {}

bool EngineRule::MayNumber() const
{
    return NameFuncs::IsResolveConflict(m_item) == 1;
}

Reason EngineRule::Apply(Subject& subject)
{
    Compute(subject);
    return Reason::None;
}

void EngineRule::Compute(Subject& subject)
{
    const auto kind = static_cast<NameFuncs::RenameType>(m_item.renameType);
    if (kind == NameFuncs::RenameType::Extension && subject.isFolder)
        return;
    // Adding and deleting may return the record's path itself, which must then be the path so far.
    m_item.filePath = kind == NameFuncs::RenameType::AddDelete
                          ? CString::Join({subject.folder, subject.name, subject.extension})
                          : subject.path;
    m_item.dirPath = subject.folder;
    m_item.fileName = subject.name;
    m_item.extension = subject.extension;
    m_item.index = subject.index;
    const CString path = NameFuncs::GetRenameFilePath(m_item);

    const int folderLength = subject.folder.GetLength();
    if (kind == NameFuncs::RenameType::Extension)
        subject.extension = path.Mid(folderLength + subject.name.GetLength());
    else
        subject.name = path.Mid(folderLength, path.GetLength() - folderLength - subject.extension.GetLength());
}

namespace {

using VyrLibraryUtils::ImageUtils;

using Position = NameFuncs::DateTimePosition;

/// Where the date goes.
Position PositionOf(const NameFuncs::ITEM& item)
{
    return static_cast<Position>(item.dateTimePosition);
}

/// How long the part of the engine's name is that is the old name.
int LengthOfOldName(const NameFuncs::ITEM& item, const CString& oldName)
{
    return PositionOf(item) == Position::Alone ? 0 : oldName.GetLength();
}

bool IsPortable(char16_t unit)
{
    constexpr std::u16string_view forbidden = u"<>:\"/\\|?*";
    return unit >= u' ' && unit != 0x7F && forbidden.find(unit) == std::u16string_view::npos;
}

/// The camera's maker or model, as a part of a name that every system allows.
CString AsNamePart(const CString& text)
{
    std::u16string part(text.View());
    std::replace_if(
        part.begin(), part.end(), [](char16_t unit) { return !IsPortable(unit); }, u'_');
    part.erase(0, part.find_first_not_of(u' '));
    part.erase(part.find_last_not_of(u' ') + 1);
    return std::u16string_view(part);
}

/// Whether a text is at the start or the end of a name.
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
        const bool begins = result.empty() ? edges.isStart : result.ends_with(Token::folder);
        const bool ends = rest.empty() ? edges.isEnd : rest.starts_with(Token::folder);
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
      m_hasMake(m_item.dateTimeFormat.Find(Token::make) >= 0),
      m_hasModel(m_item.dateTimeFormat.Find(Token::model) >= 0),
      m_hasFolder(m_item.dateTimeFormat.Find(Token::folder) >= 0)
{}

Reason DateRule::Apply(Subject& subject)
{
    const CString oldName = subject.name;
    Reason fault = ComputeDated(subject);
    if (fault != Reason::None || (!m_hasMake && !m_hasModel && !m_hasFolder))
        return fault;

    const Position position = PositionOf(m_item);
    const int textLength = subject.name.GetLength() - LengthOfOldName(m_item, oldName);
    subject.name = position == Position::AfterName ? subject.name.Right(textLength) : subject.name.Left(textLength);
    fault = PutInCamera(subject, subject.name);
    if (fault == Reason::None && m_hasFolder)
        fault = TakeFolders(subject);
    if (position == Position::BeforeName)
        subject.name += oldName;
    else if (position == Position::AfterName)
        subject.name = oldName + subject.name;
    return fault;
}

Reason DateRule::ComputeDated(Subject& subject)
{
    const CString oldName = subject.name;
    const int oldLength = LengthOfOldName(m_item, oldName);
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
        if (m_sources[rank] == Model::DateSource::PictureTaken && Model::PictureReadError(subject.path) != 0) {
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
    if (isSilent && Model::PictureReadError(subject.path) != 0)
        return Reason::PictureNotRead;
    const Edges edges{PositionOf(m_item) != Position::AfterName, PositionOf(m_item) != Position::BeforeName};
    text = PutIn(PutIn(text, Token::make, make, edges), Token::model, model, edges);
    return Reason::None;
}

Reason DateRule::TakeFolders(Subject& subject)
{
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    CString rest = subject.name;
    for (int end = rest.Find(Token::folder); end >= 0; end = rest.Find(Token::folder)) {
        const CString step = rest.Left(end);
        if (step.IsEmpty() || step == u"." || step == u"..")
            return Reason::NamelessFolder;
        subject.folder = CString::Join({subject.folder, step, std::u16string_view(&separator, 1)});
        rest = rest.Mid(end + static_cast<int>(Token::folder.size()));
    }
    subject.name = rest;
    return Reason::None;
}

} // namespace VyrHost::Rename
