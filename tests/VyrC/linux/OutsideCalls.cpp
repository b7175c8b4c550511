// On Linux both languages are served by the same libraries, which a test tells whom to call.
#include <tests/VyrC/OutsideCalls.h>

#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/process/Shell.h>
#include <VyrPlatform/text/Encoding.h>

#include <cstdint>

namespace VyrCTests {

struct OutsideCalls::Record
{
    std::string text;
};

OutsideCalls::OutsideCalls() : m_record(std::make_unique<Record>())
{
    VyrPlatform::DebugOutput::SetSink(
        [record = m_record.get()](const CString& text) { record->text += VyrPlatform::Encoding::ToUtf8(text); });
    VyrPlatform::Shell::SetStarter(
        [record = m_record.get()](VyrPlatform::Shell::Window owner, const CString& path, const CString& arguments) {
            record->text += std::to_string(reinterpret_cast<std::intptr_t>(owner)) + ' ' +
                            VyrPlatform::Encoding::ToUtf8(path) + ' ' + VyrPlatform::Encoding::ToUtf8(arguments) + '\n';
            return std::uintptr_t{33};
        });
}

OutsideCalls::~OutsideCalls()
{
    VyrPlatform::DebugOutput::SetSink({});
    VyrPlatform::Shell::SetStarter({});
}

const std::string& OutsideCalls::Text() const
{
    return m_record->text;
}

void OutsideCalls::Clear()
{
    m_record->text.clear();
}

} // namespace VyrCTests
