// Finds the mark of a file.
#include <VyrHost/metadata/MarkRule.h>

#include <VyrHost/metadata/MarkChange.h>
#include <VyrHost/text/ErrorText.h>

#include <utility>

namespace VyrHost::Metadata {

Proposal MarkRule::Propose(const CString& path, const Model::Entry& /*entry*/, std::size_t /*index*/) const
{
    std::uint32_t error = 0;
    auto forms = VyrPlatform::NamedStreams::ReadZoneMark(path, error);
    if (!forms)
        return {nullptr, Text::ErrorText(error)};
    if (forms->empty())
        return {};
    return {std::make_shared<MarkChange>(std::move(*forms)), {}};
}

} // namespace VyrHost::Metadata
