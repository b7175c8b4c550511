// The dynamic linker's side of loading a library: its exports are read from the file's table of dynamic symbols.
#include <tests/support/DynamicLibrary.h>

#include <dlfcn.h>
#include <elf.h>
#include <link.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

/// The full path, since under the sanitizers the linker does not look beside the program.
std::string FilePath(const std::string& name)
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / ("lib" + name + ".so");
}

/// `count` records of an ELF file, from `offset` on.
template <class Record>
std::vector<Record> ReadRecords(const std::string& file, std::size_t offset, std::size_t count)
{
    std::vector<Record> records(count);
    std::memcpy(records.data(), file.substr(offset, count * sizeof(Record)).data(), count * sizeof(Record));
    return records;
}

bool IsExportedFunction(const Elf64_Sym& symbol)
{
    return symbol.st_shndx != SHN_UNDEF && ELF64_ST_TYPE(symbol.st_info) == STT_FUNC;
}

} // namespace

namespace VyrTests {

DynamicLibrary::DynamicLibrary(const std::string& name)
    : m_handle(dlopen(FilePath(name).c_str(), RTLD_NOW | RTLD_LOCAL))
{}

DynamicLibrary::~DynamicLibrary()
{
    if (m_handle)
        dlclose(m_handle);
}

void* DynamicLibrary::Find(const std::string& symbol) const
{
    return dlsym(m_handle, symbol.c_str());
}

std::vector<std::string> DynamicLibrary::Exports() const
{
    link_map* map = nullptr;
    dlinfo(m_handle, RTLD_DI_LINKMAP, &map);
    std::ostringstream content;
    content << std::ifstream(map->l_name, std::ios::binary).rdbuf();
    const std::string file = content.str();
    const Elf64_Ehdr header = ReadRecords<Elf64_Ehdr>(file, 0, 1).front();
    const std::vector<Elf64_Shdr> sections = ReadRecords<Elf64_Shdr>(file, header.e_shoff, header.e_shnum);
    std::vector<std::string> names;
    for (const Elf64_Shdr& section : sections) {
        if (section.sh_type != SHT_DYNSYM)
            continue;
        const char* const texts = file.data() + sections.at(section.sh_link).sh_offset;
        for (const Elf64_Sym& symbol :
             ReadRecords<Elf64_Sym>(file, section.sh_offset, section.sh_size / sizeof(Elf64_Sym)))
            if (IsExportedFunction(symbol))
                names.emplace_back(texts + symbol.st_name);
    }
    return names;
}

bool DynamicLibrary::IsInProcess(const std::string& name)
{
    void* const handle = dlopen(FilePath(name).c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

} // namespace VyrTests
