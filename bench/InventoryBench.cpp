// Lists the programs of a hive with 50,000 uninstall keys of ten values each, compared with bare look-ups of the 30
// values of each key by name. Also lists half as many keys, and reads a Wine prefix.
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrPlatform/linux/registry/MemoryNode.h>
#include <VyrPlatform/linux/registry/WineText.h>
#include <VyrPlatform/registry/RegistryFiles.h>
#include <VyrPlatform/text/Encoding.h>

#include <benchmark/benchmark.h>
#include <hivex.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "SamplePrograms.h"
#include "TemporaryFolder.h"

using namespace VyrPlatform;
using VyrLibraryFuncs::ProgramsFeaturesFuncs;

namespace {

constexpr int manyKeys = 50'000;

const char* const names[] = {
    "DisplayIcon",     "DisplayName",       "DisplayName_Localized",
    "DisplayVersion",  "Publisher",         "InstallDate",
    "InstallLocation", "InstallSource",     "Readme",
    "Comments",        "Contact",           "UninstallString",
    "EstimatedSize",   "HelpLink",          "HelpTelephone",
    "URLInfoAbout",    "URLUpdateInfo",     "RegCompany",
    "RegOwner",        "ParentDisplayName", "ParentKeyName",
    "SystemComponent", "WindowsInstaller",  "VersionMajor",
    "VersionMinor",    "Language",          "NoModify",
    "NoRepair",        "NoRemove",          "NoElevateOnModify",
};

std::string hivePath;
std::string smallHivePath;
std::string wineText;

void List(benchmark::State& state, const std::string& path, std::size_t count)
{
    for (auto _ : state) {
        Registry::HiveFiles files;
        files.software = Encoding::FromNameBytes(path);
        static_cast<void>(Registry::ShowHives(files));
        if (ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(2, 0).size() != count)
            std::abort();
        Registry::CloseRegistryFiles();
    }
}

void Inventory(benchmark::State& state)
{
    List(state, hivePath, manyKeys);
}

void HalfInventory(benchmark::State& state)
{
    List(state, smallHivePath, manyKeys / 2);
}

void BareLookUps(benchmark::State& state)
{
    for (auto _ : state) {
        hive_h* const hive = hivex_open(hivePath.c_str(), 0);
        hive_node_h node = hivex_root(hive);
        for (const char* const name : {"Microsoft", "Windows", "CurrentVersion", "Uninstall"})
            node = hivex_node_get_child(hive, node, name);
        hive_node_h* const keys = hivex_node_children(hive, node);
        std::size_t found = 0;
        for (const hive_node_h* key = keys; *key; ++key)
            for (const char* const name : names)
                found += hivex_node_get_value(hive, *key, name) != 0;
        if (found != 10U * manyKeys)
            std::abort();
        std::free(keys);
        hivex_close(hive);
    }
}

void WinePrefix(benchmark::State& state)
{
    for (auto _ : state) {
        const auto top = std::make_shared<Registry::MemoryNode>(false, 0);
        Registry::ReadWineText(wineText, top, {});
        benchmark::DoNotOptimize(top->GetSubkeys().size());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(wineText.size()));
}

} // namespace

BENCHMARK(Inventory)->Unit(benchmark::kMillisecond);
BENCHMARK(HalfInventory)->Unit(benchmark::kMillisecond);
BENCHMARK(BareLookUps)->Unit(benchmark::kMillisecond);
BENCHMARK(WinePrefix)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const TemporaryFolder folder;
    hivePath = folder.Path() / "SOFTWARE";
    smallHivePath = folder.Path() / "HALF";
    std::ofstream(hivePath, std::ios::binary) << SampleHive(manyKeys);
    std::ofstream(smallHivePath, std::ios::binary) << SampleHive(manyKeys / 2);
    wineText = SampleWineText(manyKeys / 2);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
