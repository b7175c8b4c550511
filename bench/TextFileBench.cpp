// Reads a text file with one line of 100 MB, compared with the same bytes in two lines: the time must grow linearly.
// "--utf16" reads UTF-16, otherwise UTF-8.
#include <VyrLibraryFuncs/textfile/CStdioFileEx.h>

#include "TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr std::size_t byteCount = 100'000'000;

/// A file of `byteCount` bytes and a byte order mark, with a line feed at the end of each line of `lineLength` bytes.
CString MakeFile(const std::filesystem::path& path, bool isUtf16, std::size_t lineLength)
{
    const std::string letter = isUtf16 ? std::string("x\0", 2) : "x";
    const std::string lineFeed = isUtf16 ? std::string("\n\0", 2) : "\n";
    std::string line;
    while (line.size() < lineLength - lineFeed.size())
        line += letter;
    line += lineFeed;
    std::ofstream stream(path, std::ios::binary);
    stream << (isUtf16 ? "\xFF\xFE" : "\xEF\xBB\xBF");
    for (std::size_t written = 0; written < byteCount; written += line.size())
        stream << line;
    return Widen(path);
}

/// The number of code units in the lines of the file at `path`.
std::size_t ReadUnits(const CString& path)
{
    CStdioFileEx file;
    file.m_nCodePage = 65001;
    std::size_t count = 0;
    if (file.Open(path.GetString(), CFile::modeRead))
        for (CString line; file.ReadString(line);)
            count += static_cast<std::size_t>(line.GetLength());
    return count;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const bool isUtf16 = argumentCount > 1 && std::string_view(arguments[1]) == "--utf16";
    if (isUtf16) {
        arguments[1] = arguments[0];
        ++arguments;
        --argumentCount;
    }
    constexpr std::size_t lineCount = 2;
    const TemporaryFolder folder;
    const CString one = MakeFile(folder.Path() / "one", isUtf16, byteCount);
    const CString two = MakeFile(folder.Path() / "two", isUtf16, byteCount / lineCount);
    const std::size_t units = byteCount / (isUtf16 ? 2 : 1);
    if (ReadUnits(one) != units - 1 || ReadUnits(two) != units - lineCount) {
        std::fputs("the files do not read whole\n", stderr);
        return EXIT_FAILURE;
    }
    for (const auto& [name, path] : {std::pair("OneLine", one), std::pair("TwoLines", two)})
        benchmark::RegisterBenchmark(name, [path = path](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(ReadUnits(path));
        })->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
