// Journal files: their names, their order, their removal.
#include <VyrHost/batch/JournalFolder.h>

#include <VyrHost/batch/KeptFiles.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/time/Clock.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::Kind;

constexpr std::array<std::pair<BatchPhase, const char16_t*>, 4> endings{{{BatchPhase::Applying, u".applying"},
                                                                         {BatchPhase::Applied, u".applied"},
                                                                         {BatchPhase::Undoing, u".taking-back"},
                                                                         {BatchPhase::Undone, u".taken-back"}}};
/// The ending of a journal that is not yet complete: its batch has not begun.
constexpr const char16_t* newEnding = u".new";
constexpr const char16_t* abandonedEnding = u".abandoned";
constexpr const char16_t* lockName = u"lock";
constexpr int digits = 6;
/// How much of a journal is read first to find its heading or its checkpoints: more than most of them take.
constexpr std::uint64_t firstPart = 4096;
constexpr std::uint64_t partGrowth = 4;

/// @param undo  0 for a batch that was never undone.
CString NameOf(std::uint32_t number, const char16_t* ending, std::uint32_t undo = 0)
{
    CString name;
    if (undo == 0)
        name.Format(u"%06u%s", number, ending);
    else
        name.Format(u"%06u%s-%06u", number, ending, undo);
    return name;
}

const char16_t* EndingOf(BatchPhase phase)
{
    return std::find_if(endings.begin(), endings.end(), [phase](const auto& pair) { return pair.first == phase; })
        ->second;
}

/// `text` as a number; 0 when it is not a number.
std::uint32_t ParseNumber(std::u16string_view text)
{
    std::uint64_t number = 0;
    if (text.size() < digits || text.size() > digits + 3)
        return 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9')
            return 0;
        number = number * 10 + (unit - u'0');
    }
    return static_cast<std::uint32_t>(number);
}

/// The number before `name`'s dot; 0 when there is none.
std::uint32_t NumberOf(std::u16string_view name)
{
    return ParseNumber(name.substr(0, name.find(u'.')));
}

/// The number after `name`'s last hyphen; 0 when there is none.
std::uint32_t UndoOf(std::u16string_view name)
{
    const std::size_t hyphen = name.rfind(u'-');
    return hyphen == name.npos ? 0 : ParseNumber(name.substr(hyphen + 1));
}

/// The journal with this name; nothing when it is not the name of a journal.
std::optional<JournalFile> FileOf(std::u16string_view name, const CString& path)
{
    const std::uint32_t number = NumberOf(name);
    const std::uint32_t undo = UndoOf(name);
    if (number == 0)
        return {};
    for (const auto& [phase, ending] : endings)
        if (name == NameOf(number, ending, undo))
            return JournalFile{number, phase, undo, path};
    return {};
}

/// The moment `days` before `now`.
VyrPlatform::FileTicks OldestKept(VyrPlatform::FileTicks now, std::int64_t days)
{
    constexpr VyrPlatform::FileTicks ticksPerDay = VyrPlatform::secondsPerDay * VyrPlatform::ticksPerSecond;
    return days < now / ticksPerDay ? now - days * ticksPerDay : 0;
}

std::string ReadPart(const VyrPlatform::FileReader& reader, std::uint64_t offset, std::uint64_t count)
{
    std::string text(static_cast<std::size_t>(count), '\0');
    text.resize(reader.ReadAt(offset, std::as_writable_bytes(std::span(text))));
    return text;
}

} // namespace

bool IsEnded(BatchPhase phase)
{
    return phase == BatchPhase::Applied || phase == BatchPhase::Undone;
}

std::vector<VyrPlatform::FileIdentity> IdentitiesOnPath(const CString& path)
{
    std::vector<VyrPlatform::FileIdentity> identities;
    for (const CString& written : {VyrPlatform::GetFullPath(path), VyrPlatform::GetRealPath(path)}) {
        // A path with a separator at its end follows a link, one without queries the link itself. A root always has
        // one.
        for (std::u16string_view at = written; !Model::FolderPart(at).empty();
             at = at.substr(0, Model::FolderPart(at).size() - 1))
            for (const std::u16string_view seen : {at, Model::FolderPart(at)})
                if (const VyrPlatform::FileState state = VyrPlatform::LookAtFile(seen); state.error == 0)
                    identities.push_back(state.identity);
    }
    return identities;
}

JournalFolder::JournalFolder(FileOperations& files, const CString& path, const JournalKeeping& keeping)
    : m_files(files), m_path(path), m_keeping(keeping)
{}

CString JournalFolder::Lock(const LockWait& wait)
{
    if (VyrLibraryUtils::FolderUtils::CreateFolderPathExists(m_path) == 0)
        return CString::Join({u"the folder for the journal cannot be made: ", m_path});
    do
        m_lock = std::make_unique<VyrHostPlatform::FileLock>(PathOf(lockName));
    while (m_lock->IsTaken() && wait && wait());
    if (m_lock->IsHeld())
        return {};
    if (m_lock->IsTaken())
        return u"another vyr is still at work; try again later";
    return CString::Join({u"the journal in ", m_path, u" cannot be locked: ", Text::ErrorText(m_lock->Error())});
}

bool JournalFolder::IsLockedByAnother() const
{
    return VyrHostPlatform::FileLock(PathOf(lockName)).IsTaken();
}

const std::vector<VyrPlatform::FileIdentity>& JournalFolder::PathIdentities() const
{
    if (!m_pathIdentities)
        m_pathIdentities = IdentitiesOnPath(m_path);
    return *m_pathIdentities;
}

std::u16string_view JournalFolder::ReasonToStay(std::u16string_view name, const VyrPlatform::FileState& state) const
{
    if (!MayHaveToStay(name, state.kind))
        return {};
    if (state.kind == Kind::File)
        return VyrPlatform::LookAtFile(PathOf(name)).identity == state.identity
                   ? u"it is part of the journal that \"vyr undo\" needs"
                   : u"";
    return std::find(PathIdentities().begin(), PathIdentities().end(), state.identity) != PathIdentities().end()
               ? u"the journal that \"vyr undo\" needs is kept in it"
               : u"";
}

bool JournalFolder::MayHaveToStay(std::u16string_view name, Kind kind)
{
    return kind != Kind::File || name == lockName || FileOf(name, {});
}

std::vector<JournalFile> JournalFolder::List() const
{
    std::vector<JournalFile> journals;
    for (VyrPlatform::FolderListing listing(m_path); listing.Next();) {
        const std::optional<JournalFile> journal = FileOf(listing.Name(), PathOf(listing.Name()));
        if (journal)
            journals.push_back(*journal);
    }
    std::sort(journals.begin(), journals.end(),
              [](const JournalFile& left, const JournalFile& right) { return left.number < right.number; });
    return journals;
}

std::optional<JournalFile> JournalFolder::FindOpen() const
{
    for (const JournalFile& journal : List())
        if (!IsEnded(journal.phase))
            return journal;
    return {};
}

std::optional<std::string> JournalFolder::Read(const JournalFile& file, std::uint32_t& error) const
{
    const VyrPlatform::FileReader reader(file.path);
    error = reader.Error();
    if (!reader.IsOpen())
        return {};
    return ReadPart(reader, 0, reader.Size());
}

std::optional<std::string> JournalFolder::ReadBeginning(const JournalFile& file, std::uint32_t& error) const
{
    const VyrPlatform::FileReader reader(file.path);
    error = reader.Error();
    if (!reader.IsOpen())
        return {};
    for (std::uint64_t count = firstPart;; count *= partGrowth) {
        std::string text = ReadPart(reader, 0, std::min(reader.Size(), count));
        if (HasHeading(text) || count >= reader.Size())
            return text;
    }
}

std::string JournalFolder::ReadCheckpoints(const JournalFile& file) const
{
    const VyrPlatform::FileReader reader(file.path);
    for (std::uint64_t count = firstPart;; count *= partGrowth) {
        const std::uint64_t offset = reader.Size() - std::min(reader.Size(), count);
        const std::string tail = ReadPart(reader, offset, reader.Size() - offset);
        const std::string_view checkpoints = FindCheckpoints(tail);
        if (!checkpoints.empty() || offset == 0)
            return std::string(checkpoints);
    }
}

std::uint32_t JournalFolder::Begin(Journal& journal, JournalFile& file)
{
    file.number = NextNumber();
    file.phase = BatchPhase::Applying;
    file.path = PathOf(NameOf(file.number, EndingOf(file.phase)));
    journal.heading.number = file.number;
    const CString newPath = PathOf(NameOf(file.number, newEnding));
    const auto content = [&journal](const VyrHostPlatform::DurableFile::TakePiece& take) {
        journal.check = WriteJournal(journal, take);
    };
    std::uint32_t error = m_files.WriteNew(newPath, content);
    // A program that was killed while it wrote its journal leaves an incomplete one.
    if (error && m_files.Remove(newPath) == 0)
        error = m_files.WriteNew(newPath, content);
    if (error)
        return error;
    error = m_files.RenameFile(newPath, file.path);
    if (error) {
        static_cast<void>(m_files.Remove(newPath));
        return error;
    }
    error = Flush();
    if (error)
        static_cast<void>(m_files.Remove(file.path));
    else
        RemoveOld();
    return error;
}

std::uint32_t JournalFolder::Append(const JournalFile& file, std::string_view text)
{
    return m_files.Append(file.path, text);
}

std::uint32_t JournalFolder::SetPhase(JournalFile& file, BatchPhase phase)
{
    const CString path = PathOf(NameOf(file.number, EndingOf(phase), file.undo));
    const std::uint32_t error = path == file.path ? 0 : m_files.RenameFile(file.path, path);
    if (!error) {
        file.phase = phase;
        file.path = path;
    }
    return error;
}

std::uint32_t JournalFolder::Flush()
{
    return m_files.FlushFolder(m_path);
}

std::uint32_t JournalFolder::Abandon(JournalFile& file)
{
    const CString path = PathOf(NameOf(file.number, abandonedEnding, file.undo));
    const std::uint32_t error = m_files.RenameFile(file.path, path);
    if (error)
        return error;
    file.path = path;
    return Flush();
}

/// The journal comes first: without it nobody needs the kept files.
std::uint32_t JournalFolder::Remove(const JournalFile& file)
{
    const std::uint32_t error = m_files.Remove(file.path);
    if (!error)
        RemoveKept(m_files, m_path, file.number);
    return error;
}

CString JournalFolder::PathOf(const CString& name) const
{
    return FileUtils::GetCombinePath(m_path, name);
}

/// One more than the largest number in use, including those of undos and abandoned journals.
std::uint32_t JournalFolder::NextNumber() const
{
    std::uint32_t highest = 0;
    for (VyrPlatform::FolderListing listing(m_path); listing.Next();) {
        const std::uint32_t number = NumberOf(listing.Name());
        if (listing.Name() != NameOf(number, newEnding))
            highest = std::max({highest, number, UndoOf(listing.Name())});
    }
    return highest + 1;
}

void JournalFolder::RemoveOld()
{
    const std::optional<VyrPlatform::FileTicks> now = VyrPlatform::FileTimes::FromLocal(VyrPlatform::Clock::Now());
    const std::vector<JournalFile> journals = List();
    for (std::size_t index = 0; index < journals.size(); ++index) {
        const JournalFile& journal = journals[index];
        if (!IsEnded(journal.phase))
            continue;
        const bool isBeyond = index + m_keeping.batches < journals.size();
        if (isBeyond || (now && VyrPlatform::LookAtFile(journal.path).modified < OldestKept(*now, m_keeping.days)))
            static_cast<void>(Remove(journal));
    }
    RemoveOrphans(m_files, m_path);
}

} // namespace VyrHost::Batch
