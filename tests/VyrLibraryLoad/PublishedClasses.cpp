// Reads the public headers: enough of their text to know each exported class and its static operations.
#include "PublishedClasses.h"

#include <cctype>
#include <fstream>
#include <sstream>
#include <utility>

namespace {

std::string ReadWithoutComments(const std::filesystem::path& path)
{
    std::ifstream stream(path);
    std::string text;
    for (std::string line; std::getline(stream, line);)
        text += line.substr(0, line.find("//")) + '\n';
    return text;
}

/// The word that ends right before `end`.
std::string WordBefore(const std::string& text, std::size_t end)
{
    const auto isWordPart = [](unsigned char c) {
        return std::isalnum(c) || c == '_';
    };
    std::size_t start = end;
    while (start > 0 && isWordPart(static_cast<unsigned char>(text[start - 1])))
        --start;
    return text.substr(start, end - start);
}

std::map<std::string, int> StaticOperations(const std::string& body)
{
    const std::string keyword = " static ";
    std::map<std::string, int> operations;
    for (std::size_t at = 0; (at = body.find(keyword, at)) != std::string::npos; at += keyword.size()) {
        const std::size_t end = body.find_first_of("(;={", at);
        if (end != std::string::npos && body[end] == '(')
            ++operations[WordBefore(body, end)];
    }
    return operations;
}

} // namespace

std::vector<PublishedClass> ReadPublishedClasses(const std::filesystem::path& folder)
{
    const std::string heading = "\nclass VYR_";
    std::vector<PublishedClass> classes;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".h")
            continue;
        const std::string text = ReadWithoutComments(entry.path());
        for (std::size_t at = 0; (at = text.find(heading, at)) != std::string::npos; at += heading.size()) {
            std::istringstream words(text.substr(at));
            std::string keyword;
            std::string macro;
            std::string name;
            words >> keyword >> macro >> name;
            PublishedClass published{folder.filename().string() + "::" + name,
                                     StaticOperations(text.substr(at, text.find("\n};", at) - at))};
            if (!published.operations.empty())
                classes.push_back(std::move(published));
        }
    }
    return classes;
}
