// Windows takes paths of 32,767 code units, the longest that there are.
#include <VyrPlatform/files/DeepWalk.h>

namespace VyrPlatform {

struct DeepWalk::State
{};

DeepWalk::DeepWalk() = default;
DeepWalk::~DeepWalk() = default;

} // namespace VyrPlatform
