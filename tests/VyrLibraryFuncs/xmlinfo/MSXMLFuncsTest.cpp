#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>

#include <VyrPlatform/process/ComApartment.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using MSXML2::IXMLDOMDocumentPtr;
using MSXML2::IXMLDOMElementPtr;
using VyrLibraryFuncs::MSXMLFuncs;

namespace {

class MSXMLFuncsTest : public testing::TestWithParam<IXMLDOMDocumentPtr (*)(CString)>
{
protected:
    [[nodiscard]] static IXMLDOMDocumentPtr Load(const CString& path) { return GetParam()(path); }
    [[nodiscard]] const VyrTests::ScratchFolder& Folder() const { return m_folder; }

private:
    VyrPlatform::ComApartment m_apartment;
    VyrTests::ScratchFolder m_folder;
};

} // namespace

TEST_P(MSXMLFuncsTest, DocumentHasARoot)
{
    const IXMLDOMDocumentPtr document = Load(Folder().WriteFile(u"\u00E4 \u65E5.xml", "<r/>"));
    ASSERT_TRUE(document);
    IXMLDOMElementPtr root;
    EXPECT_EQ(document->get_documentElement(&root), S_OK);
    EXPECT_TRUE(root);
}

TEST_P(MSXMLFuncsTest, DocumentThatDoesNotLoadIsNull)
{
    EXPECT_FALSE(Load({}));
    EXPECT_FALSE(Load(Folder().Path(u"missing.xml")));
    EXPECT_FALSE(Load(Folder().MakeFolder(u"folder.xml")));
    EXPECT_FALSE(Load(Folder().WriteFile(u"empty.xml")));
    EXPECT_FALSE(Load(Folder().WriteFile(u"text.xml", "not XML")));
    EXPECT_FALSE(Load(Folder().WriteFile(u"cut.xml", "<r><t>")));
}

TEST_P(MSXMLFuncsTest, DocumentsLiveSideBySide)
{
    const IXMLDOMDocumentPtr first = Load(Folder().WriteFile(u"1.xml", "<r/>"));
    const IXMLDOMDocumentPtr second = Load(Folder().WriteFile(u"2.xml", "<s/>"));
    ASSERT_TRUE(first && second);
    EXPECT_NE(first.GetInterfacePtr(), second.GetInterfacePtr());
}

INSTANTIATE_TEST_SUITE_P(Both, MSXMLFuncsTest, testing::Values(MSXMLFuncs::LoadXmlFile, MSXMLFuncs::LoadXsltFile));
