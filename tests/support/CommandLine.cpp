#include <tests/support/CommandLine.h>

#include <VyrPlatform/text/Encoding.h>

#include <utility>

namespace VyrTests {

std::vector<CString> WordsOf(const std::string& commandLine)
{
    std::vector<CString> words;
    std::string word;
    bool isQuoted = false;
    bool isOpen = false;
    for (const char unit : commandLine + ' ') {
        if (unit == '"')
            isQuoted = !isQuoted;
        else if (unit != ' ' || isQuoted)
            word += unit;
        else if (std::exchange(isOpen, false))
            words.push_back(VyrPlatform::Encoding::FromUtf8(std::exchange(word, {})));
        isOpen = isOpen || unit != ' ' || isQuoted;
    }
    return words;
}

} // namespace VyrTests
