// Fills the engine's record, calls the engine, and splits its result.
#include <VyrHost/rename/Rule.h>

#include <VyrHost/rename/TemplateTokens.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <string>
#include <utility>

namespace VyrHost::Rename {

using VyrLibraryFuncs::NameFuncs;

void SetWholeName(Subject& subject, const CString& whole)
{
    subject.extension = subject.isFolder ? CString() : VyrLibraryUtils::FileUtils::GetSplitExtension(whole, 1);
    subject.name = whole.Left(whole.GetLength() - subject.extension.GetLength());
}

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

/// Whether a text is at the start or the end of a name.
struct Edges
{
    bool isStart;
    bool isEnd;
};

/// Replaces every `token` with `value`. If that is empty, a blank beside the token is removed, too, unless that would
/// join two words.
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

FileValues& FileValuesOf(Subject& subject)
{
    subject.values.Enter(subject.path);
    return subject.values;
}

Reason StepDown(Subject& subject, const CString& name)
{
    if (name.IsEmpty() || name == u"." || name == u"..")
        return Reason::NamelessFolder;
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    subject.folder = CString::Join({subject.folder, name, std::u16string_view(&separator, 1)});
    return Reason::None;
}

DateRule::DateRule(std::u16string_view format, Position position, DateSettings settings)
    : m_format(format), m_position(position), m_settings(std::move(settings)),
      m_hasMake(format.find(Token::make) != format.npos), m_hasModel(format.find(Token::model) != format.npos),
      m_hasFolder(format.find(Token::folder) != format.npos), m_question(QuestionFor(m_settings))
{}

Reason DateRule::Apply(Subject& subject)
{
    CString text;
    Reason fault = WriteDate(subject, text);
    if (fault == Reason::None)
        fault = PutInCamera(subject, text);
    if (fault == Reason::None && m_hasFolder)
        fault = TakeFolders(subject, text);
    if (fault != Reason::None)
        return fault;
    if (m_position == Position::BeforeName)
        text += subject.name;
    else if (m_position == Position::AfterName)
        text = subject.name + text;
    subject.name = text;
    return Reason::None;
}

Reason DateRule::WriteDate(Subject& subject, CString& text) const
{
    const FoundDate date = FindDate(FileValuesOf(subject), m_settings, m_question);
    subject.dateRank = std::max(subject.dateRank, date.rank);
    if (date.reason != Reason::None)
        return date.reason;
    if (m_settings.sources.size() > 1)
        subject.datesTaken.Add(m_settings.sources[date.rank]);
    text = m_format.Write(date.moment);
    return Reason::None;
}

Reason DateRule::PutInCamera(Subject& subject, CString& text) const
{
    FileValues& values = FileValuesOf(subject);
    const CString make = m_hasMake ? values.Make() : CString();
    const CString model = m_hasModel ? values.Model() : CString();
    const bool isSilent = (m_hasMake && make.IsEmpty()) || (m_hasModel && model.IsEmpty());
    if (isSilent && values.ReadError() != 0)
        return Reason::PictureNotRead;
    const Edges edges{m_position != Position::AfterName, m_position != Position::BeforeName};
    text = PutIn(PutIn(text, Token::make, make, edges), Token::model, model, edges);
    return Reason::None;
}

Reason DateRule::TakeFolders(Subject& subject, CString& text)
{
    for (int end = text.Find(Token::folder); end >= 0; end = text.Find(Token::folder)) {
        if (const Reason fault = StepDown(subject, text.Left(end)); fault != Reason::None)
            return fault;
        text = text.Mid(end + static_cast<int>(Token::folder.size()));
    }
    return Reason::None;
}

} // namespace VyrHost::Rename
