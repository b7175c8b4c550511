#include <tests/support/DocumentCorpus.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace VyrTests {

std::vector<CorpusDocument> ReadDocumentCorpus()
{
    const char* const variable = std::getenv("VYR_CORPUS");
    const std::filesystem::path folder = variable ? variable : "";
    std::ifstream table(folder / "documents.expected.tsv");
    std::vector<CorpusDocument> documents;
    for (std::string line; std::getline(table, line);) {
        CorpusDocument document;
        std::istringstream fields(line);
        std::getline(fields, document.name, '\t');
        std::getline(fields, document.kind, '\t');
        std::getline(fields, document.state, '\t');
        std::ifstream file(folder / "documents" / document.name, std::ios::binary);
        if (!file)
            continue;
        document.bytes.assign(std::istreambuf_iterator<char>(file), {});
        documents.push_back(std::move(document));
    }
    return documents;
}

} // namespace VyrTests
