// Creates the registries in which programs are counted: MakePrograms FOLDER COUNT
//
// FOLDER gets the hive SOFTWARE, and in its folder `prefix` the registry of a Wine prefix, both with COUNT programs.
#include "SamplePrograms.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

int main(int count, char** arguments)
{
    if (count != 3) {
        std::cerr << "usage: MakePrograms FOLDER COUNT\n";
        return 2;
    }
    const std::filesystem::path folder(arguments[1]);
    const int programs = static_cast<int>(std::strtol(arguments[2], nullptr, 10));
    std::filesystem::create_directories(folder / "prefix");
    std::ofstream hive(folder / "SOFTWARE", std::ios::binary);
    hive << SampleHive(programs);
    std::ofstream prefix(folder / "prefix" / "system.reg", std::ios::binary);
    prefix << SampleWineText(programs);
    if (!hive.flush() || !prefix.flush()) {
        std::cerr << "MakePrograms: " << folder << " cannot be filled\n";
        return 1;
    }
    return 0;
}
