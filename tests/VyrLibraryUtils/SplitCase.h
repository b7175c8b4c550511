// One row of a table of paths, and what each way of cutting must give of it.
#pragma once

#include <VyrLibraryUtils/FileUtils.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

namespace VyrTests {

struct SplitCase
{
    CString path;
    CString folder;
    CString stem;
    CString extension;
    CString root;
};

inline void ExpectSplit(const SplitCase& expected)
{
    using VyrLibraryUtils::FileUtils;
    SCOPED_TRACE(testing::PrintToString(expected.path));
    EXPECT_EQ(FileUtils::GetSplitDirPath(expected.path), expected.folder);
    EXPECT_EQ(FileUtils::GetSplitFName(expected.path), expected.stem);
    EXPECT_EQ(FileUtils::GetSplitExtension(expected.path, 1), expected.extension);
    EXPECT_EQ(FileUtils::GetSplitFileName(expected.path), expected.stem + expected.extension);
    EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 1), expected.root);
}

} // namespace VyrTests
