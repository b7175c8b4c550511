// For tests: batches that are cut off at a chosen moment.
#pragma once

#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/FaultyFiles.h>

#include <cstddef>
#include <functional>

namespace VyrTests {

/// Thrown instead of ending the program.
struct CutOff
{};

/// Whether the program ends before the change or after it.
enum class Moment
{
    Before,
    After
};

/// Ends the program at the change `change`, counted from now on.
void CutOffAt(FaultyFiles& files, std::size_t change, Moment moment);
void LetWork(FaultyFiles& files);
/// @return whether `work` was cut off.
bool IsCutOff(const std::function<void()>& work);

using Arrange = void (*)(BatchScene& scene);

/// Three files "a", "b" and "c", to be renamed to "x", "y" and "z".
void ArrangeThree(BatchScene& scene);

/// A scene whose batch is cut off after its first `renames` renames.
class CutOffScene
{
public:
    explicit CutOffScene(Arrange arrange, std::size_t renames);

    FaultyFiles files;
    BatchScene scene;
};

} // namespace VyrTests
