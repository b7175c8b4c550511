// For tests on Windows: a console that the test shares with nobody but the programs it starts.
#pragma once

namespace VyrTests {

/// Where the test's own output goes elsewhere than to a console, makes one at the first call; with a console that it
/// was started in, it stays. A process can do that once: the end of a console that it made would end it too. To be
/// called before handles are made that other programs inherit, which the program that shows the console would keep.
/// @return whether the console is the test's own.
[[nodiscard]] bool HasConsoleOfItsOwn();

} // namespace VyrTests
