// Determines which properties of a document change.
#include <VyrHost/documents/Properties.h>

#include <VyrHost/documents/Document.h>
#include <VyrHost/metadata/Changes.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/Pieces.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/Template.h>
#include <VyrHost/text/TypedDateTime.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <chrono>
#include <ratio>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Documents {

namespace {

using VyrPlatform::DocumentProperties;
using VyrPlatform::PropertyEdit;
using VyrPlatform::FileSystem::Kind;
namespace Id = VyrPlatform::SummaryId;
namespace Result = VyrPlatform::PropertyStorage::Result;

constexpr std::u16string_view nameWord = u"Name";
constexpr std::u16string_view parentWord = u"Parent";

/// The names that an option accepts.
std::vector<std::string> NamesFor(bool arePicturesToo)
{
    std::vector<std::string> names;
    for (const PropertyName& property : PropertyNames())
        if (property.kind != PropertyKind::Picture || arePicturesToo)
            names.push_back(VyrPlatform::Encoding::ToUtf8(property.name));
    return names;
}

std::string Listed(const std::vector<std::string>& names)
{
    std::string list;
    for (const std::string& name : names)
        list.append(list.empty() ? "" : ", ").append(name);
    return list;
}

/// A hint at the nearest of `names`.
std::string HintFor(std::u16string_view typed, const std::vector<std::string>& names)
{
    return Text::Hint(VyrPlatform::Encoding::ToUtf8(typed), names);
}

/// Refuses unknown tokens.
void RequireTokens(std::u16string_view text)
{
    for (const Text::TemplatePart& part : Text::CutTemplate(text)) {
        const auto* const token = std::get_if<Text::Token>(&part);
        if (token && token->IsBareWord() && token->word != nameWord && token->word != parentWord)
            Text::RefuseValue("--set", text,
                              "it knows no " + Text::SafeText(token->whole) + ", only <Name> and <Parent>");
    }
}

/// Whether documents of all kinds can store the instant.
bool CanBeHeld(VyrPlatform::FileTicks ticks)
{
    using namespace std::chrono;
    using Ticks = duration<VyrPlatform::FileTicks, std::ratio<1, VyrPlatform::ticksPerSecond>>;

    constexpr sys_days first = January / 1 / 1601;
    constexpr sys_days end = January / 1 / 10000;
    // In property sets 0 means no time.
    return ticks > 0 && Ticks(ticks) < end - first;
}

/// The given time; midnight if it has no time of day.
VyrPlatform::FileTicks ReadTime(std::u16string_view value, std::u16string_view given)
{
    const auto typed = Text::ReadTypedDateTime(value);
    if (!typed || !typed->hasDate)
        Text::RefuseValue("--set", given, "a date is expected, such as 2024-01-05 or \"2024-01-05 10:30\"");
    const auto ticks = VyrPlatform::FileTimes::FromLocal(typed->value);
    if (!ticks || !CanBeHeld(*ticks))
        Text::RefuseValue("--set", given,
                          "a document's date lies between the beginning of 1601 and the end of 9999, UTC");
    return *ticks;
}

void RequireNew(const PropertyName& property, std::u16string_view given, const char* option,
                const PropertyRequest& request)
{
    if (request.values.contains(property.id) || request.times.contains(property.id))
        Text::RefuseValue(option, given, VyrPlatform::Encoding::ToUtf8(property.name) + " is named more than once");
}

bool HasProperty(const DocumentProperties& properties, std::uint32_t id)
{
    return properties.texts.contains(id) || properties.times.contains(id) ||
           (id == Id::thumbnail && properties.hasThumbnail);
}

bool HasAny(const DocumentProperties& properties)
{
    return !properties.texts.empty() || !properties.times.empty() || properties.others > 0;
}

/// The text for a part of a template. A name that looks like a token is not replaced.
CString TextOf(const Text::TemplatePart& part, const CString& path, const Model::Entry& entry)
{
    const auto* const token = std::get_if<Text::Token>(&part);
    if (!token)
        return std::get<CString>(part);
    if (token->IsBareWord() && token->word == nameWord)
        return Model::Split(path, entry).name;
    if (token->IsBareWord() && token->word == parentWord)
        return Model::ParentName(path, 1);
    return token->whole;
}

/// `text` with its tokens replaced.
CString FillIn(std::u16string_view text, const CString& path, const Model::Entry& entry)
{
    CString filled;
    for (const Text::TemplatePart& part : Text::CutTemplate(text))
        filled += TextOf(part, path, entry);
    return filled;
}

/// Leaves out values that the document already has.
PropertyEdit WhatChanges(const PropertyRequest& request, const DocumentProperties& properties, const CString& path,
                         const Model::Entry& entry)
{
    PropertyEdit edit;
    edit.clearsAll = request.clearsAll && HasAny(properties);
    for (const auto& [id, text] : request.values) {
        const auto known = properties.texts.find(id);
        const std::optional<CString> value = text ? std::optional(FillIn(*text, path, entry)) : std::nullopt;
        const bool isSo = value ? known != properties.texts.end() && known->second == *value && !edit.clearsAll
                                : !HasProperty(properties, id) || (edit.clearsAll && id != Id::thumbnail);
        if (!isSo)
            edit.values.emplace(id, value);
    }
    for (const auto& [id, ticks] : request.times)
        if (const auto known = properties.times.find(id);
            known == properties.times.end() || known->second != ticks || edit.clearsAll)
            edit.times.emplace(id, ticks);
    return edit;
}

CString ShownProperty(const PropertyName& property, const DocumentProperties& properties)
{
    if (const auto text = properties.texts.find(property.id); text != properties.texts.end())
        return CString::Join({property.name, u" \"", text->second, u"\""});
    if (const auto time = properties.times.find(property.id); time != properties.times.end())
        return CString::Join({property.name, u" ", ShownTime(time->second)});
    if (property.id == Id::thumbnail && properties.hasThumbnail)
        return u"a thumbnail";
    return CString::Join({u"no ", property.name});
}

/// The old values of what `edit` changes, in words.
std::vector<CString> ShownBefore(const DocumentProperties& properties, const PropertyEdit& edit)
{
    std::vector<CString> shown;
    for (const PropertyName& property : PropertyNames()) {
        const bool isCleared = edit.clearsAll && property.id != Id::thumbnail && HasProperty(properties, property.id);
        if (isCleared || edit.Names(property.id))
            shown.push_back(ShownProperty(property, properties));
    }
    if (edit.clearsAll && properties.others > 0) {
        CString others;
        others.Format(properties.others == 1 ? u"%u other" : u"%u others", static_cast<unsigned>(properties.others));
        shown.push_back(others);
    }
    return shown;
}

/// The reason why a document must not be changed; empty if it may be.
CString FindObstacle(const Document& document, const PropertyRequest& request)
{
    if (!document.problem.IsEmpty())
        return document.problem;
    if (document.properties.isEncrypted)
        return u"it is encrypted";
    if (document.properties.lacksCodePage)
        return u"its properties do not say in which code page they are, so that new ones would garble the others";
    if (document.properties.isSigned && !request.breaksSignatures)
        return u"it is signed, and the signature would no longer hold; --break-signature changes it all the same";
    return {};
}

} // namespace

void ParseProperty(std::u16string_view text, PropertyRequest& request)
{
    std::u16string_view value = text;
    const bool hasValue = text.find(u'=') != text.npos;
    const std::u16string_view name = Text::TakeUpTo(value, u'=');
    const PropertyName* const property = FindProperty(name);
    if (!property || property->kind == PropertyKind::Picture || !hasValue) {
        const std::vector<std::string> names = NamesFor(false);
        const std::string hint = property ? std::string() : HintFor(name, names);
        Text::RefuseValue("--set", text, "NAME=TEXT is expected, where NAME is one of " + Listed(names) + hint);
    }
    if (value.empty())
        Text::RefuseValue("--set", text, "there is no text; --clear clears a property");
    RequireNew(*property, text, "--set", request);
    if (property->kind == PropertyKind::Time) {
        request.times.emplace(property->id, ReadTime(value, text));
        return;
    }
    const bool isNumber = value.find_first_not_of(u"0123456789") == value.npos;
    if (property->id == Id::revision && !isNumber)
        Text::RefuseValue("--set", text, "a revision is a whole number");
    RequireTokens(value);
    request.values.emplace(property->id, CString(value));
}

void ParseCleared(std::u16string_view text, PropertyRequest& request)
{
    for (std::u16string_view rest = text;;) {
        const bool isLast = rest.find(u',') == rest.npos;
        const std::u16string_view name = Text::TakeUpTo(rest, u',');
        const PropertyName* const property = FindProperty(name);
        if (!property) {
            const std::vector<std::string> names = NamesFor(true);
            Text::RefuseValue("--clear", text,
                              Listed(names) + " are known; several are separated by commas" + HintFor(name, names));
        }
        RequireNew(*property, text, "--clear", request);
        request.values.emplace(property->id, std::nullopt);
        if (isLast)
            return;
    }
}

Metadata::Proposal PropertiesRule::Propose(const CString& path, const Model::Entry& entry, std::size_t /*index*/) const
{
    if (entry.kind == Kind::Folder)
        return {nullptr, u"it is a folder"};
    const Document document = ReadDocument(path);
    if (CString obstacle = FindObstacle(document, m_request); !obstacle.IsEmpty())
        return {nullptr, std::move(obstacle)};
    PropertyEdit edit = WhatChanges(m_request, document.properties, path, entry);
    if (!edit.clearsAll && !edit.NamesAny())
        return {};
    if (const std::uint32_t result = VyrPlatform::CheckDocumentEdit(path, edit, HandlerOf(path)); result != Result::ok)
        return {nullptr, Text::ErrorText(result)};
    const VyrPlatform::FileReader reader(path);
    const auto fingerprint = FingerprintOf(reader);
    if (!fingerprint)
        return {nullptr, Text::ErrorText(Result::writeFault)};
    if (fingerprint->size > m_most - m_kept)
        return {nullptr, u"a batch keeps at most 2 GB of old documents; change this one in another batch"};
    m_kept += fingerprint->size;
    auto change = std::make_shared<PropertiesChange::Document>();
    change->fingerprint = *fingerprint;
    change->shown = ShownBefore(document.properties, edit);
    change->edit = std::move(edit);
    return {std::make_shared<PropertiesChange>(std::move(change)), {}};
}

} // namespace VyrHost::Documents
