#include <tests/VyrHost/batch/CutOffScene.h>

#include <gtest/gtest.h>

namespace VyrTests {

void CutOffAt(FaultyFiles& files, std::size_t change, Moment moment)
{
    const std::size_t number = files.Changes() + change;
    files.before = [number, moment](const FileChange&, std::size_t at) -> std::uint32_t {
        if (at == number && moment == Moment::Before)
            throw CutOff();
        return 0;
    };
    files.after = [number, moment](const FileChange&, std::size_t at) {
        if (at == number && moment == Moment::After)
            throw CutOff();
    };
}

void LetWork(FaultyFiles& files)
{
    files.before = {};
    files.after = {};
}

bool IsCutOff(const std::function<void()>& work)
{
    try {
        work();
        return false;
    } catch (const CutOff&) {
        return true;
    }
}

void ArrangeThree(BatchScene& scene)
{
    for (const char16_t* name : {u"a", u"b", u"c"})
        scene.Write(name);
    scene.Rename(u"a", u"x").Rename(u"b", u"y").Rename(u"c", u"z");
}

CutOffScene::CutOffScene(Arrange arrange, std::size_t renames) : scene(files)
{
    arrange(scene);
    std::size_t done = 0;
    files.after = [&done, renames](const FileChange& change, std::size_t) {
        if (change.kind == FileChange::Kind::Rename && ++done == renames)
            throw CutOff();
    };
    EXPECT_TRUE(IsCutOff([this] { scene.Apply(); }));
    LetWork(files);
}

} // namespace VyrTests
