// Any text as a range of dates or sizes, or a condition on names: it is read or refused with a reason, and the result
// can be used.
#include <VyrHost/collect/Choice.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/TypedDateTime.h>

#include <VyrPlatform/text/Encoding.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace VyrHost::Collect;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckDates(const CString& text)
{
    const DateRange range = ParseDateRange(text, "--modified");
    const bool isFromOpen = range.from.GetStatus() == COleDateTime::null;
    const bool isToOpen = range.to.GetStatus() == COleDateTime::null;
    Require(!isFromOpen || !isToOpen);
    Require(range.from.GetStatus() != COleDateTime::invalid && range.to.GetStatus() != COleDateTime::invalid);
    Require(isFromOpen || isToOpen || range.from.m_dt <= range.to.m_dt);
}

void CheckSizes(const CString& text)
{
    const SizeSpan span = ParseSizeSpan(text, "--size");
    Require(span.from >= 0 && span.from <= span.to);
}

void CheckNames(const CString& text, bool matchCase)
{
    const int half = text.GetLength() / 2;
    const NameConditions conditions({text.Left(half)}, matchCase, "--include");
    Require(!conditions.IsEmpty());
    static_cast<void>(conditions.MeetsAny(text.Mid(half)));
}

void CheckTyped(const CString& text)
{
    const auto typed = VyrHost::Text::ReadTypedDateTime(text);
    Require(!typed || (typed->value.GetStatus() == COleDateTime::valid && (typed->hasDate || typed->hasTime)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const CString text = VyrPlatform::Encoding::FromNameBytes(std::string(data + 1, data + size));
    try {
        switch (data[0] % 4) {
        case 0:
            CheckDates(text);
            break;
        case 1:
            CheckSizes(text);
            break;
        case 2:
            CheckNames(text, data[0] >= 128);
            break;
        default:
            CheckTyped(text);
        }
    } catch (const VyrHost::Text::UsageError& error) {
        Require(*error.what() != '\0');
    }
    return 0;
}
