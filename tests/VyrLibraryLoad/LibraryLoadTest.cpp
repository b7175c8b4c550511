// The libraries as a host meets them that loads them while it runs: every published name is there, calls work, and
// nothing is left after unloading.
#include <VyrLibraryFuncs/frame/VyrLibraryFuncsApp.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/common/process/ApplicationCounts.h>

#include <tests/support/Describe.h>
#include <tests/support/DynamicLibrary.h>
#include <tests/support/FixedClock.h>

#include "PublishedClasses.h"

#include <gmock/gmock.h>

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string_view>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::Describe;
using VyrTests::DynamicLibrary;
using VyrTests::FixedClock;

namespace {

const std::string libraryNames[] = {"VyrLibraryUtils", "VyrLibraryFuncs"};

/// The symbol as the source spells it, without the compiler's note about its library's strings.
std::string Demangled(const std::string& symbol)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> demangled(
        abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status), &std::free);
    std::string name = status == 0 ? demangled.get() : symbol;
    const std::string note = "[abi:cxx11]";
    for (std::size_t found; (found = name.find(note)) != std::string::npos;)
        name.erase(found, note.size());
    return name;
}

/// Whether `symbol` is a destructor that also frees the object. It reads as the one that does not.
bool IsDeletingDestructor(const std::string& symbol)
{
    return symbol.ends_with("D0Ev");
}

/// The library's exports: the readable form of each, and its symbol.
std::map<std::string, std::string> ReadableExports(const DynamicLibrary& library)
{
    std::map<std::string, std::string> exports;
    for (const std::string& symbol : library.Exports())
        if (!IsDeletingDestructor(symbol))
            exports.emplace(Demangled(symbol), symbol);
    return exports;
}

/// Whether the export is an operation of a function class or of the text file: neither constructor, destructor nor
/// assignment.
bool IsOperation(const std::string& readable)
{
    static const std::regex operation(
        R"((?:VyrLibraryFuncs::(\w+Funcs)|(CStdioFileEx))::(?!\1\(|\2\(|operator=)\w.*\(.*)");
    return std::regex_match(readable, operation);
}

/// `operation` as both systems spell it: 64 bits are "long" on one and "long long" on the other, and a pointer to an
/// interface is told by the interface's name alone.
std::string Canonical(std::string operation)
{
    for (std::size_t at; (at = operation.find("long long")) != std::string::npos;)
        operation.erase(at, std::string_view("long ").size());
    for (const std::string_view prefix : {"tag", "_"})
        if (const std::size_t at = operation.find(std::string(prefix) + "INTERNETFEATURELIST"); at != std::string::npos)
            operation.erase(at, prefix.size());
    if (const std::size_t at = operation.find("_com_IIID_getter<"); at != std::string::npos)
        operation.erase(at + std::string_view("_com_IIID").size(), std::string_view("_getter").size());
    const std::size_t pointer = operation.find("_com_IIID<");
    return pointer == std::string::npos ? operation : operation.substr(0, operation.find(',', pointer));
}

/// The number of exports called `name`, with any arguments.
int CountOverloads(const std::map<std::string, std::string>& exports, const std::string& name)
{
    const std::string start = name + '(';
    int count = 0;
    for (auto found = exports.lower_bound(start); found != exports.end() && found->first.starts_with(start); ++found)
        ++count;
    return count;
}

/// The function whose readable name is `name`, as a pointer of the type that the caller knows it has.
template <class Function>
Function* Get(const DynamicLibrary& library, const std::string& name)
{
    const std::map<std::string, std::string> exports = ReadableExports(library);
    const auto found = exports.find(name);
    return found == exports.end() ? nullptr : reinterpret_cast<Function*>(library.Find(found->second));
}

/// `operation` without the one type that is published by reference.
std::string WithoutListControl(std::string operation)
{
    const std::string listControl = "CListCtrl&";
    const std::size_t found = operation.find(listControl);
    return found == std::string::npos ? operation : operation.erase(found, listControl.size());
}

std::vector<PublishedClass> ClassesOf(const std::string& library)
{
    return ReadPublishedClasses(std::filesystem::path(VYR_SOURCE_FOLDER) / library);
}

} // namespace

TEST(LibraryLoad, HeadersPublishTheClassesThatTheTestsKnow)
{
    std::set<std::string> names;
    for (const std::string& library : libraryNames)
        for (const PublishedClass& published : ClassesOf(library))
            names.insert(published.name);
    for (const char* const name : {"VyrLibraryFuncs::NameFuncs",
                                   "VyrLibraryFuncs::DateTimeFuncs",
                                   "VyrLibraryFuncs::AttributesFuncs",
                                   "VyrLibraryFuncs::UnblockFuncs",
                                   "VyrLibraryFuncs::OfficePropertyFuncs",
                                   "VyrLibraryFuncs::FilterFuncs",
                                   "VyrLibraryFuncs::SearchFuncs",
                                   "VyrLibraryFuncs::ColumnFuncs",
                                   "VyrLibraryFuncs::LogFuncs",
                                   "VyrLibraryFuncs::ProgramsFeaturesFuncs",
                                   "VyrLibraryFuncs::RegistryFuncs",
                                   "VyrLibraryFuncs::BrowserFuncs",
                                   "VyrLibraryFuncs::FeatureControlFuncs",
                                   "VyrLibraryFuncs::ControlPanelFuncs",
                                   "VyrLibraryFuncs::MSXMLFuncs",
                                   "VyrLibraryFuncs::UpdatesFuncs",
                                   "VyrLibraryFuncs::StyleFuncs",
                                   "VyrLibraryFuncs::ApplicationFuncs",
                                   "VyrLibraryFuncs::HtmlFuncs",
                                   "VyrLibraryFuncs::MSHTMLImgFuncs",
                                   "VyrLibraryFuncs::OutputFuncs",
                                   "VyrLibraryUtils::FileUtils",
                                   "VyrLibraryUtils::FolderUtils",
                                   "VyrLibraryUtils::StringUtils",
                                   "VyrLibraryUtils::DateTimeUtils"})
        EXPECT_TRUE(names.contains(name)) << name;
}

TEST(LibraryLoad, EveryOperationOfEveryPublishedClassIsExported)
{
    for (const std::string& name : libraryNames) {
        const DynamicLibrary library(name);
        ASSERT_TRUE(library.IsLoaded()) << name;
        const std::map<std::string, std::string> exports = ReadableExports(library);
        for (const PublishedClass& published : ClassesOf(name))
            for (const auto& [operation, overloads] : published.operations)
                EXPECT_EQ(CountOverloads(exports, published.name + "::" + operation), overloads)
                    << published.name << "::" << operation;
    }
}

TEST(LibraryLoad, OperationsHaveThePublishedNamesAndArguments)
{
    std::set<std::string> published;
    std::ifstream table(std::filesystem::path(VYR_SOURCE_FOLDER) / "tests/VyrLibraryLoad/operations.txt");
    for (std::string line; std::getline(table, line);)
        published.insert(Canonical(line));
    ASSERT_FALSE(published.empty());
    const DynamicLibrary library("VyrLibraryFuncs");
    ASSERT_TRUE(library.IsLoaded());
    std::set<std::string> exported;
    for (const auto& [readable, symbol] : ReadableExports(library))
        if (IsOperation(readable))
            exported.insert(Canonical(readable));
    std::vector<std::string> differences;
    std::set_symmetric_difference(exported.begin(), exported.end(), published.begin(), published.end(),
                                  std::back_inserter(differences));
    EXPECT_THAT(differences, testing::IsEmpty());
}

TEST(LibraryLoad, TextsAndRecordsAreTakenByValue)
{
    for (const std::string& name : libraryNames) {
        const DynamicLibrary library(name);
        ASSERT_TRUE(library.IsLoaded()) << name;
        const std::map<std::string, std::string> exports = ReadableExports(library);
        for (const PublishedClass& published : ClassesOf(name))
            for (const auto& [operation, overloads] : published.operations) {
                const std::string start = published.name + "::" + operation + '(';
                for (auto found = exports.lower_bound(start); found != exports.end() && found->first.starts_with(start);
                     ++found) {
                    const std::string readable = WithoutListControl(found->first);
                    EXPECT_FALSE(readable.ends_with("&)") || readable.find("&,") != std::string::npos) << readable;
                }
            }
    }
}

TEST(LibraryLoad, EveryPublishedClassIsConstructedAssignedAndDestroyedByName)
{
    for (const std::string& libraryName : libraryNames) {
        const DynamicLibrary library(libraryName);
        ASSERT_TRUE(library.IsLoaded()) << libraryName;
        for (const PublishedClass& published : ClassesOf(libraryName)) {
            const std::string bareName = published.name.substr(published.name.rfind(':') + 1);
            const std::string member = published.name + "::";
            auto* const construct = Get<void(void*)>(library, member + bareName + "()");
            auto* const destroy = Get<void(void*)>(library, member + "~" + bareName + "()");
            auto* const assign =
                Get<void*(void*, const void*)>(library, member + "operator=(" + published.name + " const&)");
            ASSERT_TRUE(construct && destroy && assign) << published.name;
            // The classes carry no state: one byte is all that an object has.
            char first = 0;
            char second = 0;
            construct(&first);
            construct(&second);
            EXPECT_EQ(assign(&first, &second), &first) << published.name;
            destroy(&second);
            destroy(&first);
        }
    }
}

TEST(LibraryLoad, OperationsAreCalledByName)
{
    const DynamicLibrary library("VyrLibraryFuncs");
    ASSERT_TRUE(library.IsLoaded());

    auto* const folderFormat = Get<CString(CString)>(library, "VyrLibraryFuncs::NameFuncs::GetFolderFormat(CString)");
    ASSERT_TRUE(folderFormat);
    EXPECT_EQ(folderFormat(u"<Folder>x<Folder>"), u"\\x\\");

    auto* const renamed = Get<CString(NameFuncs::ITEM)>(
        library, "VyrLibraryFuncs::NameFuncs::GetRenameFilePath(VyrLibraryFuncs::NameFuncs::ITEM)");
    ASSERT_TRUE(renamed);
    NameFuncs::ITEM item;
    item.dirPath = u"/d/";
    item.numberText1 = u"a";
    item.digits = 3;
    item.extension = u".txt";
    EXPECT_EQ(renamed(item), u"/d/a000.txt");

    auto* const isNumbered = Get<int(NameFuncs::ITEM)>(
        library, "VyrLibraryFuncs::NameFuncs::IsResolveConflict(VyrLibraryFuncs::NameFuncs::ITEM)");
    ASSERT_TRUE(isNumbered);
    EXPECT_EQ(isNumbered(item), 1);

    auto* const sizeTo = Get<std::int64_t()>(library, "VyrLibraryFuncs::SearchFuncs::GetSizeToSize()");
    ASSERT_TRUE(sizeTo);
    EXPECT_EQ(sizeTo(), 1024);

    auto* const readStyles = Get<int(CString)>(library, "VyrLibraryFuncs::StyleFuncs::GetStylesInformation(CString)");
    ASSERT_TRUE(readStyles);
    EXPECT_EQ(readStyles(u"no such file"), 0);

    auto* const write = Get<int(CString)>(library, "VyrLibraryFuncs::LogFuncs::Write(CString)");
    ASSERT_TRUE(write);
    EXPECT_EQ(write(u"a line of the log"), 0);
}

TEST(LibraryLoad, ApplicationObjectAllowsUsingTheLibrary)
{
    const DynamicLibrary library("VyrLibraryFuncs");
    ASSERT_TRUE(library.IsLoaded());
    auto* const construct = Get<void(void*)>(library, "CVyrLibraryFuncsApp::CVyrLibraryFuncsApp()");
    auto* const initialise = Get<int(void*)>(library, "CVyrLibraryFuncsApp::InitInstance()");
    auto* const destroy = Get<void(void*)>(library, "CVyrLibraryFuncsApp::~CVyrLibraryFuncsApp()");
    ASSERT_TRUE(construct && initialise && destroy);
    alignas(CVyrLibraryFuncsApp) char application[sizeof(CVyrLibraryFuncsApp)];
    construct(application);
    EXPECT_EQ(initialise(application), 1);
    destroy(application);
}

TEST(LibraryLoad, SearchDatesReachFromSevenDaysBeforeTheDayOfLoadingToItsEnd)
{
    struct Load
    {
        COleDateTime now;
        const char* from;
        const char* to;
    };
    for (const Load& load : {Load{{2024, 3, 3, 14, 30, 15}, "2024-02-25 00:00:00", "2024-03-03 23:59:59"},
                             Load{{2023, 1, 7, 0, 0, 0}, "2022-12-31 00:00:00", "2023-01-07 23:59:59"}}) {
        const FixedClock clock(load.now);
        const DynamicLibrary library("VyrLibraryFuncs");
        ASSERT_TRUE(library.IsLoaded());
        auto* const from = Get<COleDateTime()>(library, "VyrLibraryFuncs::SearchFuncs::GetDateTimeFromDateTime()");
        auto* const to = Get<COleDateTime()>(library, "VyrLibraryFuncs::SearchFuncs::GetDateTimeToDateTime()");
        ASSERT_TRUE(from && to);
        EXPECT_EQ(Describe(from()), load.from);
        EXPECT_EQ(Describe(to()), load.to);
    }
}

TEST(LibraryLoad, LoadingCreatesAndInitialisesOneApplicationObjectAndUnloadingDestroysIt)
{
    const VyrPlatform::ApplicationCounts before = VyrPlatform::CountApplications();
    {
        const DynamicLibrary library("VyrLibraryFuncs");
        ASSERT_TRUE(library.IsLoaded());
        EXPECT_EQ(VyrPlatform::CountApplications().alive, before.alive + 1);
        EXPECT_EQ(VyrPlatform::CountApplications().initialised, before.initialised + 1);
    }
    EXPECT_EQ(VyrPlatform::CountApplications().alive, before.alive);
}

TEST(LibraryLoad, NothingIsLeftInTheProcessAfterUnloading)
{
    for (int round = 0; round < 3; ++round) {
        {
            const DynamicLibrary library("VyrLibraryFuncs");
            ASSERT_TRUE(library.IsLoaded());
            EXPECT_TRUE(DynamicLibrary::IsInProcess("VyrLibraryFuncs"));
            EXPECT_TRUE(DynamicLibrary::IsInProcess("VyrLibraryUtils")) << "loaded with the library that needs it";
        }
        EXPECT_FALSE(DynamicLibrary::IsInProcess("VyrLibraryFuncs"));
        EXPECT_FALSE(DynamicLibrary::IsInProcess("VyrLibraryUtils"));
    }
}
