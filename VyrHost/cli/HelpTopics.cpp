// The texts of the help: one for "vyr rename --help", one for each topic.
#include <VyrHost/cli/HelpTopics.h>

#include <VyrHost/cli/Help.h>

namespace VyrHost::Cli {

namespace {

constexpr const char* renameHelp =
    R"~(Rename files and folders by rules. Shows the result; --apply renames.
Usage: vyr rename RULE... [OPTION...] PATH...

Rules, applied in the order given (vyr help rules):
  --name TEMPLATE         The whole new name: "<Taken:yyyy> <Model> <##>"
  --number TEMPLATE       A sequence number: "Trip ###", "<Name>-#"
  --date FORMAT           A date of the file: "yyyy-MM-dd <Name>"
  --replace FIND WITH     Put WITH in place of FIND
  --regex FIND WITH       Put WITH in place of what a pattern matches
  --prefix TEXT           Put TEXT before the name; --suffix after it
  --insert PLACE:TEXT     By places: --insert, --delete, --delete-first,
                          --delete-last, --keep-first, --keep-last
  --case WORD             first, upper, lower, title, title-en or sentence
  --pad N                 Numbers with N digits; --trim, --collapse: blanks;
                          --ascii: accents spelled out
  --extension NEW         Also --extension-case, --drop-extension
  --rules NAME            Kept rules; --save-rules NAME keeps those of a call
Settings of the rule before them:
  --start N, --step N     Of --number; --date-from LIST of --date,
                          as --date-shift, --time-zone; --csv-data of --name
  --ignore-case           Of --replace and --regex; --regex has --first-only,
                          --nth, --regex-in as well

Which files (vyr help choosing):
  -r, --recursive         What is below folders; --only, --max-depth, --hidden
  --include NAMES         Only these: "*.jpg"; --exclude NAMES leaves out
  --modified RANGE        Also --created, --taken, --size
  --stdin, --pairs FILE   Names from another program, or old and new names
  --sort KEY              The order; --together keeps raw, JPEG, sidecar as one
Where they go:
  --into FOLDER           Move them; --remove-empty removes emptied folders
  --on-conflict WORD      When a name is taken: number, skip or fail
What is done:
  --apply                 Rename; vyr undo undoes it (vyr help undo)
  --edit                  Look through the names in your editor first
  --json, --quiet, --html The form of the output

)~";

constexpr const char* renameHelpEnd =
    R"~(
Topics of vyr help: rules, tokens, dates, choosing, undo. vyr help rename lists
every option. Exit codes: 0 all done, 1 not all, 2 wrong call (vyr help undo).
)~";

constexpr const char* const ruleGroups[] = {OptionGroup::rules, OptionGroup::settings, OptionGroup::where};

constexpr const char* rulesText =
    R"~(Each rule works on the result of the one before. A setting belongs to the rule
of its kind before it. Rules change the name before the extension, unless they
name the extension.

Patterns are written as in Perl: groups, (?<name>...), look-around, lazy
quantifiers. In WITH:
  $1 ${1} ${name}  what a group matched
  $& $0            the whole match
  $$ \$            a dollar sign
  \U \L ... \E     capital or small letters up to \E
  \u \l            the next letter alone
Quote patterns and WITH: single quotes in bash, double quotes on Windows.

Kept rules are plain text, one option a line; "vyr rules" lists them:
  --regex "^(.+) - (.+)$" "$2 - $1"
  --case title
They contain only rules and their settings, not the choice of files, their
order, where they go or what to do about taken names.

Examples:
  vyr rename --regex '^(.+) - (.+)$' '$2 - $1' *.mp3
        "Artist - Title" swapped
  vyr rename --regex '(\d\d)\.(\d\d)\.(\d{4})' '$3-$2-$1' *.pdf
        dates turned from day-first
  vyr rename --regex "^\d+[ ._-]*" "" *.mp3
        leading numbers of any length stripped
  vyr rename --replace _ " " --collapse --trim --case title-en *.mp3
        a title of words
)~";

constexpr const char* tokensText =
    R"~(In --number:
  ### #             the number; each # is at least one digit
  <Number>          the number, where # is text
  <Name>            the name so far
In --date:
  <Name>            the name so far
  <Make> <Model>    the camera's maker and model
  <Folder>          ends the name of a folder to move into

Examples:
  vyr rename --name "<Taken:yyyy-MM-dd> <##:per day>" *.jpg
        2024-07-19 01.jpg, 2024-07-19 02.jpg, ...
  vyr rename --number "<Name> (#)" --start 10 *.pdf
        letter (10).pdf, list (11).pdf, ...
  vyr rename --date "yyyy<Folder>MM<Folder><Name>" *.jpg
        year and month folders
)~";

/// docs/date-time-formats.md says the same; a test compares them.
constexpr const char* datesText =
    R"~(Letters of --date and of <Taken:FORMAT> (text goes in apostrophes):
  yyyy yy        year              HH H  hour, 0 to 23
  MMMM MMM MM M  month             hh h  hour, 1 to 12
  dd d           day               mm m  minute
  EEEE EEE       day of the week   ss s  second
  SSS            milliseconds      a     before or after noon

--date-from names the dates to look for; the first that a file has is used:
  picture   when the picture was taken
  digitized when it was digitized
  xmp       the date in its XMP, or in the sidecar beside it
  video     when the film was made
  name      the date in the name: IMG_20240105_103000
  modified  the last change (unless given)
  created   when the file was created
  accessed  the last access
--date-shift moves these dates (+1h, -30m, 1y2mo3d). --time-zone gives the clock
for dates whose instant is known (UTC, +02:00).

A file without such a date is refused in its row. With --together one date
serves a raw file, its JPEG and its sidecar.

Examples:
  vyr rename --date "yyyy-MM-dd HH.mm.ss" --date-from picture,modified *.jpg
        by the date taken, else that of the last change
  vyr rename --date "<Name> yyyy" *.pdf
        the year after the name
)~";

constexpr const char* const choosingGroups[] = {OptionGroup::sources, OptionGroup::choice, OptionGroup::order};

constexpr const char* choosingText =
    R"~(--together takes no file along that is not among the given ones: name them all,
such as IMG_1.* or -r .
Choosing ignores upper and lower case unless --match-case is given. All commands
that take files have these options, but for the order of numbers.

Examples:
  vyr rename --prefix x -r . --include "*.jpg" --exclude thumbs
        only pictures below this folder, none in folders called thumbs
  vyr rename --number "Trip ###" --sort date *.jpg
        numbered in the order of the last change
)~";

constexpr const char* const undoGroups[] = {OptionGroup::conflicts, OptionGroup::run};

constexpr const char* undoText =
    R"~(Nothing is changed without --apply. A batch is written to a journal before its
first change, and nothing is ever overwritten.
  vyr undo          undoes the latest batch of this folder
  vyr undo --list   lists the batches with their numbers
  vyr undo 3        undoes batch 3, or redoes it by the number of its undo
  vyr recover       ends a batch that was cut off (power loss, kill)
A file that was written to since gets its old name back all the same; times,
attributes, marks and properties that were changed since stay. The rows say so.

Exit codes:
  0    all is done, or can be done
  1    some entries were refused or failed, or a folder could not be read
  2    the call is wrong; nothing was done
  3    the result could not be written
  4    nothing was done, such as nothing to undo
  130  interrupted (Ctrl-C)
)~";

constexpr HelpTopic topics[] = {
    {"rules", "the rules of vyr rename, and where entries go", ruleGroups, rulesText},
    {"tokens", "the words in angle brackets", {}, tokensText, TokensTopic},
    {"dates", "the letters of dates, and where dates come from", {}, datesText},
    {"choosing", "which files are meant, and their order", choosingGroups, choosingText},
    {"undo", "what is done and shown, names that are taken, undo", undoGroups, undoText},
};

} // namespace

std::span<const HelpTopic> HelpTopics()
{
    return topics;
}

std::string ShortHelp(std::string_view command)
{
    constexpr std::size_t mostExamples = 3;
    if (command != "rename")
        return {};
    return renameHelp + ExamplesOf("rename", mostExamples) + renameHelpEnd;
}

} // namespace VyrHost::Cli
