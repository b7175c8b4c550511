// Reads rules off the command line, in the order given.
#include <VyrHost/cli/RuleOptions.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <string>
#include <utility>

namespace VyrHost::Cli {

namespace {

constexpr int anyNumber = std::numeric_limits<int>::min();

/// An option as it was given, with its settings.
struct Given;

struct RuleOption
{
    const char* name;
    /// What its values are called; how many they are.
    const char* values;
    int count;
    const char* help;
    Rename::Rules (*make)(const Given& given);
};

struct Given
{
    const RuleOption* option;
    std::vector<CString> values;
    Rename::NumberSettings number = {};
    std::optional<std::vector<Model::DateSource>> dates = {};
    Rename::PatternRuleSettings pattern = {};
    bool hasNamePart = false;
};

/// Makes rules of the one value.
template <Rename::Rules (*Make)(const CString&)>
Rename::Rules FromValue(const Given& given)
{
    return Make(given.values.front());
}

constexpr RuleOption ruleOptions[] = {
    {"--number", "TEMPLATE", 1,
     "A sequence number: \"Trip ###\", \"<Name>-#\". Each # is a digit at least; <Name> keeps the old name",
     [](const Given& given) {
         return Rename::NumberRules(given.values.front(), given.number);
     }},
    {"--date", "FORMAT", 1,
     "A date of the file: \"yyyy-MM-dd HHmmss\". <Name> keeps the old name, <Make> and <Model> are the camera, "
     "<Folder> ends the name of a folder to move into",
     [](const Given& given) {
         return Rename::DateRules(given.values.front(), given.dates.value_or(std::vector{Model::DateSource::Modified}));
     }},
    {"--replace", "FIND WITH", 2, "Put WITH in place of every FIND (upper and lower case differ)",
     [](const Given& given) {
         return Rename::ReplaceRules(given.values[0], given.values[1]);
     }},
    {"--regex", "FIND WITH", 2,
     "Put WITH in place of every match of the pattern FIND; $1, ${name}, \\U, \\L, \\E, \\u and \\l work in WITH",
     [](const Given& given) {
         return Rename::PatternRules(given.values[0], given.values[1], given.pattern);
     }},
    {"--prefix", "TEXT", 1, "Put TEXT before the name", FromValue<Rename::PrefixRules>},
    {"--suffix", "TEXT", 1, "Put TEXT after the name, before the extension", FromValue<Rename::SuffixRules>},
    {"--insert", "PLACE:TEXT", 1, "Put TEXT in after the first PLACE characters; -PLACE counts from the end",
     FromValue<Rename::InsertRules>},
    {"--delete", "PLACE:COUNT", 1,
     "Delete COUNT characters after the first PLACE; with -PLACE those before the last PLACE",
     FromValue<Rename::DeleteRules>},
    {"--delete-first", "COUNT", 1, "Delete the first COUNT characters", FromValue<Rename::DeleteFirstRules>},
    {"--delete-last", "COUNT", 1, "Delete the last COUNT characters", FromValue<Rename::DeleteLastRules>},
    {"--keep-first", "COUNT", 1, "Keep only the first COUNT characters", FromValue<Rename::KeepFirstRules>},
    {"--keep-last", "COUNT", 1, "Keep only the last COUNT characters", FromValue<Rename::KeepLastRules>},
    {"--case", "first|upper|lower|title|title-en|sentence", 1,
     "Make the first letter a capital, all letters capital or small, or words begin as in a title or a sentence",
     FromValue<Rename::CaseRules>},
    {"--pad", "N", 1, "Fill every number up to N digits with zeros; first:N or last:N only that one",
     FromValue<Rename::PadRules>},
    {"--ascii", "", 0, "Spell out accents and ligatures of Latin letters; other scripts stay",
     [](const Given&) {
         return Rename::AsciiRules();
     }},
    {"--trim", "", 0, "Remove blanks at both ends of the name",
     [](const Given&) {
         return Rename::TrimRules();
     }},
    {"--collapse", "", 0, "Make each run of blanks one space",
     [](const Given&) {
         return Rename::CollapseRules();
     }},
    {"--extension", "NEW", 1, "Change the extension to NEW (files only)", FromValue<Rename::ExtensionRules>},
    {"--extension-case", "upper|lower", 1, "Make the extension's letters capital or small",
     FromValue<Rename::ExtensionCaseRules>},
    {"--drop-extension", "", 0, "Remove the extension",
     [](const Given&) {
         return Rename::DropExtensionRules();
     }},
};

/// A setting: an option that says more about a rule of one kind.
struct SettingOption
{
    const char* name;
    /// What its value is called; empty when it has none.
    const char* value;
    const char* help;
    /// The rule that it belongs to.
    const char* rule;
    /// @return false when the rule has the setting already.
    bool (*set)(Given& given, const CString& value);
};

bool SetNumber(std::optional<int>& setting, const CString& value, int least, const char* name)
{
    if (setting)
        return false;
    setting = Rename::ParseNumber(value, least, name);
    return true;
}

bool SetNth(Given& given, int nth)
{
    const bool isFirst = !given.pattern.nth;
    given.pattern.nth = nth;
    return isFirst;
}

constexpr SettingOption settingOptions[] = {
    {"--start", "N", "First number of --number (1)", "--number",
     [](Given& given, const CString& value) {
         return SetNumber(given.number.start, value, anyNumber, "--start");
     }},
    {"--step", "N", "From one number to the next (1)", "--number",
     [](Given& given, const CString& value) {
         return SetNumber(given.number.step, value, anyNumber, "--step");
     }},
    {"--digits", "N", "Least width of the number, 0 to 255, for a TEMPLATE with a single # or <Number>", "--number",
     [](Given& given, const CString& value) {
         return SetNumber(given.number.digits, value, 0, "--digits");
     }},
    {"--date-from", "LIST",
     "Dates for --date, the first that a file has: picture, modified, created, accessed (modified)", "--date",
     [](Given& given, const CString& value) {
         if (given.dates)
             return false;
         given.dates = Rename::ParseDateSources(value);
         return true;
     }},
    {"--ignore-case", "", "Let --regex find letters in either case", "--regex",
     [](Given& given, const CString&) {
         return !std::exchange(given.pattern.ignoresCase, true);
     }},
    {"--first-only", "", "Replace only the first match of --regex in a name", "--regex",
     [](Given& given, const CString&) {
         return SetNth(given, 1);
     }},
    {"--nth", "N", "Replace only the match with this number; -1 is the last", "--regex",
     [](Given& given, const CString& value) {
         return SetNth(given, Rename::ParseNth(value));
     }},
    {"--regex-in", "name|extension|all", "What --regex looks at (name)", "--regex",
     [](Given& given, const CString& value) {
         given.pattern.part = Rename::ParseNamePart(value);
         return !std::exchange(given.hasNamePart, true);
     }},
};

template <class Options>
auto* FindByName(const Options& options, const CLI::Option& option)
{
    const auto found = std::find_if(std::begin(options), std::end(options),
                                    [&option](const auto& known) { return option.check_name(known.name); });
    return found == std::end(options) ? nullptr : &*found;
}

/// Walks the options in the order given; each with the values of that one time.
class Collector
{
public:
    explicit Collector(const CLI::App& command) : m_command(command) {}

    std::vector<Given> Run()
    {
        const std::vector<CLI::Option*>& order = m_command.parse_order();
        for (std::size_t index = 0; index < order.size();) {
            const CLI::Option& option = *order[index];
            // The parser notes an option once for each of its values.
            std::size_t noted = 1;
            if (const RuleOption* const rule = FindByName(ruleOptions, option)) {
                noted = static_cast<std::size_t>(std::max(rule->count, 1));
                AddRule(*rule, TakeValues(option, noted));
            } else if (const SettingOption* const setting = FindByName(settingOptions, option)) {
                AddSetting(*setting, TakeValues(option, 1).front());
            }
            index += noted;
        }
        for (const auto& [setting, value] : m_early)
            Set(*setting, value, First(*setting));
        return std::move(m_given);
    }

private:
    std::vector<CString> TakeValues(const CLI::Option& option, std::size_t count)
    {
        std::size_t& taken = m_taken[&option];
        std::vector<CString> values;
        for (std::size_t end = taken + count; taken < end; ++taken)
            values.push_back(FromParser(option.results().at(taken)));
        return values;
    }

    void AddRule(const RuleOption& rule, std::vector<CString> values)
    {
        m_given.push_back({.option = &rule, .values = std::move(values)});
    }

    void AddSetting(const SettingOption& setting, const CString& value)
    {
        const auto rule = std::find_if(m_given.rbegin(), m_given.rend(), [&setting](const Given& given) {
            return std::string_view(given.option->name) == setting.rule;
        });
        if (rule == m_given.rend())
            m_early.emplace_back(&setting, value);
        else
            Set(setting, value, *rule);
    }

    Given& First(const SettingOption& setting)
    {
        const auto rule = std::find_if(m_given.begin(), m_given.end(), [&setting](const Given& given) {
            return std::string_view(given.option->name) == setting.rule;
        });
        if (rule == m_given.end())
            throw Text::UsageError(WithoutEffect(setting.name, setting.rule));
        return *rule;
    }

    static void Set(const SettingOption& setting, const CString& value, Given& given)
    {
        if (!setting.set(given, value))
            throw Text::UsageError(std::string(setting.name) + " is given twice for one " + setting.rule);
    }

    const CLI::App& m_command;
    std::map<const CLI::Option*, std::size_t> m_taken;
    std::vector<Given> m_given;
    /// Settings that stand before every rule of their kind.
    std::vector<std::pair<const SettingOption*, CString>> m_early;
};

void Declare(CLI::App& command, const char* name, const char* values, int count, const std::string& help,
             const char* group)
{
    if (count > 0)
        AddTexts(command, name, values, help, group, count);
    else
        command.add_flag(name, help)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)->group(group);
}

} // namespace

RuleOptions::RuleOptions(CLI::App& command) : m_command(command)
{
    constexpr const char* group = "Rules, applied in the order given";
    for (const RuleOption& option : ruleOptions)
        Declare(command, option.name, option.values, option.count, option.help, group);
    constexpr const char* settingsGroup = "Settings of the rule before them";
    for (const SettingOption& setting : settingOptions)
        Declare(command, setting.name, setting.value, *setting.value ? 1 : 0, setting.help, settingsGroup);
}

Rename::Rules RuleOptions::Make() const
{
    Rename::Rules all;
    for (const Given& given : Collector(m_command).Run()) {
        Rename::Rules made = given.option->make(given);
        std::move(made.begin(), made.end(), std::back_inserter(all));
    }
    return all;
}

} // namespace VyrHost::Cli
