// For tests: the real documents of the folder that VYR_CORPUS names.
#pragma once

#include <string>
#include <vector>

namespace VyrTests {

struct CorpusDocument
{
    std::string name;
    /// "ole2" or "zip".
    std::string kind;
    /// "sound", "damaged" or "no summary".
    std::string state;
    std::string bytes;
};

/// Those that the file documents.expected.tsv lists; none where VYR_CORPUS names no such folder.
[[nodiscard]] std::vector<CorpusDocument> ReadDocumentCorpus();

} // namespace VyrTests
