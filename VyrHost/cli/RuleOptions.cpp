// Reads rules from the command line, in the given order.
#include <VyrHost/cli/RuleOptions.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/cli/KeptRules.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/metadata/Shift.h>
#include <VyrHost/rename/CsvData.h>
#include <VyrHost/rename/OptionLines.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

/// A given option with its settings.
struct Given;

struct RuleOption
{
    const char* name;
    /// The names of its values, and their number.
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
    std::optional<Metadata::Amounts> shift = {};
    std::optional<Rename::ZoneClock> clock = {};
    std::optional<CString> csv = {};
    /// The pattern of the last rule that has one.
    std::optional<Rename::PatternShape> lastPattern = {};
    Rename::PatternRuleSettings pattern = {};
    bool hasNamePart = false;
    bool ignoresCase = false;
};

Rename::DateSettings DatesOf(const Given& given)
{
    Rename::DateSettings settings;
    if (given.dates)
        settings.sources = *given.dates;
    settings.shift = given.shift;
    settings.clock = given.clock;
    return settings;
}

Rename::PatternRuleSettings PatternOf(const Given& given)
{
    Rename::PatternRuleSettings settings = given.pattern;
    settings.ignoresCase = given.ignoresCase;
    return settings;
}

Rename::TemplateSettings TemplateOf(const Given& given)
{
    Rename::TemplateSettings settings;
    settings.dates = DatesOf(given);
    if (given.csv)
        settings.csv = std::make_shared<Rename::CsvData>(Text::ReadInputFile(*given.csv));
    settings.pattern = given.lastPattern;
    return settings;
}

/// Makes rules of the one value.
template <Rename::Rules (*Make)(const CString&)>
Rename::Rules FromValue(const Given& given)
{
    return Make(given.values.front());
}

constexpr RuleOption ruleOptions[] = {
    {"--number", "TEMPLATE", 1,
     "A sequence number: \"Trip ###\", \"<Name>-#\". Each # is at least one digit; <Name> keeps the old name",
     [](const Given& given) {
         return Rename::NumberRules(given.values.front(), given.number);
     }},
    {"--date", "FORMAT", 1,
     "A date of the file: \"yyyy-MM-dd HHmmss\". <Name> keeps the old name, <Make> and <Model> are the camera, "
     "<Folder> ends the name of a folder to move into",
     [](const Given& given) {
         return Rename::DateRules(given.values.front(), DatesOf(given));
     }},
    {"--name", "TEMPLATE", 1,
     "The whole new name, by tokens: \"<Taken:yyyy-MM-dd> <Model> <###>\". The extension stays",
     [](const Given& given) {
         return Rename::NameRules(given.values.front(), TemplateOf(given));
     }},
    {"--replace", "FIND WITH", 2, "Put WITH in place of every FIND (upper and lower case differ)",
     [](const Given& given) {
         return Rename::ReplaceRules(given.values[0], given.values[1], given.ignoresCase);
     }},
    {"--regex", "FIND WITH", 2,
     "Put WITH in place of every match of the pattern FIND; $1, ${name}, \\U, \\L, \\E, \\u and \\l work in WITH",
     [](const Given& given) {
         return Rename::PatternRules(given.values[0], given.values[1], PatternOf(given));
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
    {"--extension", "NEW", 1, "Change the extension to NEW (files only); auto is the one that the content asks for",
     FromValue<Rename::ExtensionRules>},
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
    /// The name of its value; empty when it has none.
    const char* value;
    const char* help;
    /// The rule that it belongs to; several are joined by words.
    const char* rule;
    /// @return false when the rule has the setting already.
    bool (*set)(Given& given, const CString& value);
};

template <class Value>
bool SetOnce(std::optional<Value>& setting, Value value)
{
    const bool isFirst = !setting;
    setting = std::move(value);
    return isFirst;
}

bool SetNumber(std::optional<int>& setting, const CString& value, const char* name)
{
    return SetOnce(setting, Rename::ParseNumber(value, std::numeric_limits<int>::min(), name));
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
         return SetNumber(given.number.start, value, "--start");
     }},
    {"--step", "N", "From one number to the next (1)", "--number",
     [](Given& given, const CString& value) {
         return SetNumber(given.number.step, value, "--step");
     }},
    {"--digits", "N", "Least width of the number, 0 to 255, for a TEMPLATE with a single # or <Number>", "--number",
     [](Given& given, const CString& value) {
         return SetOnce(given.number.digits, Rename::ParseDigits(value, "--digits"));
     }},
    {"--date-from", "LIST",
     "Dates for --date and <Date>, the first that a file has: picture, digitized, xmp, video, name, modified, "
     "created, accessed (modified)",
     "--date or --name",
     [](Given& given, const CString& value) {
         return SetOnce(given.dates, Rename::ParseDateSources(value));
     }},
    {"--date-shift", "AMOUNT", "Shift the dates by that much, such as +1h, -30m or 1y2mo3d", "--date or --name",
     [](Given& given, const CString& value) {
         return SetOnce(given.shift, Metadata::ParseAmounts(value, "--date-shift"));
     }},
    {"--time-zone", "ZONE", "The clock for dates whose instant is known: UTC, Europe/Berlin, +02:00",
     "--date or --name",
     [](Given& given, const CString& value) {
         return SetOnce(given.clock, Rename::ParseTimeZone(value));
     }},
    {"--csv-data", "FILE", "The table for <Csv:COLUMN>; its first column names the files", "--name",
     [](Given& given, const CString& value) {
         return SetOnce(given.csv, value);
     }},
    {"--ignore-case", "", "Let --replace or --regex find letters in either case", "--replace or --regex",
     [](Given& given, const CString&) {
         return !std::exchange(given.ignoresCase, true);
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

bool BelongsTo(const SettingOption& setting, const RuleOption& rule)
{
    const std::string rules = std::string(" ") + setting.rule + " ";
    return rules.find(std::string(" ") + rule.name + " ") != std::string::npos;
}

template <class Options>
auto* FindByName(const Options& options, std::string_view name)
{
    const auto found =
        std::find_if(std::begin(options), std::end(options), [name](const auto& known) { return known.name == name; });
    return found == std::end(options) ? nullptr : &*found;
}

constexpr std::string_view keptRules = "--rules";

/// The number of values of the option `name`; nothing for one that is neither a rule nor a setting.
std::optional<std::size_t> CountValues(std::string_view name)
{
    if (const RuleOption* const rule = FindByName(ruleOptions, name))
        return static_cast<std::size_t>(rule->count);
    if (const SettingOption* const setting = FindByName(settingOptions, name))
        return *setting->value ? 1 : 0;
    return {};
}

/// An option with its values.
struct OptionWords
{
    std::string name;
    std::vector<CString> values;
};

/// The rules, settings and names of kept rules in the order given.
std::vector<OptionWords> TakeGiven(const CLI::App& command)
{
    std::vector<OptionWords> given;
    std::map<const CLI::Option*, std::size_t> takenOf;
    const std::vector<CLI::Option*>& order = command.parse_order();
    for (std::size_t index = 0; index < order.size();) {
        const CLI::Option& option = *order[index];
        const std::string name = option.get_name();
        const std::optional<std::size_t> count = name == keptRules ? 1 : CountValues(name);
        // The parser notes an option once for each of its values.
        const std::size_t noted = std::max<std::size_t>(count.value_or(1), 1);
        index += noted;
        if (!count)
            continue;
        std::size_t& taken = takenOf[&option];
        OptionWords words{name, {}};
        for (std::size_t value = 0; value < *count; ++value)
            words.values.push_back(FromParser(option.results().at(taken + value)));
        taken += noted;
        given.push_back(std::move(words));
    }
    return given;
}

/// The message that the option `name` cannot be kept: it is another option of `command`, which may be null, or
/// misspelt.
std::string NoRule(const std::string& name, const CLI::App* command)
{
    const std::string fault =
        "'" + Text::SafeText(VyrPlatform::Encoding::FromNameBytes(name)) + "' is neither a rule nor a setting of one";
    if (command && name.starts_with('-') && command->get_option_no_throw(name))
        return fault + "; it is not kept in rules, only given in a call";
    std::vector<std::string> known;
    for (const RuleOption& rule : ruleOptions)
        known.emplace_back(rule.name);
    for (const SettingOption& setting : settingOptions)
        known.emplace_back(setting.name);
    return fault + Text::Hint(name, known);
}

/// The options in a text of kept rules.
/// @param command  the command, whose other options cannot be kept; may be null.
/// @throws UsageError for a line that is neither a rule nor a setting.
std::vector<OptionWords> ReadKept(std::string_view text, const CLI::App* command)
{
    std::vector<OptionWords> given;
    for (const Rename::OptionLine& line : Rename::ReadOptionLines(text)) {
        const std::string name = VyrPlatform::Encoding::ToNameBytes(line.words.front());
        const std::optional<std::size_t> count = CountValues(name);
        if (!count)
            Rename::RefuseLine(line.number, NoRule(name, command));
        if (line.words.size() != *count + 1)
            Rename::RefuseLine(line.number, name + " takes " + std::to_string(*count) +
                                                (*count == 1 ? " value" : " values") + ", not " +
                                                std::to_string(line.words.size() - 1));
        given.push_back({name, {line.words.begin() + 1, line.words.end()}});
    }
    return given;
}

/// Assigns settings to their rules.
class Collector
{
public:
    void Add(const OptionWords& words)
    {
        if (const RuleOption* const rule = FindByName(ruleOptions, words.name))
            m_given.push_back({.option = rule, .values = words.values});
        else if (const SettingOption* const setting = FindByName(settingOptions, words.name))
            AddSetting(*setting, words.values.empty() ? CString() : words.values.front());
    }

    std::vector<Given>& Finish()
    {
        for (const auto& [setting, value] : m_early)
            Set(*setting, value, First(*setting));
        return m_given;
    }

private:
    void AddSetting(const SettingOption& setting, const CString& value)
    {
        const auto rule = std::find_if(m_given.rbegin(), m_given.rend(),
                                       [&setting](const Given& given) { return BelongsTo(setting, *given.option); });
        if (rule == m_given.rend())
            m_early.emplace_back(&setting, value);
        else
            Set(setting, value, *rule);
    }

    Given& First(const SettingOption& setting)
    {
        const auto rule = std::find_if(m_given.begin(), m_given.end(),
                                       [&setting](const Given& given) { return BelongsTo(setting, *given.option); });
        if (rule == m_given.end())
            throw Text::UsageError(WithoutEffect(setting.name, setting.rule));
        return *rule;
    }

    static void Set(const SettingOption& setting, const CString& value, Given& given)
    {
        if (!setting.set(given, value))
            throw Text::UsageError(std::string(setting.name) + " is given twice for one " + setting.rule);
    }

    std::vector<Given> m_given;
    /// Settings that come before every rule of their kind.
    std::vector<std::pair<const SettingOption*, CString>> m_early;
};

Rename::Rules MakeRules(const std::vector<OptionWords>& options)
{
    Collector collector;
    for (const OptionWords& words : options)
        collector.Add(words);
    Rename::Rules all;
    std::optional<Rename::PatternShape> lastPattern;
    for (Given& given : collector.Finish()) {
        given.lastPattern = lastPattern;
        Rename::Rules made = given.option->make(given);
        for (const auto& rule : made)
            if (auto pattern = rule->ShapeOfPattern())
                lastPattern = std::move(pattern);
        std::move(made.begin(), made.end(), std::back_inserter(all));
    }
    return all;
}

/// The options of the kept rules `name`.
/// @throws UsageError, beginning with the name, when they make no sense.
std::vector<OptionWords> LoadKept(const CString& name, const CLI::App& command)
{
    const std::string text = LoadRules(name);
    try {
        std::vector<OptionWords> given = ReadKept(text, &command);
        // Settings must find their rules within the text.
        (void)MakeRules(given);
        return given;
    } catch (const Text::UsageError& error) {
        throw Text::UsageError("the rules '" + Text::SafeText(name) + "': " + error.what());
    }
}

/// `given` with the kept rules in place of their names.
std::vector<OptionWords> WithKept(std::vector<OptionWords> given, const CLI::App& command)
{
    std::vector<OptionWords> all;
    for (OptionWords& words : given) {
        if (words.name != keptRules) {
            all.push_back(std::move(words));
            continue;
        }
        std::vector<OptionWords> kept = LoadKept(words.values.front(), command);
        std::move(kept.begin(), kept.end(), std::back_inserter(all));
    }
    return all;
}

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
    constexpr const char* group = OptionGroup::rules;
    for (const RuleOption& option : ruleOptions)
        Declare(command, option.name, option.values, option.count, option.help, group);
    constexpr const char* settingsGroup = OptionGroup::settings;
    for (const SettingOption& setting : settingOptions)
        Declare(command, setting.name, setting.value, *setting.value ? 1 : 0, setting.help, settingsGroup);
    AddTexts(command, std::string(keptRules).c_str(), "NAME|FILE",
             "Apply kept rules here: those of a name, or of a file (.rules)", group);
    AddText(command, "--save-rules", m_saveAs, "NAME|FILE", "Keep the rules of this call; \"vyr rules\" lists them",
            group);
}

Rename::Rules RuleOptions::Make() const
{
    const std::vector<OptionWords> given = WithKept(TakeGiven(m_command), m_command);
    Rename::Rules rules = MakeRules(given);
    if (!m_saveAs)
        return rules;
    if (rules.empty())
        throw Text::UsageError("--save-rules: there is no rule to keep");
    std::string text;
    for (const OptionWords& words : given) {
        std::vector<CString> line = {VyrPlatform::Encoding::FromUtf8(words.name)};
        line.insert(line.end(), words.values.begin(), words.values.end());
        text += Rename::WriteOptionLine(line);
    }
    SaveRules(FromParser(*m_saveAs), text);
    return rules;
}

std::string RuleOptions::NotKept() const
{
    constexpr std::string_view groups[] = {OptionGroup::where, OptionGroup::sources, OptionGroup::choice,
                                           OptionGroup::order, OptionGroup::conflicts};
    std::string names;
    if (!m_saveAs)
        return names;
    for (const CLI::Option* const option : std::as_const(m_command).get_options())
        if (option->count() > 0 && std::ranges::find(groups, option->get_group()) != std::end(groups))
            names += (names.empty() ? "" : ", ") + option->get_name();
    return names;
}

Rename::Rules MakeKeptRules(std::string_view text)
{
    return MakeRules(ReadKept(text, nullptr));
}

} // namespace VyrHost::Cli
