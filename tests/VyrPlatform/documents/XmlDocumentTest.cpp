// Which XML documents load, and the content of their elements.
#include <VyrPlatform/documents/ComText.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/process/ComApartment.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

using MSXML2::IXMLDOMDocumentPtr;
using MSXML2::IXMLDOMElementPtr;
using MSXML2::IXMLDOMNodeListPtr;
using MSXML2::IXMLDOMNodePtr;
using VyrPlatform::FromBstr;
using VyrPlatform::ToBstr;

namespace {

constexpr CLSID documentClass{0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
constexpr CLSID freeThreadedClass{0xF5078F33, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};

/// The bytes of an ASCII text in UTF-16.
std::string Utf16(std::string_view ascii, bool isBigEndian)
{
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii)
        bytes += isBigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    return bytes;
}

/// The interface of `object` that `Pointer` owns; null when it has none such.
template <class Pointer>
Pointer As(IUnknown* object)
{
    void* found = nullptr;
    const HRESULT result = object->QueryInterface(Pointer::GetIID(), &found);
    EXPECT_EQ(result, found ? S_OK : E_NOINTERFACE);
    return Pointer(static_cast<typename Pointer::Interface*>(found), false);
}

class XmlDocumentTest : public testing::Test
{
protected:
    /// A document that is loaded from a file of these bytes; null when it does not load.
    [[nodiscard]] IXMLDOMDocumentPtr Load(std::string_view bytes) const
    {
        return LoadPath(m_folder.WriteFile(u"document.xml", bytes));
    }
    [[nodiscard]] static IXMLDOMDocumentPtr LoadPath(const CString& path)
    {
        IXMLDOMDocumentPtr document(documentClass);
        EXPECT_EQ(document->put_async(VARIANT_FALSE), S_OK);
        VARIANT_BOOL isLoaded = 7;
        const HRESULT result = document->load(_variant_t(ToBstr(path)), &isLoaded);
        EXPECT_EQ(result, isLoaded == VARIANT_TRUE ? S_OK : S_FALSE);
        return isLoaded == VARIANT_TRUE ? document : IXMLDOMDocumentPtr();
    }
    [[nodiscard]] static IXMLDOMElementPtr RootOf(const IXMLDOMDocumentPtr& document)
    {
        IXMLDOMElementPtr root;
        EXPECT_EQ(document->get_documentElement(&root), S_OK);
        return root;
    }
    [[nodiscard]] static IXMLDOMNodeListPtr ElementsOf(const IXMLDOMElementPtr& element, const char16_t* name)
    {
        IXMLDOMNodeListPtr list;
        EXPECT_EQ(element->getElementsByTagName(ToBstr(name), &list), S_OK);
        return list;
    }
    [[nodiscard]] static CString TextOf(const IXMLDOMElementPtr& element)
    {
        _bstr_t text;
        EXPECT_EQ(element->get_text(text.GetAddress()), S_OK);
        return FromBstr(text);
    }
    /// The texts of the elements of a name.
    [[nodiscard]] static std::vector<CString> TextsOf(const IXMLDOMElementPtr& element, const char16_t* name)
    {
        const IXMLDOMNodeListPtr list = ElementsOf(element, name);
        LONG length = -1;
        EXPECT_EQ(list->get_length(&length), S_OK);
        std::vector<CString> texts;
        for (LONG i = 0; i < length; ++i) {
            IXMLDOMNodePtr node;
            EXPECT_EQ(list->get_item(i, &node), S_OK);
            texts.push_back(TextOf(As<IXMLDOMElementPtr>(node)));
        }
        return texts;
    }
    /// The text of a document's root; "(not loaded)" when it does not load.
    [[nodiscard]] CString TextOfRoot(std::string_view bytes) const
    {
        const IXMLDOMDocumentPtr document = Load(bytes);
        return document ? TextOf(RootOf(document)) : CString(u"(not loaded)");
    }
    /// The root's attribute, in quotes; "(absent)" when it has none of that name.
    [[nodiscard]] CString AttributeOfRoot(std::string_view bytes, const char16_t* name) const
    {
        const IXMLDOMDocumentPtr document = Load(bytes);
        if (!document)
            return u"(not loaded)";
        _variant_t value;
        const HRESULT result = RootOf(document)->getAttribute(ToBstr(name), &value);
        if (value.vt == VT_NULL) {
            EXPECT_EQ(result, S_FALSE);
            return u"(absent)";
        }
        EXPECT_EQ(result, S_OK);
        EXPECT_EQ(value.vt, VT_BSTR);
        return u"'" + FromBstr(value.bstrVal) + u"'";
    }
    void ExpectNotLoaded(std::string_view bytes) const { EXPECT_FALSE(Load(bytes)) << bytes; }

    const VyrTests::ScratchFolder& Folder() const { return m_folder; }

private:
    VyrPlatform::ComApartment m_apartment;
    VyrTests::ScratchFolder m_folder;
};

using Texts = std::vector<CString>;

} // namespace

TEST_F(XmlDocumentTest, ElementsAreFoundAtAnyDepthInTheirOrder)
{
    const IXMLDOMDocumentPtr document = Load("<r><t>1<u><t>2</t></u></t><T>3</T><t/><v><v><t>4</t></v></v></r>");
    const IXMLDOMElementPtr root = RootOf(document);
    EXPECT_EQ(TextsOf(root, u"t"), (Texts{u"12", u"2", u"", u"4"}));
    EXPECT_EQ(TextsOf(root, u"T"), Texts{u"3"}) << "case counts";
    EXPECT_EQ(TextsOf(root, u"*").size(), 8U);
    EXPECT_EQ(TextsOf(root, u"r"), Texts{}) << "the element itself is not below it";
    EXPECT_EQ(TextsOf(root, u"none"), Texts{});
}

TEST_F(XmlDocumentTest, NamesMatchWithoutTheirPrefix)
{
    const IXMLDOMDocumentPtr document =
        Load("<r xmlns:n='urn:n' xmlns='urn:d'><t>1</t><n:t>2</n:t><t xmlns='urn:z'>3</t>"
             "</r>");
    EXPECT_EQ(TextsOf(RootOf(document), u"t"), (Texts{u"1", u"2", u"3"}));
    EXPECT_EQ(TextsOf(RootOf(document), u"n:t"), Texts{});
    const IXMLDOMDocumentPtr undeclared = Load("<r><n:t a='1'>2</n:t></r>");
    EXPECT_EQ(TextsOf(RootOf(undeclared), u"*"), Texts{u"2"}) << "a prefix that stands for nothing";
}

TEST_F(XmlDocumentTest, NamesMayHaveAnyLetter)
{
    const IXMLDOMDocumentPtr document = Load("<r><\xC3\xA4>1</\xC3\xA4></r>");
    EXPECT_EQ(TextsOf(RootOf(document), u"\u00E4"), Texts{u"1"});
}

TEST_F(XmlDocumentTest, ListEndsWithNothing)
{
    const IXMLDOMNodeListPtr list = ElementsOf(RootOf(Load("<r><t/></r>")), u"t");
    for (const LONG index : {1, 2, -1}) {
        IXMLDOMNodePtr node;
        EXPECT_EQ(list->get_item(index, &node), S_FALSE) << index;
        EXPECT_FALSE(node);
    }
}

TEST_F(XmlDocumentTest, NodesOutliveTheirDocumentsPointer)
{
    IXMLDOMNodePtr node;
    {
        const IXMLDOMNodeListPtr list = ElementsOf(RootOf(Load("<r><t>kept</t></r>")), u"t");
        EXPECT_EQ(list->get_item(0, &node), S_OK);
    }
    DOMNodeType type{};
    EXPECT_EQ(node->get_nodeType(&type), S_OK);
    EXPECT_EQ(type, NODE_ELEMENT);
    EXPECT_EQ(TextOf(As<IXMLDOMElementPtr>(node)), u"kept");
}

TEST_F(XmlDocumentTest, ObjectsHaveOnlyTheInterfacesOfTheirKind)
{
    const IXMLDOMElementPtr root = RootOf(Load("<r/>"));
    EXPECT_TRUE(As<IXMLDOMNodePtr>(root));
    EXPECT_FALSE(As<IXMLDOMDocumentPtr>(root));
    EXPECT_FALSE(As<IXMLDOMNodeListPtr>(root));
}

TEST_F(XmlDocumentTest, TextLosesTheBlanksAtItsEnds)
{
    const std::vector<std::pair<const char*, const char16_t*>> table = {
        {"", u""},
        {"   ", u""},
        {"  lead and trail \t ", u"lead and trail"},
        {"\n\t a  b   c\r\n", u"a  b   c"},
        {"line1\nline2\r\nline3\r\n", u"line1\nline2\nline3"},
        {"&#32;s&#32;", u"s"},
        {"\xC2\xA0n\xC2\xA0", u"\u00A0n\u00A0"},
        {"a<b> b </b>c", u"a b c"},
        {"  <b>in</b>  ", u"in"},
        {"x<b/>y", u"xy"},
        {"<b>1</b><b>2</b>", u"12"},
        {"<b>x</b>\n\t<b>y</b>", u"x y"},
        {"a <b>b</b> <b>c</b> d", u"a b c d"},
        {"x<b> </b>y", u"x y"},
        {"x<b>\n<c>y</c></b>", u"xy"},
        {"x<b>\n<c/></b>y", u"x y"},
        {"x<b><c/>\n<d>y</d></b>", u"xy"},
        {"x<b><c>1</c>\n<d/></b>y", u"x1 y"},
        {"x <b> <c> <d>y</d> </c> </b> z", u"x y  z"},
        {"<a>x</a> <b><c/> <d>y</d></b>", u"x y"},
        {"<a>x</a> <b><![CDATA[]]>y</b>", u"x y"},
        {"<a>x <![CDATA[]]> </a>y", u"x  y"},
        {"y <b><![CDATA[]]></b>", u"y"},
        {"<![CDATA[]]> z", u" z"},
        {"<![CDATA[ c ]]> \n<![CDATA[ d ]]>", u" c  d "},
        {"<![CDATA[ c ]]> \n<![CDATA[]]>", u" c "},
        {"<a>x</a> <b><![CDATA[y ]]></b>", u"x y"},
        {"<b xml:space='preserve'> </b>x", u"x"},
        {"y <b xml:space='preserve'> z </b>", u"y  z"},
        {"y<b xml:space='preserve'> <c/> </b>z", u"y  z"},
        {"a<!-- comment -->b", u"ab"},
        {"a <!--c--> b", u"a  b"},
        {"a<?pi data?>b", u"ab"},
        {"<![CDATA[ <cd> &amp; ]]>", u" <cd> &amp; "},
        {" x <![CDATA[ y ]]> z ", u"x  y  z"},
        {"<![CDATA[]]>", u""},
        {"a&amp;b &lt;&#x41;&#66;&quot;&apos;&gt;", u"a&b <AB\"'>"},
        {"&#x1F600;\xF0\x9F\x98\x80", u"\U0001F600\U0001F600"},
    };
    for (const auto& [content, text] : table)
        EXPECT_EQ(TextOfRoot("<r>" + std::string(content) + "</r>"), text) << content;
    EXPECT_EQ(TextOfRoot("<r xml:space='preserve'> k <b> l </b> </r>"), u" k  l  ");
}

TEST_F(XmlDocumentTest, AttributesArePresentOrAbsent)
{
    EXPECT_EQ(AttributeOfRoot("<r a='1' b='2'/>", u"a"), u"'1'");
    EXPECT_EQ(AttributeOfRoot("<r a=''/>", u"a"), u"''");
    EXPECT_EQ(AttributeOfRoot("<r/>", u"a"), u"(absent)");
    EXPECT_EQ(AttributeOfRoot("<r A='1'/>", u"a"), u"(absent)") << "case counts";
    EXPECT_EQ(AttributeOfRoot("<r xmlns:n='urn:n' n:a='2'/>", u"a"), u"(absent)");
    EXPECT_EQ(AttributeOfRoot("<r xmlns:n='urn:n' a='1' n:a='2'/>", u"n:a"), u"'2'");
}

TEST_F(XmlDocumentTest, AttributeIsAskedForByANameAndIntoAValue)
{
    const IXMLDOMDocumentPtr document = Load("<r a='1'/>");
    ASSERT_TRUE(document);
    _variant_t value;
    EXPECT_EQ(RootOf(document)->getAttribute(nullptr, &value), E_INVALIDARG);
    EXPECT_EQ(RootOf(document)->getAttribute(ToBstr(u"a"), nullptr), E_INVALIDARG);
}

TEST_F(XmlDocumentTest, AttributesKeepTheirBlanks)
{
    EXPECT_EQ(AttributeOfRoot("<r a=' x  y '/>", u"a"), u"' x  y '");
    EXPECT_EQ(AttributeOfRoot("<r a='l1\nl2\tl3'/>", u"a"), u"'l1 l2 l3'") << "a line's end is a blank";
    EXPECT_EQ(AttributeOfRoot("<r a='1&#10;2&#9;3'/>", u"a"), u"'1\n2\t3'");
    EXPECT_EQ(AttributeOfRoot("<r a='&lt;&amp;&quot;\"'/>", u"a"), u"'<&\"\"'");
}

TEST_F(XmlDocumentTest, DocumentTypeDeclaresEntitiesAndDefaults)
{
    const std::string type = "<!DOCTYPE r [<!ENTITY e 'ent'><!ENTITY f 'x&e;y'><!ENTITY m '<u>k</u>'>"
                             "<!ATTLIST r d CDATA 'def' a CDATA #IMPLIED><!ELEMENT r (nothing)>]>";
    EXPECT_EQ(TextOfRoot(type + "<r>a&e;b&f;&m;</r>"), u"aentbxentyk") << "and is not held against the content";
    EXPECT_EQ(TextOfRoot(type + "<r> &e; </r>"), u"ent");
    EXPECT_EQ(AttributeOfRoot(type + "<r a='&f;'/>", u"a"), u"'xenty'");
    EXPECT_EQ(AttributeOfRoot(type + "<r/>", u"d"), u"'def'");
    EXPECT_EQ(AttributeOfRoot(type + "<r/>", u"a"), u"(absent)");
    EXPECT_EQ(TextOfRoot(type + "<r>&unknown;</r>"), u"(not loaded)");
    EXPECT_EQ(TextOfRoot("<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r>&a;</r>"), u"(not loaded)");
}

TEST_F(XmlDocumentTest, DocumentTypeElsewhereIsNotRead)
{
    Folder().WriteFile(u"type.dtd", "<!ENTITY x 'outside'><!ATTLIST r d CDATA 'outside'>");
    EXPECT_EQ(TextOfRoot("<!DOCTYPE r SYSTEM 'type.dtd'><r>a&x;b</r>"), u"ab");
    EXPECT_EQ(AttributeOfRoot("<!DOCTYPE r SYSTEM 'type.dtd'><r/>", u"d"), u"(absent)");
    EXPECT_EQ(TextOfRoot("<!DOCTYPE r SYSTEM 'missing.dtd'><r>p</r>"), u"p");
    Folder().WriteFile(u"entity.txt", "outside");
    EXPECT_EQ(TextOfRoot("<!DOCTYPE r [<!ENTITY x SYSTEM 'entity.txt'>]><r>a&x;b</r>"), u"ab");
    EXPECT_EQ(TextOfRoot("<!DOCTYPE r [<!ENTITY x SYSTEM 'missing.txt'>]><r>a&x;b</r>"), u"ab");
    EXPECT_EQ(TextOfRoot("<!DOCTYPE r [<!ENTITY % x SYSTEM 'type.dtd'> %x;]><r>a&x;b</r>"), u"(not loaded)");
}

TEST_F(XmlDocumentTest, DeclaredEncodingIsFollowed)
{
    const std::string utf8 = "\xC3\xA4\xE2\x82\xAC";
    EXPECT_EQ(TextOfRoot("<r>" + utf8 + "</r>"), u"\u00E4\u20AC");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='UTF-8'?><r>" + utf8 + "</r>"), u"\u00E4\u20AC");
    EXPECT_EQ(TextOfRoot("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><r>" + utf8 + "</r>"), u"\u00E4\u20AC");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='windows-1252'?><r>\xE4\x80</r>"), u"\u00E4\u20AC");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='ISO-8859-1'?><r>\xE4\x80</r>"), u"\u00E4\u0080");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='US-ASCII'?><r>\xE4</r>"), u"(not loaded)");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='nonsense'?><r>a</r>"), u"(not loaded)");
}

TEST_F(XmlDocumentTest, Utf16LoadsInBothByteOrders)
{
    for (const bool isBigEndian : {false, true}) {
        EXPECT_EQ(TextOfRoot(Utf16("<?xml version='1.0' encoding='UTF-16'?><r>a</r>", isBigEndian)), u"a");
        EXPECT_EQ(TextOfRoot(Utf16("<?xml version='1.0'?><r>a</r>", isBigEndian)), u"a");
        EXPECT_EQ(TextOfRoot(Utf16("<r>a</r>", isBigEndian)), u"a");
        EXPECT_EQ(TextOfRoot(Utf16("<?xml version='1.0' encoding='UTF-16'?><r>a</r>", isBigEndian).substr(2)), u"a")
            << "without a mark";
    }
}

TEST_F(XmlDocumentTest, ShiftJisLoads)
{
    const CString text = TextOfRoot("<?xml version='1.0' encoding='Shift_JIS'?><r>\x93\xFA\x96\x7B</r>");
    if (text == u"(not loaded)" && TextOfRoot("<?xml version='1.0' encoding='EUC-JP'?><r>a</r>") == text)
        GTEST_SKIP() << "Wine's parser converts no code page but those of Windows";
    EXPECT_EQ(text, u"\u65E5\u672C");
}

TEST_F(XmlDocumentTest, WrongDeclarationIsHeldAgainstTheBytes)
{
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='UTF-8'?><r>\xE4</r>"), u"(not loaded)");
    EXPECT_EQ(TextOfRoot("<r>\xE4</r>"), u"(not loaded)");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='UTF-16'?><r>a</r>"), u"(not loaded)");
    EXPECT_EQ(TextOfRoot("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-16'?><r>a</r>"), u"(not loaded)");
    for (const bool isBigEndian : {false, true})
        EXPECT_EQ(TextOfRoot(Utf16("<?xml version='1.0' encoding='UTF-8'?><r>a</r>", isBigEndian)), u"a")
            << "the mark tells";
    EXPECT_EQ(TextOfRoot(Utf16("<?xml version='1.0' encoding='windows-1252'?><r>a</r>", false)), u"(not loaded)");
    EXPECT_EQ(TextOfRoot("<?xml version='1.0' encoding='windows-1252'?><r>\x93\xFA</r>"), u"\u201C\u00FA");
}

TEST_F(XmlDocumentTest, MalformedDocumentDoesNotLoad)
{
    for (const std::string_view bytes : {std::string_view(""),
                                         std::string_view("  \n"),
                                         std::string_view("hello"),
                                         std::string_view("<?xml version='1.0'?><!-- c -->"),
                                         std::string_view("<r/><s/>"),
                                         std::string_view("<r>x</r>more"),
                                         std::string_view("<r><t>x"),
                                         std::string_view("<r><t></r></t>"),
                                         std::string_view("<r a='1' a='2'/>"),
                                         std::string_view("<r>a\0b</r>", 10),
                                         std::string_view("<r>a\x01"
                                                          "b</r>"),
                                         std::string_view("<r a='<'/>"),
                                         std::string_view("<r>a & b</r>"),
                                         std::string_view("<r>&nope;</r>"),
                                         std::string_view("<r>&#0;</r>"),
                                         std::string_view("<r>&#xD800;</r>"),
                                         std::string_view("<r>]]></r>"),
                                         std::string_view("<r><!-- a -- b --></r>"),
                                         std::string_view("<1r/>"),
                                         std::string_view(" <?xml version='1.0'?><r/>"),
                                         std::string_view("<?xml version='2.0'?><r/>"),
                                         std::string_view("<r>\xEF\xBF\xBE</r>")})
        ExpectNotLoaded(bytes);
    EXPECT_EQ(TextOfRoot("\n <r>x</r>"), u"x");
    EXPECT_EQ(TextOfRoot("<?xml version='1.1'?><r>x</r>"), u"x");
    EXPECT_EQ(TextOfRoot("<r>x</r> <!-- c -->\n"), u"x");
}

TEST_F(XmlDocumentTest, FolderAndMissingFileDoNotLoad)
{
    EXPECT_FALSE(LoadPath({}));
    EXPECT_FALSE(LoadPath(Folder().Path(u"missing.xml")));
    EXPECT_FALSE(LoadPath(Folder().MakeFolder(u"folder.xml")));
}

TEST_F(XmlDocumentTest, FailedLoadLeavesNoDocument)
{
    const IXMLDOMDocumentPtr document = Load("<r/>");
    VARIANT_BOOL isLoaded = VARIANT_TRUE;
    EXPECT_EQ(document->load(_variant_t(ToBstr(Folder().Path(u"missing.xml"))), &isLoaded), S_FALSE);
    EXPECT_EQ(isLoaded, VARIANT_FALSE);
    IXMLDOMElementPtr root;
    EXPECT_EQ(document->get_documentElement(&root), S_FALSE);
    EXPECT_FALSE(root);
}

TEST_F(XmlDocumentTest, NewDocumentHasNoRoot)
{
    for (const CLSID& classId : {documentClass, freeThreadedClass}) {
        const IXMLDOMDocumentPtr document(classId);
        ASSERT_TRUE(document);
        IXMLDOMElementPtr root;
        EXPECT_EQ(document->get_documentElement(&root), S_FALSE);
        EXPECT_FALSE(root);
    }
}

TEST_F(XmlDocumentTest, UnknownClassIsAnError)
{
    constexpr CLSID unknown{0xF5078F32, 0xC551, 0x11D3, {0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0}};
    try {
        const IXMLDOMDocumentPtr document(unknown);
        ADD_FAILURE() << "no exception";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), REGDB_E_CLASSNOTREG);
    }
}

TEST_F(XmlDocumentTest, NullPointerIsAnError)
{
    const IXMLDOMDocumentPtr document;
    try {
        static_cast<void>(document->put_async(VARIANT_FALSE));
        ADD_FAILURE() << "no exception";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), E_POINTER);
    }
}

TEST_F(XmlDocumentTest, TextsOfCOMAreConvertedBack)
{
    for (const char16_t* const text : {u"", u"a", u"\u65E5\U0001F600"})
        EXPECT_EQ(FromBstr(ToBstr(text)), text);
}
