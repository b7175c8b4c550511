// Names each kind with its reader.
#include <VyrHost/metadata/Kinds.h>

#include <VyrHost/metadata/AttributesChange.h>
#include <VyrHost/metadata/MarkChange.h>
#include <VyrHost/metadata/TimesChange.h>

#include <string>

namespace VyrHost::Metadata {

Model::ChangeKinds Kinds()
{
    return {{std::string(TimesChange::kind), TimesChange::Read},
            {std::string(AttributesChange::kind), AttributesChange::Read},
            {std::string(MarkChange::kind), MarkChange::Read}};
}

} // namespace VyrHost::Metadata
