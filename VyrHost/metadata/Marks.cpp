// Removes and restores marks, and writes them for the journal: "NAME BYTES STATE" for each form before, separated by
// semicolons, the bytes in hexadecimal, without the last word where there is no state; "none" after.
#include <VyrHost/metadata/Marks.h>

#include <VyrHost/media/Texts.h>
#include <VyrHost/metadata/Changes.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/Pieces.h>
#include <VyrLibraryFuncs/metadata/UnblockFuncs.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace VyrHost::Metadata {

namespace {

using Model::ChangeLook;
using Model::ChangeState;
using VyrPlatform::ExactState::Part;
using VyrPlatform::NamedStreams::ZoneForm;

constexpr std::u16string_view noMark = u"none";
constexpr std::u16string_view protectionWord = u"attributes";
constexpr std::u16string_view nothingTold = u"marked";

CString WordForZone(std::u16string_view number)
{
    constexpr const char16_t* words[] = {u"this computer", u"local network", u"trusted", u"internet", u"restricted"};
    if (number.size() == 1 && number.front() >= u'0' && number.front() < u'0' + static_cast<int>(std::size(words)))
        return words[number.front() - u'0'];
    return number;
}

/// The text of a stream: UTF-16 where a mark says so, else UTF-8.
CString TextOfStream(std::string_view bytes)
{
    const bool isWide = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    return isWide ? Media::FromUtf16(bytes) : VyrPlatform::Encoding::FromUtf8(Text::SkipByteOrderMark(bytes));
}

std::u16string_view Trimmed(std::u16string_view text)
{
    constexpr std::u16string_view blanks = u" \t";
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(blanks)));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// Reads the lines of a stream, of any bytes, as Windows reads a profile: case and blanks around names and values do
/// not matter.
void ReadStream(std::string_view bytes, ZoneMark& mark)
{
    const CString text = TextOfStream(bytes);
    for (std::u16string_view rest = text; !rest.empty();) {
        const std::size_t end = rest.find_first_of(std::u16string_view(u"\r\n\0", 3));
        const std::u16string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::u16string_view::npos ? rest.size() : end + 1);
        const std::size_t equals = line.find(u'=');
        if (equals == std::u16string_view::npos)
            continue;
        const CString key = Trimmed(line.substr(0, equals));
        const std::u16string_view value = Trimmed(line.substr(equals + 1));
        if (key.CompareNoCase(u"ZoneId") == 0)
            mark.zone = WordForZone(value);
        else if (key.CompareNoCase(u"HostUrl") == 0)
            mark.from = value;
        else if (key.CompareNoCase(u"ReferrerUrl") == 0)
            mark.referrer = value;
    }
}

} // namespace

ZoneMark ReadMark(const ZoneForms& forms)
{
    ZoneMark mark;
    for (const ZoneForm& form : forms) {
        if (form.name == u"user.xdg.origin.url")
            mark.from = mark.from.IsEmpty() ? VyrPlatform::Encoding::FromUtf8(form.bytes) : mark.from;
        else if (form.name == u"user.xdg.referrer.url")
            mark.referrer = mark.referrer.IsEmpty() ? VyrPlatform::Encoding::FromUtf8(form.bytes) : mark.referrer;
        else
            ReadStream(form.bytes, mark);
    }
    return mark;
}

CString Shown(const ZoneForms& forms)
{
    if (forms.empty())
        return {};
    const ZoneMark mark = ReadMark(forms);
    const CString& origin = mark.from.IsEmpty() ? mark.referrer : mark.from;
    if (mark.zone.IsEmpty() && origin.IsEmpty())
        return nothingTold;
    return CString::Join({mark.zone, mark.zone.IsEmpty() || origin.IsEmpty() ? u"" : u", ", origin});
}

std::shared_ptr<const Model::Change> MarkChange::Read(const CString& before, const CString& after)
{
    ZoneForms forms;
    CString protection;
    for (std::u16string_view rest = before; !rest.empty();) {
        std::u16string_view piece = Text::TakeUpTo(rest, u';');
        ZoneForm form;
        form.name = Text::TakeUpTo(piece, u' ');
        if (form.name == protectionWord && forms.empty() && protection.IsEmpty() && !piece.empty()) {
            protection = piece;
            continue;
        }
        const auto bytes = Text::FromHex(Text::TakeUpTo(piece, u' '));
        if (!bytes || form.name.IsEmpty() || form.name == protectionWord)
            return nullptr;
        form.bytes = *bytes;
        form.state = piece;
        forms.push_back(std::move(form));
    }
    return forms.empty() || after != noMark ? nullptr : std::make_shared<MarkChange>(std::move(forms), protection);
}

CString MarkChange::Before() const
{
    CString text;
    if (!m_protection.IsEmpty())
        text = CString::Join({protectionWord, u" ", m_protection});
    for (const ZoneForm& form : m_forms) {
        if (!text.IsEmpty())
            text += u';';
        text +=
            CString::Join({form.name, u" ", Text::ToHex(form.bytes), form.state.IsEmpty() ? u"" : u" ", form.state});
    }
    return text;
}

CString MarkChange::After() const
{
    return noMark;
}

CString MarkChange::ShownBefore() const
{
    return Shown(m_forms);
}

CString MarkChange::ShownAfter() const
{
    return u"no mark";
}

/// The work makes a read-only file writable.
void MarkChange::Repair(const CString& path) const
{
    // If it cannot be restored, the file stays as it is, and the change reports why.
    if (!m_protection.IsEmpty() && !VyrPlatform::FileAttributes::IsReadOnly(path))
        static_cast<void>(VyrPlatform::ExactState::Restore(path, Part::Attributes, m_protection));
}

ChangeLook MarkChange::Look(const CString& path) const
{
    std::uint32_t error = 0;
    const auto now = VyrPlatform::NamedStreams::ReadZoneMark(path, error);
    if (!now)
        return {ChangeState::Unknown, error};
    if (now->empty())
        return {ChangeState::After, 0};
    if (*now == m_forms)
        return {ChangeState::Before, 0};
    const bool isPart = std::all_of(now->begin(), now->end(), [this](const ZoneForm& form) { return IsPart(form); });
    return {isPart ? ChangeState::Partly : ChangeState::Other, 0};
}

/// Whether it is an old form, or an empty one, whose writing was cut off.
bool MarkChange::IsPart(const ZoneForm& form) const
{
    return std::any_of(m_forms.begin(), m_forms.end(), [&form](const ZoneForm& before) {
        return form == before || (form.name == before.name && form.bytes.empty());
    });
}

std::uint32_t MarkChange::Apply(const CString& path) const
{
    if (VyrLibraryFuncs::UnblockFuncs::DeleteZoneId(path))
        return 0;
    // The library reports only that it failed; the service below it also gives the reason.
    const VyrPlatform::FileAttributes::LiftedReadOnly lifted(path);
    const std::uint32_t error = VyrPlatform::NamedStreams::DeleteZoneMark(path);
    if (error != 0 && Look(path).state == ChangeState::Partly)
        static_cast<void>(WriteMissing(path));
    return error;
}

std::uint32_t MarkChange::Undo(const CString& path) const
{
    const VyrPlatform::FileAttributes::LiftedReadOnly lifted(path);
    return WriteMissing(path);
}

/// Restores the forms that have changed; continues after one that cannot be written.
/// @return 0, or the first error.
std::uint32_t MarkChange::WriteMissing(const CString& path) const
{
    std::uint32_t firstError = 0;
    const auto now = VyrPlatform::NamedStreams::ReadZoneMark(path, firstError);
    if (!now)
        return firstError;
    for (const ZoneForm& form : m_forms) {
        if (std::find(now->begin(), now->end(), form) != now->end())
            continue;
        const std::uint32_t error = VyrPlatform::NamedStreams::WriteZoneForm(path, form);
        firstError = firstError != 0 ? firstError : error;
    }
    return firstError;
}

Proposal MarkRule::Propose(const CString& path, const Model::Entry& /*entry*/, std::size_t /*index*/) const
{
    std::uint32_t error = 0;
    auto forms = VyrPlatform::NamedStreams::ReadZoneMark(path, error);
    if (!forms)
        return {nullptr, Text::ErrorText(error)};
    if (forms->empty())
        return {};
    CString protection;
    if (VyrPlatform::FileAttributes::IsReadOnly(path)) {
        const auto state = VyrPlatform::ExactState::Read(path, Part::Attributes, error);
        if (!state)
            return {nullptr, Text::ErrorText(error)};
        protection = *state;
    }
    return {std::make_shared<MarkChange>(std::move(*forms), protection), {}};
}

} // namespace VyrHost::Metadata
