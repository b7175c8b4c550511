// Any text from users: rules, formats, tables of pairs and edited lists are read or refused with a reason, and no rule
// makes a name out of bounds.
#include <VyrHost/rename/NameLists.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>

#include <VyrPlatform/text/Encoding.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Whether `read` accepts its text; a refusal has a reason.
bool IsTaken(const std::function<void()>& read)
{
    try {
        read();
        return true;
    } catch (const UsageError& error) {
        Require(*error.what() != '\0');
        return false;
    }
}

/// A refusal is slow, so `choice` selects one reader for each input.
void CheckRules(std::uint8_t choice, const CString& text)
{
    using Make = Rules (*)(const CString&);
    constexpr std::array<Make, 14> makers{InsertRules,
                                          PrefixRules,
                                          SuffixRules,
                                          DeleteRules,
                                          DeleteFirstRules,
                                          DeleteLastRules,
                                          KeepFirstRules,
                                          KeepLastRules,
                                          CaseRules,
                                          ExtensionRules,
                                          ExtensionCaseRules,
                                          [](const CString& pattern) { return NumberRules(pattern, {}); },
                                          [](const CString& format) { return DateRules(format, {}); },
                                          [](const CString& either) {
                                              return ReplaceRules(either, either);
                                          }};
    IsTaken([&] { Require(!makers[choice % makers.size()](text).empty()); });
}

void CheckSettings(const CString& text)
{
    IsTaken([&] { Require(!ParseDateSources(text).empty()); });
    IsTaken([&] { Require(ParseNumber(text, 1, "a number") >= 1); });
}

void CheckPairs(std::string_view bytes)
{
    IsTaken([bytes] {
        for (const NamePair& pair : ParsePairs(bytes)) {
            Require(!pair.from.IsEmpty() && !pair.to.IsEmpty());
            Require(pair.from.View().find(u'\0') == std::u16string_view::npos &&
                    pair.to.View().find(u'\0') == std::u16string_view::npos);
        }
    });
}

void CheckEdited(std::string_view bytes, const CString& name)
{
    constexpr std::size_t count = 100;
    IsTaken([bytes] {
        const auto names = ParseEdited(bytes, count);
        Require(names.size() <= count);
        for (const auto& [place, edited] : names)
            Require(place < count && !edited.IsEmpty());
    });
    // No system gives a name with a NUL.
    if (name.IsEmpty() || name.View().find(u'\0') != std::u16string_view::npos)
        return;
    const std::string escaped = EscapeName(name);
    Require(escaped.find_first_of("\n\t") == std::string::npos);
    Require(UnescapeName(escaped) == name);
    const auto again = ParseEdited(TextForEditing({name, u"other"}), 2);
    Require(again.size() == 2 && again.at(0) == name && again.at(1) == u"other");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string bytes(data + 1, data + size);
    const CString text = VyrPlatform::Encoding::FromNameBytes(bytes);
    const std::uint8_t choice = data[0];
    switch (choice % 4) {
    case 0:
        CheckRules(choice / 4, text);
        break;
    case 1:
        CheckSettings(text);
        break;
    case 2:
        CheckPairs(bytes);
        break;
    default:
        CheckEdited(bytes, text);
    }
    return 0;
}
