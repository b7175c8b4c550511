#include "CompoundProperties.h"

#include <VyrPlatform/common/documents/PropertySetStream.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace VyrPlatform {

namespace {

namespace Result = PropertyStorage::Result;

/// Longer sets are not read.
constexpr std::size_t longestSet = 16 << 20;

constexpr std::array textIds{SummaryId::title,    SummaryId::subject,    SummaryId::author,
                             SummaryId::keywords, SummaryId::comments,   SummaryId::templateName,
                             SummaryId::revision, SummaryId::lastAuthor, SummaryId::application};
constexpr std::array timeIds{SummaryId::printed, SummaryId::created, SummaryId::saved};

bool IsAmong(std::uint32_t id, std::span<const std::uint32_t> ids)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

/// Whether the property is one of the set itself: its dictionary, its code page, its locale.
bool DescribesSet(std::uint32_t id)
{
    return id == PropertyId::dictionary || id == PropertyId::codePage || id >= PropertyId::firstReserved;
}

/// The number at the offset `at`; 0 past the end.
template <class Number>
Number NumberAt(const std::optional<std::string>& bytes, std::size_t at)
{
    Number number = 0;
    if (bytes && bytes->size() >= at + sizeof number)
        std::memcpy(&number, bytes->data() + at, sizeof number);
    return number;
}

/// [MS-DOC] 2.5.2: the flag fEncrypted of the file information block.
bool IsEncryptedText(const RootStorage& root)
{
    constexpr std::size_t flagsPlace = 10;
    constexpr std::uint16_t encrypted = 0x0100;
    return NumberAt<std::uint16_t>(root.Read(u"WordDocument", flagsPlace + 2), flagsPlace) & encrypted;
}

/// [MS-XLS] 2.4.117: a record FilePass among the first of the workbook's.
bool IsEncryptedWorkbook(const RootStorage& root)
{
    constexpr std::uint16_t filePass = 0x002F;
    constexpr std::size_t looked = 512;
    for (const std::u16string_view name : {u"Workbook", u"Book"}) {
        const std::optional<std::string> bytes = root.Read(name, looked);
        for (std::size_t at = 0; bytes && at + 4 <= bytes->size(); at += 4U + NumberAt<std::uint16_t>(bytes, at + 2))
            if (NumberAt<std::uint16_t>(bytes, at) == filePass)
                return true;
    }
    return false;
}

/// [MS-PPT] 2.3.2: the token in the atom of the current user.
bool IsEncryptedSlides(const RootStorage& root)
{
    constexpr std::size_t tokenPlace = 12;
    constexpr std::uint32_t encrypted = 0xF3D1C4DF;
    return NumberAt<std::uint32_t>(root.Read(u"Current User", tokenPlace + 4), tokenPlace) == encrypted;
}

/// Also when it is the container of an encrypted package ([MS-OFFCRYPTO] 1.3.2, 2.3.5).
bool IsEncrypted(const RootStorage& root)
{
    return root.Has(u"EncryptedPackage") || root.Has(u"EncryptedSummary") || root.Has(u"encryption") ||
           IsEncryptedText(root) || IsEncryptedWorkbook(root) || IsEncryptedSlides(root);
}

/// [MS-OFFCRYPTO] 2.5.1 and 2.5.2.
bool IsSigned(const RootStorage& root)
{
    return root.Has(u"_signatures") || root.Has(u"_xmlsignatures");
}

CString ReadText(const PropertySection& section, std::uint32_t id)
{
    const std::string* const stored = section.Find(id);
    if (!stored)
        return {};
    if (const auto text = ReadStoredText(*stored, section.CodePage().value_or(defaultCodePage)))
        return *text;
    CString text;
    if (const auto number = ReadStoredNumber(*stored))
        text.Format(u"%d", static_cast<int>(*number));
    return text;
}

void ReadSummary(const PropertySection& section, DocumentProperties& properties)
{
    for (const std::uint32_t id : textIds)
        if (CString text = ReadText(section, id); !text.IsEmpty())
            properties.texts.emplace(id, std::move(text));
    for (const std::uint32_t id : timeIds) {
        const std::string* const stored = section.Find(id);
        const auto ticks = stored ? ReadStoredTime(*stored) : std::nullopt;
        if (ticks && *ticks > 0)
            properties.times.emplace(id, *ticks);
    }
    properties.hasThumbnail = section.Find(SummaryId::thumbnail);
    properties.lacksCodePage = !section.CodePage();
    for (const StoredProperty& property : section.properties)
        if (!DescribesSet(property.id) && property.id != SummaryId::thumbnail && !IsAmong(property.id, textIds) &&
            !IsAmong(property.id, timeIds))
            ++properties.others;
}

std::size_t CountProperties(const PropertySection* section)
{
    return !section ? 0
                    : static_cast<std::size_t>(
                          std::count_if(section->properties.begin(), section->properties.end(),
                                        [](const StoredProperty& property) { return !DescribesSet(property.id); }));
}

/// The set in a stream, with the section `format`.
/// @return a result code: fileNotFound where there is none.
std::uint32_t ReadSet(const RootStorage& root, std::u16string_view name, FormatId format,
                      std::optional<PropertySetStream>& set)
{
    if (!root.Has(name))
        return Result::fileNotFound;
    const std::optional<std::string> bytes = root.Read(name, longestSet + 1);
    set = bytes && bytes->size() <= longestSet ? PropertySetStream::Parse(*bytes) : std::nullopt;
    if (!set)
        return Result::damaged;
    return set->Find(format) ? Result::ok : Result::fileNotFound;
}

void ClearSummary(PropertySection& section)
{
    std::erase_if(section.properties, [](const StoredProperty& property) {
        return !DescribesSet(property.id) && property.id != SummaryId::thumbnail;
    });
}

/// The names of the user's own properties are in the section's dictionary.
void ClearDocumentSet(PropertySetStream& set)
{
    for (const FormatId format : {documentFormat, userFormat})
        if (PropertySection* const section = set.Find(format))
            std::erase_if(section->properties, [](const StoredProperty& property) {
                return property.id == PropertyId::dictionary || !DescribesSet(property.id);
            });
}

std::uint32_t EditSummary(PropertySection& section, const PropertyEdit& edit)
{
    const std::optional<std::uint32_t> codePage = section.CodePage();
    if (!codePage)
        return Result::notSupported;
    if (edit.clearsAll)
        ClearSummary(section);
    for (const auto& [id, text] : edit.values)
        if (!text)
            section.Remove(id);
        else if (IsAmong(id, textIds))
            section.Set(id, StoreText(*text, *codePage));
        else
            return Result::notSupported;
    for (const auto& [id, ticks] : edit.times)
        section.Set(id, StoreTime(ticks));
    return Result::ok;
}

} // namespace

std::uint32_t ReadCompoundProperties(const RootStorage& root, DocumentProperties& properties)
{
    properties.isEncrypted = IsEncrypted(root);
    properties.isSigned = IsSigned(root);
    std::optional<PropertySetStream> summary;
    std::optional<PropertySetStream> document;
    const std::uint32_t result = ReadSet(root, summaryStream, summaryFormat, summary);
    const std::uint32_t documentResult = ReadSet(root, documentStream, documentFormat, document);
    for (const std::uint32_t each : {result, documentResult})
        if (each != Result::ok && each != Result::fileNotFound)
            return each;
    if (result == Result::ok)
        ReadSummary(*summary->Find(summaryFormat), properties);
    if (document)
        properties.others +=
            CountProperties(document->Find(documentFormat)) + CountProperties(document->Find(userFormat));
    return summary || document || properties.isEncrypted ? Result::ok : Result::fileNotFound;
}

std::uint32_t EditCompoundProperties(const RootStorage& root, const PropertyEdit& edit, NewStreams& streams)
{
    if (IsEncrypted(root))
        return Result::accessDenied;
    std::optional<PropertySetStream> summary;
    const std::uint32_t result = ReadSet(root, summaryStream, summaryFormat, summary);
    // A missing summary needs no clearing.
    const bool isMissing = result == Result::fileNotFound && edit.clearsAll && !edit.NamesAny();
    if (result != Result::ok && !isMissing)
        return result;
    if (result == Result::ok) {
        if (const std::uint32_t edited = EditSummary(*summary->Find(summaryFormat), edit); edited != Result::ok)
            return edited;
        streams.emplace(summaryStream, summary->Serialise());
    }
    if (!edit.clearsAll || !root.Has(documentStream))
        return Result::ok;
    std::optional<PropertySetStream> document;
    const std::uint32_t documentResult = ReadSet(root, documentStream, documentFormat, document);
    if (documentResult != Result::ok)
        return documentResult;
    ClearDocumentSet(*document);
    streams.emplace(documentStream, document->Serialise());
    return Result::ok;
}

} // namespace VyrPlatform
