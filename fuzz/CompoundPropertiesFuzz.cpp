// Any bytes as the streams of a compound document's properties: they are read in bounded time, what is set can be read,
// and nothing is left of what was cleared.
#include <VyrPlatform/common/documents/CompoundProperties.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

using namespace VyrPlatform;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

class Root : public RootStorage
{
public:
    std::map<std::u16string, std::string, std::less<>> streams;

    [[nodiscard]] bool Has(std::u16string_view name) const override { return streams.contains(name); }
    [[nodiscard]] std::optional<std::string> Read(std::u16string_view name, std::size_t limit) const override
    {
        const auto found = streams.find(name);
        return found == streams.end() ? std::nullopt : std::optional(found->second.substr(0, limit));
    }
};

/// What is left once `edit` was made; nothing when it is refused.
std::optional<DocumentProperties> Edit(const Root& before, const PropertyEdit& edit)
{
    Root root;
    root.streams = before.streams;
    NewStreams streams;
    DocumentProperties properties;
    if (EditCompoundProperties(root, edit, streams) != PropertyStorage::Result::ok)
        return std::nullopt;
    for (const auto& [name, content] : streams)
        root.streams.insert_or_assign(std::u16string(name), content);
    Require(ReadCompoundProperties(root, properties) == PropertyStorage::Result::ok || streams.empty());
    return properties;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string bytes(data + 1, data + size);
    const std::size_t cut = std::min<std::size_t>(data[0] * std::size_t{8}, bytes.size());
    Root root;
    root.streams.emplace(summaryStream, bytes.substr(0, cut));
    root.streams.emplace(documentStream, bytes.substr(cut));
    DocumentProperties properties;
    static_cast<void>(ReadCompoundProperties(root, properties));

    PropertyEdit set;
    set.values.emplace(SummaryId::title, u"a \x65E5 title");
    set.values.emplace(SummaryId::author, std::nullopt);
    if (const auto edited = Edit(root, set))
        Require(edited->texts.at(SummaryId::title) == u"a \x65E5 title" && !edited->texts.contains(SummaryId::author));
    PropertyEdit clear;
    clear.clearsAll = true;
    if (const auto cleared = Edit(root, clear))
        Require(cleared->texts.empty() && cleared->times.empty() && cleared->others == 0);
    return 0;
}
