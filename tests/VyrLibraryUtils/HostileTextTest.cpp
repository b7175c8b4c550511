// Long and malformed texts, for which no operation may throw.
#include <VyrLibraryUtils/CompareUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrLibraryUtils/PropertyUtils.h>
#include <VyrLibraryUtils/RegexUtils.h>
#include <VyrLibraryUtils/StringUtils.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <string_view>
#include <vector>

using namespace VyrLibraryUtils;

TEST(HostileText, MakesNoOperationThrow)
{
    const std::vector<CString> texts = {CString(u'%', 3000),     CString(u'<', 3000),
                                        CString(u'\'', 3001),    CString(u'9', 3000),
                                        CString(u'\xD800', 300), CString(u'\xDC80', 300),
                                        CString(u'/', 3000),     CString(std::u16string_view(u"a\0%s\0/b", 7))};
    for (const CString& text : texts)
        EXPECT_NO_THROW({
            FileUtils::GetSplitPath(text, 5);
            FileUtils::GetCombinePath(text, text);
            EXPECT_EQ(FileUtils::IsReadOnly(text + u"/no/such"), 0);
            EXPECT_EQ(FileUtils::GetFileSize(text + u"/no/such"), -1);
            FileUtils::DeleteZoneId(text);
            FileUtils::GetSystemFilePath(text);
            StringUtils::GetFormatedText(text, text, text);
            EXPECT_EQ(StringUtils::GetTokenizeStringCount(text, text), 0);
            StringUtils::StringToULongLong(text);
            CompareUtils::CompareText(text, text + u"x", 0, 0, 1024);
            RegexUtils::IsHex(text);
            ImageUtils::GetEquipMake(text);
            PropertyUtils::IsOLE2Document(text);
        });
}
