// Any texts as a journal's texts of a change, and as new values: they are read or refused, and what was read is written
// back the same.
#include <VyrHost/documents/Properties.h>
#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/metadata/Changes.h>
#include <VyrHost/metadata/Dates.h>
#include <VyrHost/metadata/Marks.h>
#include <VyrHost/metadata/Times.h>
#include <VyrHost/rename/EmptiedFolders.h>
#include <VyrHost/text/Errors.h>

#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>

using namespace VyrHost::Metadata;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckJournal(std::uint8_t choice, std::string_view bytes)
{
    static const VyrHost::Model::ChangeKinds kinds = [] {
        VyrHost::Model::ChangeKinds all = Kinds();
        all.merge(VyrHost::Documents::Kinds());
        all.merge(VyrHost::Rename::Kinds());
        return all;
    }();
    const auto& [name, read] = *std::next(kinds.begin(), choice % static_cast<std::ptrdiff_t>(kinds.size()));
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const CString before = VyrPlatform::Encoding::FromNameBytes(bytes.substr(0, end));
    const CString after = VyrPlatform::Encoding::FromNameBytes(bytes.substr(std::min(end + 1, bytes.size())));
    const auto change = read(before, after);
    if (!change)
        return;
    Require(change->Kind() == name);
    const auto again = read(change->Before(), change->After());
    Require(again && again->Before() == change->Before() && again->After() == change->After());
    static_cast<void>(change->ShownBefore());
    Require(!change->ShownAfter().IsEmpty());
}

void CheckTyped(const CString& text)
{
    Require(ParseAmounts(text, "--shift") != Amounts());
    static_cast<void>(ParseTimeSource(text, "--set-modified"));
}

void CheckName(const CString& text)
{
    NameDateProblem problem = NameDateProblem::None;
    const auto found = FindNameDate(text, problem);
    Require(found.has_value() == (problem == NameDateProblem::None));
    Require(!found || found->value.GetStatus() == COleDateTime::valid);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string bytes(data + 1, data + size);
    const CString text = VyrPlatform::Encoding::FromNameBytes(bytes);
    try {
        switch (data[0] % 5) {
        case 0:
            CheckTyped(text);
            break;
        case 1:
            Require(ParseAttributes(text, "--set") != 0);
            break;
        case 2:
            CheckName(text);
            break;
        case 3:
            static_cast<void>(Shown({{u"stream", bytes}}));
            break;
        default:
            CheckJournal(data[0] / 5, bytes);
        }
    } catch (const VyrHost::Text::UsageError& error) {
        Require(*error.what() != '\0');
    }
    return 0;
}
