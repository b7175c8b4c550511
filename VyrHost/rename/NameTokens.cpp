// Makes the readers of tokens; each returns one value of an entry.
#include <VyrHost/rename/NameTokens.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/Pieces.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <random>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

namespace {

using Model::DateSource;
using VyrPlatform::Encoding::FromUtf8;
using VyrPlatform::Encoding::ToUtf8;

constexpr const char* option = "--name";

/// A token that is being parsed.
struct Making
{
    const Text::Token& token;
    const TemplateSettings& settings;
    /// The whole template.
    std::u16string_view text;
    /// The content values that the template needs of every file.
    Media::MediaQuestion& question;

    [[noreturn]] void Refuse(const std::string& reason) const
    {
        Text::RefuseValue(option, text, Text::SafeText(token.whole) + ": " + reason);
    }
    void RequireNoOption() const
    {
        if (token.option)
            Refuse("it takes nothing after a colon");
    }
    /// A whole number from 1 to `most` after the colon; `usual` without one.
    [[nodiscard]] int Number(int usual, int most) const
    {
        if (!token.option)
            return usual;
        const auto number = Text::ReadWhole(*token.option);
        if (!number || *number < 1 || *number > most)
            Refuse("a whole number from 1 to " + std::to_string(most) + " is expected after the colon");
        return static_cast<int>(*number);
    }
};

/// A value; missing if it is empty.
TokenAnswer Told(const CString& text)
{
    return text.IsEmpty() ? TokenAnswer{} : TokenAnswer{text};
}

/// A value from the file's content.
TokenAnswer ToldByContent(const CString& text, FileValues& values)
{
    if (text.IsEmpty() && values.ReadError() != 0)
        return {std::nullopt, Reason::ContentNotRead};
    return Told(text);
}

/// `number` with at least `width` digits; empty for 0.
CString NumberText(std::uint64_t number, int width = 1)
{
    std::string digits = std::to_string(number);
    digits.insert(0, std::max(static_cast<std::size_t>(width), digits.size()) - digits.size(), '0');
    return number == 0 ? CString() : FromUtf8(digits);
}

/// Reads a text from the file's content.
TokenReader ContentReader(const Making& making, const Media::MediaQuestion& more,
                          std::function<CString(FileValues& values, const Media::MediaQuestion& question)> ask)
{
    AddTo(making.question, more);
    return [&question = std::as_const(making.question), ask = std::move(ask)](Subject& subject) {
        FileValues& values = FileValuesOf(subject);
        return ToldByContent(ask(values, question), values);
    };
}

template <CString (FileValues::*Ask)()>
TokenReader MakeCamera(const Making& making)
{
    making.RequireNoOption();
    return [](Subject& subject) {
        FileValues& values = FileValuesOf(subject);
        return ToldByContent((values.*Ask)(), values);
    };
}

template <std::uint32_t Media::MediaValues::*Length>
TokenReader MakeLength(const Making& making)
{
    making.RequireNoOption();
    Media::MediaQuestion question;
    question.size = true;
    return ContentReader(making, question, [](FileValues& values, const Media::MediaQuestion& all) {
        return NumberText(values.Content(all).*Length);
    });
}

/// "01.02.03": hours, minutes and seconds; with "s" after the colon all in seconds.
TokenReader MakeDuration(const Making& making)
{
    if (making.token.option && *making.token.option != u"s")
        making.Refuse("only s, for seconds, may follow a colon");
    Media::MediaQuestion question;
    question.duration = true;
    return ContentReader(
        making, question,
        [inSeconds = making.token.option.has_value()](FileValues& values, const Media::MediaQuestion& all) {
            constexpr std::uint64_t millisecondsPerSecond = 1000;
            constexpr std::uint64_t secondsPerMinute = 60;
            constexpr std::uint64_t minutesPerHour = 60;
            const auto& duration = values.Content(all).duration;
            if (!duration)
                return CString();
            const std::uint64_t seconds = *duration / millisecondsPerSecond;
            if (inSeconds)
                return FromUtf8(std::to_string(seconds));
            const std::uint64_t minutes = seconds / secondsPerMinute;
            CString text;
            text.Format(u"%02u.%02u.%02u", minutes / minutesPerHour, minutes % minutesPerHour,
                        seconds % secondsPerMinute);
            return text;
        });
}

TokenReader MakeExif(const Making& making)
{
    const CString name = making.token.option.value_or(CString());
    const auto tag = Media::FindExifTag(name);
    if (!tag) {
        std::vector<std::string> known;
        for (const std::u16string_view one : Media::ExifTagNames())
            known.push_back(ToUtf8(one));
        making.Refuse("the name of a tag is expected after a colon, such as LensModel" +
                      Text::Hint(ToUtf8(name), known, "<Exif:", ">"));
    }
    Media::MediaQuestion question;
    question.exif.set(static_cast<std::size_t>(*tag));
    return ContentReader(making, question, [tag = *tag](FileValues& values, const Media::MediaQuestion& all) {
        return AsNamePart(values.Content(all).Exif(tag));
    });
}

Media::MediaQuestion QuestionForWork()
{
    Media::MediaQuestion question;
    question.tags = true;
    return question;
}

template <CString WorkValues::*Text>
TokenReader MakeWorkText(const Making& making)
{
    making.RequireNoOption();
    return ContentReader(making, QuestionForWork(), [](FileValues& values, const Media::MediaQuestion& question) {
        return AsNamePart(values.Work(question).*Text);
    });
}

/// A number as wide as the option has "#".
template <unsigned WorkValues::*Number>
TokenReader MakeWorkNumber(const Making& making)
{
    constexpr std::size_t mostDigits = 9;
    const std::u16string_view width = making.token.option ? making.token.option->View() : u"#";
    if (width.empty() || width.size() > mostDigits || width.find_first_not_of(u'#') != width.npos)
        making.Refuse("as many # as it has digits are expected after a colon, such as ##");
    return ContentReader(
        making, QuestionForWork(),
        [digits = static_cast<int>(width.size())](FileValues& values, const Media::MediaQuestion& question) {
            return NumberText(values.Work(question).*Number, digits);
        });
}

TokenReader MakeHash(const Making& making)
{
    constexpr int allDigits = 64;
    return [count = making.Number(allDigits, allDigits)](Subject& subject) {
        FileValues& values = FileValuesOf(subject);
        return ToldByContent(values.Hash().Left(count), values);
    };
}

TokenReader MakeName(const Making& making)
{
    making.RequireNoOption();
    return [](Subject& subject) {
        return Told(subject.name);
    };
}

TokenReader MakeExtension(const Making& making)
{
    making.RequireNoOption();
    return [](Subject& subject) {
        return Told(subject.extension.Mid(1));
    };
}

TokenReader MakeParent(const Making& making)
{
    constexpr int mostLevels = 1000;
    return [level = making.Number(1, mostLevels)](Subject& subject) {
        return Told(Model::ParentName(subject.path, level));
    };
}

/// The format after the colon.
DateWriter FormatOf(const Making& making)
{
    const CString format = making.token.option.value_or(u"yyyy-MM-dd");
    RequireDateOption(format, option, making.text);
    if (format.IsEmpty())
        making.Refuse("the format gives no text");
    return DateWriter(format);
}

TokenReader DateReader(const Making& making, std::vector<DateSource> sources)
{
    DateSettings settings = making.settings.dates;
    settings.sources = std::move(sources);
    AddTo(making.question, QuestionFor(settings));
    return [format = FormatOf(making), settings, &question = std::as_const(making.question)](Subject& subject) {
        const FoundDate date = FindDate(FileValuesOf(subject), settings, question);
        subject.dateRank = std::max(subject.dateRank, date.rank);
        if (date.reason != Reason::None)
            return TokenAnswer{std::nullopt, date.reason};
        if (settings.sources.size() > 1)
            subject.datesTaken.Add(settings.sources[date.rank]);
        return TokenAnswer{format.Write(date.moment), Reason::None, date.moment};
    };
}

template <DateSource Source>
TokenReader MakeDate(const Making& making)
{
    return DateReader(making, {Source});
}

TokenReader MakeChosenDate(const Making& making)
{
    return DateReader(making, making.settings.dates.sources);
}

TokenReader MakeSize(const Making& making)
{
    making.RequireNoOption();
    return [](Subject& subject) {
        const auto size = FileValuesOf(subject).Size();
        return size ? TokenAnswer{FromUtf8(std::to_string(*size))} : TokenAnswer{};
    };
}

/// `count` random characters from `signs`.
CString RandomText(std::u16string_view signs, int count)
{
    static std::random_device device;
    std::uniform_int_distribution<std::size_t> next(0, signs.size() - 1);
    std::u16string text;
    for (; count > 0; --count)
        text += signs[next(device)];
    return std::u16string_view(text);
}

TokenReader MakeRandom(const Making& making)
{
    constexpr int usual = 8;
    constexpr int most = 64;
    return [count = making.Number(usual, most)](Subject&) {
        return TokenAnswer{RandomText(u"0123456789abcdefghijklmnopqrstuvwxyz", count)};
    };
}

/// UUID version 4 (RFC 9562).
TokenReader MakeUuid(const Making& making)
{
    making.RequireNoOption();
    return [](Subject&) {
        constexpr std::u16string_view digits = u"0123456789abcdef";
        return TokenAnswer{
            CString::Join({RandomText(digits, 8), u"-", RandomText(digits, 4), u"-4", RandomText(digits, 3), u"-",
                           RandomText(u"89ab", 1), RandomText(digits, 3), u"-", RandomText(digits, 12)})};
    };
}

TokenReader MakeCsv(const Making& making)
{
    if (!making.settings.csv)
        making.Refuse("--csv-data FILE is needed for it");
    if (!making.token.option)
        making.Refuse("the name of a column is expected after a colon");
    const CsvData& csv = *making.settings.csv;
    const auto column = csv.FindColumn(*making.token.option);
    if (!column)
        making.Refuse("the CSV data have no such column" +
                      Text::Hint(ToUtf8(*making.token.option), csv.Columns(), "<Csv:", ">"));
    return [data = making.settings.csv, column = *column](Subject& subject) {
        return Told(AsNamePart(data->Find(subject.path, column)));
    };
}

struct TokenKind
{
    const char* word;
    TokenReader (*make)(const Making& making);
};

constexpr TokenKind kinds[] = {
    {"Name", MakeName},
    {"Extension", MakeExtension},
    {"Parent", MakeParent},
    {"Taken", MakeDate<DateSource::PictureTaken>},
    {"Modified", MakeDate<DateSource::Modified>},
    {"Created", MakeDate<DateSource::Created>},
    {"Date", MakeChosenDate},
    {"Make", MakeCamera<&FileValues::Make>},
    {"Model", MakeCamera<&FileValues::Model>},
    {"Width", MakeLength<&Media::MediaValues::width>},
    {"Height", MakeLength<&Media::MediaValues::height>},
    {"Duration", MakeDuration},
    {"Exif", MakeExif},
    {"Title", MakeWorkText<&WorkValues::title>},
    {"Artist", MakeWorkText<&WorkValues::artist>},
    {"Album", MakeWorkText<&WorkValues::album>},
    {"Genre", MakeWorkText<&WorkValues::genre>},
    {"Track", MakeWorkNumber<&WorkValues::track>},
    {"Disc", MakeWorkNumber<&WorkValues::disc>},
    {"Year", MakeWorkNumber<&WorkValues::year>},
    {"Hash", MakeHash},
    {"Size", MakeSize},
    {"Uuid", MakeUuid},
    {"Random", MakeRandom},
    {"Csv", MakeCsv},
};

constexpr TokenHelp table[] = {
    {"<Name>", "the name so far, without its extension"},
    {"<Extension>", "the extension without its dot; a template that ends in .<Extension> gives it itself"},
    {"<Parent>", "the folder that the entry is in; <Parent:2> the one above it"},
    {"<Folder>", "ends the name of a folder to move into"},
    {"<#>", "a counter; each # is at least one digit: <###:start 5 step 2 per day>"},
    {"<Taken:FORMAT>", "when the picture was taken, such as <Taken:yyyy-MM-dd>"},
    {"<Modified:FORMAT>", "when the file was last changed"},
    {"<Created:FORMAT>", "when the file was made"},
    {"<Date:FORMAT>", "the first date of --date-from that the file has"},
    {"<Make>", "the maker of the camera"},
    {"<Model>", "the model of the camera"},
    {"<Width>", "the width of a picture or film in points"},
    {"<Height>", "the height of a picture or film in points"},
    {"<Duration>", "of a film or a piece of music: hours.minutes.seconds; <Duration:s> in seconds"},
    {"<Exif:TAG>", "a tag of a picture by exiftool's name, such as <Exif:LensModel>"},
    {"<Title>", "of music, a film or a document"},
    {"<Artist>", "of music or a film; the author of a document"},
    {"<Album>", "of music or a film"},
    {"<Track:##>", "the track of music or a film; each # is at least one digit"},
    {"<Disc>", "the disc of music"},
    {"<Year>", "of music or a film; the year in which a document was made"},
    {"<Genre>", "of music or a film; the keywords of a document"},
    {"<Size>", "the size in bytes"},
    {"<Hash:8>", "the first 8 digits of the SHA-256 of the content; without a number all 64"},
    {"<1>", "a group of the last --regex, by its number or its name"},
    {"<Csv:COLUMN>", "the field of that column in the line of --csv-data for the file"},
    {"<Uuid>", "a random identifier of 36 characters"},
    {"<Random:8>", "8 random digits and small letters"},
};

bool IsNumber(std::u16string_view word)
{
    return std::all_of(word.begin(), word.end(), [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

std::string TokenHintOf(const Text::Token& token)
{
    std::vector<std::string> words = {"Folder"};
    for (const TokenKind& kind : kinds)
        words.emplace_back(kind.word);
    return Text::TokenHint(token, words);
}

TokenReader MakeGroup(const Making& making, std::size_t number)
{
    making.RequireNoOption();
    return [number](Subject& subject) {
        const auto text = subject.groups.Find(number);
        return Told(CString(text.value_or(std::u16string_view())));
    };
}

TokenReader MakeNumberedGroup(const Making& making)
{
    const auto& pattern = making.settings.pattern;
    if (!pattern)
        making.Refuse("there is no --regex before it");
    const int number = ParseNumber(making.token.word, 0, option);
    if (static_cast<std::size_t>(number) > pattern->count)
        making.Refuse("the last --regex has " + std::to_string(pattern->count) +
                      (pattern->count == 1 ? " group" : " groups"));
    return MakeGroup(making, static_cast<std::size_t>(number));
}

/// The reader of the group that the token names; nothing if there is no such group.
TokenReader MakeNamedGroup(const Making& making)
{
    const auto& pattern = making.settings.pattern;
    const auto hasName = [&making](const GroupName& group) {
        return group.name == making.token.word;
    };
    if (!pattern || std::none_of(pattern->names.begin(), pattern->names.end(), hasName))
        return nullptr;
    making.RequireNoOption();
    return [name = making.token.word](Subject& subject) {
        const auto text = subject.groups.Find(name.View());
        return Told(CString(text.value_or(std::u16string_view())));
    };
}

} // namespace

std::span<const TokenHelp> TokenTable()
{
    return table;
}

TokenReader ReaderOf(const Text::Token& token, const TemplateSettings& settings, std::u16string_view text,
                     Media::MediaQuestion& question)
{
    const Making making{token, settings, text, question};
    if (IsNumber(token.word))
        return MakeNumberedGroup(making);
    const std::string word = ToUtf8(token.word);
    for (const TokenKind& kind : kinds)
        if (word == kind.word)
            return kind.make(making);
    if (TokenReader group = MakeNamedGroup(making))
        return group;
    Text::RefuseValue(option, text, "it knows no " + Text::SafeText(token.whole) + TokenHintOf(token));
}

} // namespace VyrHost::Rename
