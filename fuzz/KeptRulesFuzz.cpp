// Any text as kept rules: it is read or refused, what was read is written back the same, and the rules that are made of
// it name a file in bounded time.
#include <VyrHost/cli/RuleOptions.h>
#include <VyrHost/rename/OptionLines.h>
#include <VyrHost/text/Errors.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace VyrHost;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckLines(std::string_view text)
{
    std::string written;
    const std::vector<Rename::OptionLine> lines = Rename::ReadOptionLines(text);
    for (const Rename::OptionLine& line : lines) {
        Require(!line.words.empty());
        written += Rename::WriteOptionLine(line.words);
    }
    const std::vector<Rename::OptionLine> again = Rename::ReadOptionLines(written);
    Require(std::ranges::equal(lines, again, {}, &Rename::OptionLine::words, &Rename::OptionLine::words));
}

void ApplyRules(std::string_view text)
{
    const Rename::Rules rules = Cli::MakeKeptRules(text);
    Rename::Subject subject;
    subject.folder = u"/no such folder/";
    subject.name = u"Some name, 2024-05 (1)";
    subject.extension = u".txt";
    subject.path = u"/no such folder/Some name, 2024-05 (1).txt";
    constexpr std::size_t mostRules = 16;
    for (std::size_t rule = 0; rule < std::min(rules.size(), mostRules); ++rule)
        if (rules[rule]->Apply(subject) != Rename::Reason::None)
            return;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        CheckLines(text);
        ApplyRules(text);
    } catch (const Text::UsageError&) {
        // What makes no sense is refused.
    }
    return 0;
}
