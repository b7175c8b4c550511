// Creates compound documents for bench/documents: MakeDocuments FOLDER COUNT
//
// Each is a valid document of 20 to 100 KiB with a summary.
#include <tests/support/CompoundDocument.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

int main(int count, char** arguments)
{
    using namespace VyrTests;
    if (count != 3) {
        std::cerr << "usage: MakeDocuments FOLDER COUNT\n";
        return 2;
    }
    const std::filesystem::path folder(arguments[1]);
    const std::size_t documents = std::strtoul(arguments[2], nullptr, 10);
    std::filesystem::create_directories(folder);
    for (std::size_t number = 0; number < documents; ++number) {
        CompoundDocument document;
        document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)},
                                                      {2, StoredByteText("Title " + std::to_string(number))},
                                                      {4, StoredByteText("Author")}});
        document.streams[u"Body"] = std::string(1024 * (20 + number * 37 % 81), 'b');
        std::ofstream file(folder / ("document" + std::to_string(10000 + number) + ".doc"), std::ios::binary);
        file << document.Bytes();
        if (!file.flush()) {
            std::cerr << "MakeDocuments: " << folder << " cannot be filled\n";
            return 1;
        }
    }
    return 0;
}
