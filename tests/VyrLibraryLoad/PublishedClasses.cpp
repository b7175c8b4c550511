// Reads the public headers: enough of their text to know each exported class and its static operations.
#include "PublishedClasses.h"

#include <fstream>
#include <regex>

namespace {

std::string ReadWithoutComments(const std::filesystem::path& path)
{
    std::ifstream stream(path);
    std::string text;
    for (std::string line; std::getline(stream, line);)
        text += line.substr(0, line.find("//")) + '\n';
    return text;
}

std::map<std::string, int> StaticOperations(const std::string& body)
{
    static const std::regex operation(R"(\bstatic\s[^;(){}=]*?(\w+)\s*\()");
    std::map<std::string, int> operations;
    for (auto found = std::sregex_iterator(body.begin(), body.end(), operation); found != std::sregex_iterator();
         ++found)
        ++operations[(*found)[1]];
    return operations;
}

} // namespace

std::vector<PublishedClass> ReadPublishedClasses(const std::filesystem::path& folder)
{
    static const std::regex heading(R"(\bclass\s+VYR_\w+_API\s+(\w+)[^;{]*\{)");
    const std::string nameSpace = folder.filename().string();
    std::vector<PublishedClass> classes;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".h")
            continue;
        const std::string text = ReadWithoutComments(entry.path());
        for (auto found = std::sregex_iterator(text.begin(), text.end(), heading); found != std::sregex_iterator();
             ++found) {
            const auto start = static_cast<std::size_t>(found->position());
            PublishedClass published{nameSpace + "::" + (*found)[1].str(),
                                     StaticOperations(text.substr(start, text.find("\n};", start) - start))};
            if (!published.operations.empty())
                classes.push_back(std::move(published));
        }
    }
    return classes;
}
