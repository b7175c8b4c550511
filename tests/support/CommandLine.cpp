#include <tests/support/CommandLine.h>

#include <VyrPlatform/text/Encoding.h>

#include <utility>

namespace VyrTests {

std::vector<CString> WordsOf(const std::string& commandLine)
{
    std::vector<CString> words;
    std::string word;
    char quote = '\0';
    bool isOpen = false;
    for (const char unit : commandLine + ' ') {
        if (quote != '\0' ? unit == quote : unit == '"' || unit == '\'')
            quote = quote != '\0' ? '\0' : unit;
        else if (unit != ' ' || quote != '\0')
            word += unit;
        else if (std::exchange(isOpen, false))
            words.push_back(VyrPlatform::Encoding::FromUtf8(std::exchange(word, {})));
        isOpen = isOpen || unit != ' ' || quote != '\0';
    }
    return words;
}

} // namespace VyrTests
