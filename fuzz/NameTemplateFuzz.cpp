// Any text as the template of whole names, for entries of any name: it is refused with a reason, or gives names without
// separators that are no longer than a path can be, and the same for the same entry.
#include <VyrHost/rename/CsvData.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Template.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

using namespace VyrHost::Rename;
using VyrHost::Text::UsageError;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

CString TakeText(FuzzedDataProvider& input, std::size_t most)
{
    return VyrPlatform::Encoding::FromNameBytes(input.ConsumeRandomLengthString(most));
}

/// The parts are the whole text again.
void CheckParts(std::u16string_view text)
{
    std::u16string whole;
    for (const VyrHost::Text::TemplatePart& part : VyrHost::Text::CutTemplate(text)) {
        const auto* const token = std::get_if<VyrHost::Text::Token>(&part);
        Require(!token || !token->word.IsEmpty());
        whole += token ? token->whole.View() : std::get<CString>(part).View();
    }
    Require(whole == text);
}

Subject SubjectOf(const CString& name, const CString& extension, std::size_t group)
{
    Subject subject;
    subject.folder = u"/d/";
    subject.path = u"/d/e/f";
    subject.name = name;
    subject.extension = extension;
    subject.group = group;
    subject.index = static_cast<int>(group);
    return subject;
}

void CheckNames(const Rules& rules, const CString& name, const CString& extension)
{
    constexpr int longest = 32'767;
    for (std::size_t group = 0; group < 3; ++group) {
        Subject subject = SubjectOf(name, extension, group);
        if (rules.front()->Apply(subject) != Reason::None)
            continue;
        Require(subject.folder.View().starts_with(u"/d/"));
        Require(subject.name.GetLength() <= longest);
        const std::u16string_view made = subject.name;
        Require(std::none_of(made.begin(), made.end(),
                             [](char16_t unit) { return unit == 0 || VyrPlatform::FileSystem::IsSeparator(unit); }));
    }
}

/// A name that a system could give.
CString WithoutSeparators(const CString& text)
{
    std::u16string name(text.View());
    std::erase_if(name, [](char16_t unit) { return unit == 0 || VyrPlatform::FileSystem::IsSeparator(unit); });
    return std::u16string_view(name);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t mostName = 100;
    FuzzedDataProvider input(data, size);
    const CString name = WithoutSeparators(TakeText(input, mostName));
    const CString extension = WithoutSeparators(TakeText(input, mostName));
    const std::string table = input.ConsumeRandomLengthString(mostName);
    TemplateSettings settings;
    settings.pattern = PatternShape{2, {{u"year", 1}}};
    try {
        if (!table.empty())
            settings.csv = std::make_shared<const CsvData>(table);
    } catch (const UsageError&) {
        return 0;
    }
    const CString text = VyrPlatform::Encoding::FromNameBytes(input.ConsumeRemainingBytesAsString());
    CheckParts(text);
    try {
        CheckNames(NameRules(text, settings), name, extension);
    } catch (const UsageError& error) {
        Require(*error.what() != '\0');
    }
    return 0;
}
