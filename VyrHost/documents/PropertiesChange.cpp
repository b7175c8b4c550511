// Replaces documents, and writes the changes for the journal.
//
// Before: "SIZE CHECK", and ";TEXT" for each property that is changed: what it was, in words. After: "all" or "some",
// and ";NAME" for each that is removed, ";NAME TEXT" or ";NAME TICKS" for each that is set. Texts are the hexadecimal
// digits of their UTF-16 units, the low byte first.
//
// The name of the old document that is kept ends with "SIZE CHECK" of the new one.
#include <VyrHost/documents/Properties.h>

#include <VyrHost/documents/Document.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Pieces.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <span>
#include <utility>
#include <zlib.h>

namespace VyrHost::Documents {

namespace {

using Model::ChangeLook;
using Model::ChangeState;
using Text::FromHex;
using Text::ReadWhole;
using Text::TakeUpTo;
using Text::ToHex;
using VyrLibraryUtils::FileUtils;
using VyrPlatform::DocumentReplacement;
using VyrPlatform::FileReader;
using VyrPlatform::FolderListing;
namespace DurableFile = VyrHostPlatform::DurableFile;
namespace Result = VyrPlatform::PropertyStorage::Result;

constexpr std::u16string_view allCleared = u"all";
constexpr std::u16string_view someCleared = u"some";

std::string HexBytes(const CString& text)
{
    std::string bytes(text.View().size() * 2, '\0');
    if (!bytes.empty())
        std::memcpy(bytes.data(), text.GetString(), bytes.size());
    return bytes;
}

std::optional<CString> FromHexBytes(std::u16string_view hex)
{
    const std::optional<std::string> bytes = FromHex(hex);
    if (!bytes || bytes->size() % 2 != 0)
        return std::nullopt;
    std::u16string units(bytes->size() / 2, u'\0');
    if (!units.empty())
        std::memcpy(units.data(), bytes->data(), bytes->size());
    return CString(units);
}

CString TextOf(const Fingerprint& fingerprint)
{
    CString text;
    text.Format(u"%s %08x", VyrPlatform::Encoding::FromUtf8(std::to_string(fingerprint.size)), fingerprint.check);
    return text;
}

std::optional<Fingerprint> ReadFingerprint(std::u16string_view text)
{
    const auto size = ReadWhole(TakeUpTo(text, u' '));
    const auto check = ReadWhole(text, 16);
    if (!size || *size < 0 || !check || *check < 0 || *check > 0xFFFFFFFF)
        return std::nullopt;
    return Fingerprint{static_cast<std::uint64_t>(*size), static_cast<std::uint32_t>(*check)};
}

/// The path at which the old document is kept; it identifies the new one.
CString KeptPath(const CString& kept, const Fingerprint& newDocument)
{
    return CString::Join({kept, u".", TextOf(newDocument)});
}

/// Removes the kept name of a document that has two: the program was killed between keeping the document and replacing
/// it.
void RemoveSecondName(const CString& path, const CString& kept)
{
    const VyrPlatform::FileState state = VyrPlatform::LookAtFile(path);
    if (state.kind == VyrPlatform::FileSystem::Kind::File && state.links == 1)
        return;
    const CString folder = Model::FolderPart(kept);
    const CString beginning = kept.Mid(folder.GetLength()) + u".";
    for (FolderListing listing(folder); listing.Next();)
        if (listing.Name().View().starts_with(beginning.View()))
            static_cast<void>(DurableFile::Remove(FileUtils::GetCombinePath(folder, listing.Name())));
}

CString Joined(const CString& list, std::initializer_list<std::u16string_view> parts)
{
    CString joined = list;
    if (!joined.IsEmpty())
        joined += u", ";
    for (const std::u16string_view part : parts)
        joined += part;
    return joined;
}

const PropertyName* FindById(std::uint32_t id)
{
    const auto names = PropertyNames();
    const auto found =
        std::find_if(names.begin(), names.end(), [id](const PropertyName& known) { return known.id == id; });
    return found == names.end() ? nullptr : &*found;
}

/// Reads "NAME", "NAME TEXT" or "NAME TICKS".
bool ReadValue(std::u16string_view piece, VyrPlatform::PropertyEdit& edit)
{
    const bool isSet = piece.find(u' ') != std::u16string_view::npos;
    const PropertyName* const property = FindProperty(TakeUpTo(piece, u' '));
    if (!property || edit.Names(property->id) || (isSet && property->kind == PropertyKind::Picture))
        return false;
    if (isSet && property->kind == PropertyKind::Time) {
        const auto ticks = ReadWhole(piece);
        return ticks && *ticks > 0 && edit.times.emplace(property->id, *ticks).second;
    }
    const auto text = isSet ? FromHexBytes(piece) : std::nullopt;
    return isSet == text.has_value() && edit.values.emplace(property->id, text).second;
}

bool ReadAfter(std::u16string_view text, VyrPlatform::PropertyEdit& edit)
{
    const std::u16string_view first = TakeUpTo(text, u';');
    edit.clearsAll = first == allCleared;
    bool isSound = first == allCleared || first == someCleared;
    while (isSound && !text.empty())
        isSound = ReadValue(TakeUpTo(text, u';'), edit);
    return isSound && (edit.clearsAll || edit.NamesAny());
}

bool ReadBefore(std::u16string_view text, PropertiesChange::Document& document)
{
    const auto fingerprint = ReadFingerprint(TakeUpTo(text, u';'));
    if (!fingerprint)
        return false;
    document.fingerprint = *fingerprint;
    while (!text.empty()) {
        const auto shown = FromHexBytes(TakeUpTo(text, u';'));
        if (!shown)
            return false;
        document.shown.push_back(*shown);
    }
    return true;
}

} // namespace

std::optional<Fingerprint> FingerprintOf(const FileReader& reader)
{
    if (!reader.IsOpen())
        return std::nullopt;
    Fingerprint fingerprint;
    std::vector<std::byte> piece(std::size_t{1} << 16);
    while (fingerprint.size < reader.Size()) {
        const std::size_t count = reader.ReadAt(fingerprint.size, piece);
        if (count == 0)
            return std::nullopt;
        const auto* const bytes = reinterpret_cast<const unsigned char*>(piece.data());
        fingerprint.check = static_cast<std::uint32_t>(crc32_z(fingerprint.check, bytes, count));
        fingerprint.size += count;
    }
    return fingerprint;
}

CString ShownTime(VyrPlatform::FileTicks ticks)
{
    const COleDateTime local = VyrPlatform::FileTimes::ToLocal(ticks);
    CString text;
    if (local.GetStatus() == COleDateTime::valid)
        text.Format(u"%04d-%02d-%02d %02d:%02d:%02d", local.GetYear(), local.GetMonth(), local.GetDay(),
                    local.GetHour(), local.GetMinute(), local.GetSecond());
    return text;
}

std::shared_ptr<const Model::Change> PropertiesChange::Read(const CString& before, const CString& after)
{
    auto document = std::make_shared<Document>();
    if (!ReadBefore(before, *document) || !ReadAfter(after, document->edit))
        return nullptr;
    return std::make_shared<PropertiesChange>(std::move(document));
}

CString PropertiesChange::Before() const
{
    CString text = TextOf(m_document->fingerprint);
    for (const CString& shown : m_document->shown)
        text += CString::Join({u";", ToHex(HexBytes(shown))});
    return text;
}

CString PropertiesChange::After() const
{
    CString text = m_document->edit.clearsAll ? allCleared : someCleared;
    for (const auto& [id, value] : m_document->edit.values) {
        text += CString::Join({u";", FindById(id)->name});
        if (value)
            text += CString::Join({u" ", ToHex(HexBytes(*value))});
    }
    for (const auto& [id, ticks] : m_document->edit.times)
        text += CString::Join({u";", FindById(id)->name, u" ", VyrPlatform::Encoding::FromUtf8(std::to_string(ticks))});
    return text;
}

CString PropertiesChange::ShownBefore() const
{
    CString text;
    for (const CString& shown : m_document->shown)
        text = Joined(text, {shown});
    return text;
}

CString PropertiesChange::ShownAfter() const
{
    const bool clearsAll = m_document->edit.clearsAll;
    CString text;
    for (const auto& [id, value] : m_document->edit.values) {
        const CString name = FindById(id)->name;
        if (value)
            text = Joined(text, {name, u" \"", *value, u"\""});
        else if (!clearsAll)
            text = Joined(text, {u"no ", name});
    }
    for (const auto& [id, ticks] : m_document->edit.times)
        text = Joined(text, {FindById(id)->name, u" ", ShownTime(ticks)});
    if (!clearsAll)
        return text;
    return text.IsEmpty() ? CString(u"no properties") : Joined(text, {u"nothing else"});
}

std::shared_ptr<const Model::Change> PropertiesChange::KeepingAt(const CString& kept) const
{
    return std::make_shared<PropertiesChange>(m_document, kept);
}

void PropertiesChange::Repair(const CString& path) const
{
    DocumentReplacement::RemoveLeftover(path);
    RemoveSecondName(path, m_kept);
}

ChangeLook PropertiesChange::Look(const CString& path) const
{
    const FileReader reader(path);
    if (!reader.IsOpen())
        return {ChangeState::Unknown, reader.Error()};
    const auto now = FingerprintOf(reader);
    if (now == m_document->fingerprint)
        return {ChangeState::Before, 0};
    const bool isNew = now && VyrPlatform::FileSystem::Exists(KeptPath(m_kept, *now));
    return {isNew ? ChangeState::After : ChangeState::Other, 0};
}

std::uint32_t PropertiesChange::Apply(const CString& path) const
{
    RemoveSecondName(path, m_kept);
    auto replacement = DocumentReplacement::WithProperties(path, m_document->edit, HandlerOf(path));
    if (replacement.Error() != Result::ok)
        return replacement.Error();
    const std::uint32_t error = Keep(replacement);
    return error ? error : replacement.Commit();
}

std::uint32_t PropertiesChange::Keep(DocumentReplacement& replacement) const
{
    const auto newDocument = FingerprintOf(FileReader(replacement.NewPath()));
    if (!newDocument || VyrLibraryUtils::FolderUtils::CreateFolderPathExists(Model::FolderPart(m_kept)) == 0)
        return Result::writeFault;
    const CString kept = KeptPath(m_kept, *newDocument);
    // Left by the batch before it was undone.
    static_cast<void>(DurableFile::Remove(kept));
    if (const std::uint32_t error = replacement.Keep(kept))
        return error;
    return FingerprintOf(FileReader(kept)) == m_document->fingerprint ? std::uint32_t{Result::ok}
                                                                      : std::uint32_t{Result::shareViolation};
}

std::uint32_t PropertiesChange::Undo(const CString& path) const
{
    const auto newDocument = FingerprintOf(FileReader(path));
    if (!newDocument)
        return Result::writeFault;
    auto replacement = DocumentReplacement::WithContent(path, KeptPath(m_kept, *newDocument));
    if (replacement.Error() != Result::ok)
        return replacement.Error();
    // Somebody may have modified the kept file.
    if (FingerprintOf(FileReader(replacement.NewPath())) != m_document->fingerprint)
        return Result::damaged;
    return replacement.Commit();
}

Model::ChangeKinds Kinds()
{
    return {{std::string(PropertiesChange::kind), PropertiesChange::Read}};
}

} // namespace VyrHost::Documents
