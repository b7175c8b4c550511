#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/ChangeCommand.h>
#include <VyrHost/cli/FileRecords.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/documents/Document.h>
#include <VyrHost/documents/Properties.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/RecordTable.h>
#include <VyrPlatform/files/FileIdentity.h>

#include <CLI/CLI.hpp>

#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

using Ui::RecordKind;
using Ui::RecordValue;
using VyrPlatform::FileSystem::Kind;
namespace Id = VyrPlatform::SummaryId;

constexpr const char* propertiesGroup = "Which properties they get";

/// A document of the list.
struct ListedDocument
{
    CString name;
    CString path;
    Documents::Document document;
};

template <std::uint32_t id>
RecordValue TextOf(const ListedDocument& listed)
{
    const auto& texts = listed.document.properties.texts;
    const auto found = texts.find(id);
    return found == texts.end() ? RecordValue() : Ui::ValueOf(found->second);
}

template <std::uint32_t id>
RecordValue TimeOf(const ListedDocument& listed)
{
    const auto& times = listed.document.properties.times;
    const auto found = times.find(id);
    return found == times.end() ? RecordValue() : DateOf(found->second);
}

std::span<const Ui::RecordField<ListedDocument>> Fields()
{
    static const Ui::RecordField<ListedDocument> fields[] = {
        {{"name", "Name", RecordKind::Text, true},
         [](const ListedDocument& listed) {
             return RecordValue(listed.name);
         }},
        {{"path", "Path", RecordKind::Text},
         [](const ListedDocument& listed) {
             return RecordValue(listed.path);
         }},
        {{"title", "Title", RecordKind::Text, true}, TextOf<Id::title>},
        {{"subject", "Subject", RecordKind::Text}, TextOf<Id::subject>},
        {{"author", "Author", RecordKind::Text, true}, TextOf<Id::author>},
        {{"keywords", "Keywords", RecordKind::Text}, TextOf<Id::keywords>},
        {{"comments", "Comments", RecordKind::Text}, TextOf<Id::comments>},
        {{"lastAuthor", "Last author", RecordKind::Text, true}, TextOf<Id::lastAuthor>},
        {{"revision", "Revision", RecordKind::Text}, TextOf<Id::revision>},
        {{"template", "Template", RecordKind::Text}, TextOf<Id::templateName>},
        {{"application", "Application", RecordKind::Text}, TextOf<Id::application>},
        {{"created", "Created", RecordKind::Date}, TimeOf<Id::created>},
        {{"saved", "Saved", RecordKind::Date, true}, TimeOf<Id::saved>},
        {{"printed", "Printed", RecordKind::Date}, TimeOf<Id::printed>},
        {{"others", "Others", RecordKind::Number},
         [](const ListedDocument& listed) {
             return RecordValue(static_cast<std::int64_t>(listed.document.properties.others));
         }},
        {{"signed", "Signed", RecordKind::Flag},
         [](const ListedDocument& listed) {
             return RecordValue(listed.document.properties.isSigned);
         }},
        {{"encrypted", "Encrypted", RecordKind::Flag},
         [](const ListedDocument& listed) {
             return RecordValue(listed.document.properties.isEncrypted);
         }},
        {{"problem", "Problem", RecordKind::Text, true},
         [](const ListedDocument& listed) {
             return Ui::ValueOf(listed.document.problem);
         }},
    };
    return fields;
}

/// The documents of a list.
class DocumentRecords
{
public:
    explicit DocumentRecords(const Collect::SourceSettings& sources) : m_collected(Collect::CollectEntries(sources))
    {
        for (const CString& problem : m_collected.problems)
            Complain(Text::SafeText(problem));
        m_hasProblem = !m_collected.problems.empty();
        for (const Model::Entry& entry : m_collected.list.entries)
            Add(entry);
    }

    [[nodiscard]] Ui::RecordTable Table() const { return Ui::TableOf(m_documents, Fields()); }
    [[nodiscard]] int Code() const { return m_hasProblem ? ExitCode::partly : ExitCode::success; }
    [[nodiscard]] std::string Total() const
    {
        std::string total = CountedNoun(m_documents.size(), "document", "documents") + ".";
        if (m_others > 0)
            total += " " + CountedNoun(m_others, "file is not a document", "files are not documents") + ".";
        if (std::string leftOut = LeftOutNotice(m_collected); !leftOut.empty()) {
            leftOut.pop_back();
            total += " " + leftOut;
        }
        return total;
    }

private:
    void Add(const Model::Entry& entry)
    {
        const Model::EntryList& list = m_collected.list;
        ListedDocument listed{CString::Join({list.folders[entry.folder].shown, entry.name}), list.PathOf(entry), {}};
        if (entry.kind == Kind::Missing) {
            m_hasProblem = true;
            Complain("'" + Text::SafeText(listed.name) +
                     "': " + Text::SafeText(Text::ErrorText(VyrPlatform::LookAtFile(listed.path).error)));
            return;
        }
        if (entry.kind == Kind::File)
            listed.document = Documents::ReadDocument(listed.path);
        if (!listed.document.isDocument) {
            ++m_others;
            return;
        }
        m_hasProblem = m_hasProblem || !listed.document.problem.IsEmpty();
        m_documents.push_back(std::move(listed));
    }

    Collect::CollectedEntries m_collected;
    std::vector<ListedDocument> m_documents;
    std::size_t m_others = 0;
    bool m_hasProblem = false;
};

void AddValues(CLI::App& command, const char* name, const char* value, const std::string& help)
{
    command.add_option(name, help)
        ->type_name(value)
        ->type_size(1)
        ->expected(1)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->group(propertiesGroup);
}

/// Shows the properties of documents, or sets and clears them.
class PropertiesCommand final : public Command
{
public:
    explicit PropertiesCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] int Change(const Collect::SourceSettings& sources) const;
    [[nodiscard]] int Show(const Collect::SourceSettings& sources) const;

    SourceOptions m_sources;
    RecordOptions m_records;
    bool m_clearsAll = false;
    bool m_breaksSignatures = false;
    bool m_apply = false;
};

} // namespace

PropertiesCommand::PropertiesCommand(CLI::App& program)
    : Command(*program.add_subcommand("properties", "Show the properties of documents, or set and clear them")),
      m_sources(m_command, "change"), m_records(m_command, Ui::ColumnsOf(Fields()))
{
    AddValues(
        m_command, "--set", "NAME=TEXT",
        "Set title, subject, author, keywords, comments, lastAuthor, revision, template or application; <Name> in "
        "the text stands for the file's name without its extension, <Parent> for its folder's name. Or set created, "
        "saved or printed to a date such as 2024-01-05 or \"2024-01-05 10:30\"");
    AddValues(m_command, "--clear", "LIST", "Clear these, or the thumbnail; several separated by commas");
    AddFlag(
        m_command, "--clear-all", m_clearsAll,
        "Clear all of them but the thumbnail, and all others (company, category, manager and the user's own), except "
        "what --set names",
        propertiesGroup);
    AddFlag(m_command, "--break-signature", m_breaksSignatures, "Change signed documents, too", propertiesGroup);
    AddFlag(m_command, "--apply", m_apply, "Change the documents; without it the result is only shown",
            "What is done and shown");
    m_command.footer(
        HelpFooter("properties",
                   "Without an option that sets or clears a property they are shown. Without --apply nothing is "
                   "changed. What --apply changed, \"vyr undo\" undoes: the old documents are kept with the journal, 2 "
                   "GB a batch at most. The text of a document, its tracked changes, its review comments with their "
                   "authors, its macros and its thumbnail are never touched, unless --clear names the thumbnail. Nor "
                   "are the names of who saved it last that old Word and PowerPoint files keep outside the "
                   "properties.\n\n"));
}

int PropertiesCommand::Run() const
{
    const bool isChange =
        m_clearsAll || m_command.get_option("--set")->count() > 0 || m_command.get_option("--clear")->count() > 0;
    m_records.Check();
    const Collect::SourceSettings sources = m_sources.Read();
    if (!m_sources.NamesAny())
        throw Text::UsageError("no document is named; -r . takes those in this folder and below");
    return isChange ? Change(sources) : Show(sources);
}

int PropertiesCommand::Show(const Collect::SourceSettings& sources) const
{
    if (m_apply || m_breaksSignatures)
        throw Text::UsageError(
            WithoutEffect(m_apply ? "--apply" : "--break-signature", "--set, --clear or --clear-all"));
    const DocumentRecords documents(sources);
    return m_records.Write(documents.Table(), documents.Total(), documents.Code());
}

int PropertiesCommand::Change(const Collect::SourceSettings& sources) const
{
    for (const char* const option : {"--csv", "--html", "--columns", "--sort", "--descending"})
        if (m_command.get_option(option)->count() > 0)
            throw Text::UsageError(std::string(option) +
                                   " is for lists; nothing is listed where properties are changed");
    Documents::PropertyRequest request;
    request.clearsAll = m_clearsAll;
    request.breaksSignatures = m_breaksSignatures;
    for (const std::string& value : m_command.get_option("--set")->results())
        Documents::ParseProperty(FromParser(value), request);
    for (const std::string& value : m_command.get_option("--clear")->results())
        Documents::ParseCleared(FromParser(value), request);
    ReportStyle style{m_records.IsJson(), m_records.IsQuiet(), !m_apply};
    if (m_clearsAll)
        style.remark =
            "Texts, tracked changes, review comments with their authors, macros and thumbnails stay as they are.\n"
            "So do the names of who saved a document last that old Word and PowerPoint files keep outside its "
            "properties.\n";
    if (style.isPreview)
        OfferRecovery();
    return RunChanges("properties", Documents::PropertiesChange::kind, Documents::PropertiesRule(std::move(request)),
                      TakeEntries(sources, {}), style);
}

std::unique_ptr<Command> AddPropertiesCommand(CLI::App& program)
{
    return std::make_unique<PropertiesCommand>(program);
}

} // namespace VyrHost::Cli
