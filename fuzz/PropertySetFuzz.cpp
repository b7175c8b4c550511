// Any bytes as a property set: it is read in bounded time, and read back the same when written.
#include <VyrPlatform/common/documents/PropertySetStream.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace VyrPlatform;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void RequireSame(const PropertySection& left, const PropertySection& right)
{
    Require(left.properties.size() == right.properties.size());
    for (std::size_t index = 0; index < left.properties.size(); ++index) {
        Require(left.properties[index].id == right.properties[index].id);
        // Padding may have been added.
        Require(right.properties[index].bytes.starts_with(left.properties[index].bytes));
        Require(right.properties[index].bytes.size() <= left.properties[index].bytes.size() + 4);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    auto set = PropertySetStream::Parse(bytes);
    if (!set)
        return 0;
    for (const FormatId format : {summaryFormat, documentFormat, userFormat}) {
        PropertySection* const section = set->Find(format);
        if (!section)
            continue;
        const std::uint32_t codePage = section->CodePage().value_or(defaultCodePage);
        for (const StoredProperty& property : section->properties) {
            static_cast<void>(ReadStoredText(property.bytes, codePage));
            static_cast<void>(ReadStoredNumber(property.bytes));
            static_cast<void>(ReadStoredTime(property.bytes));
        }
        section->Set(2, "a new value!");
        Require(*section->Find(2) == "a new value!");
        section->Remove(4);
        Require(!section->Find(4));
        const auto again = PropertySetStream::Parse(set->Serialise());
        Require(again && again->Find(format));
        RequireSame(*section, *again->Find(format));
    }
    return 0;
}
