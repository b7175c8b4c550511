#include <tests/support/ComThread.h>

namespace VyrTests {

ComThread::ComThread() = default;
ComThread::~ComThread() = default;

} // namespace VyrTests
