// Windows takes paths of 32,767 code units, which is all that a path may have.
#include <VyrPlatform/common/files/DeepWalk.h>

namespace VyrPlatform {

struct DeepWalk::State
{};

DeepWalk::DeepWalk() = default;
DeepWalk::~DeepWalk() = default;

} // namespace VyrPlatform
