// Parses XML with libxml2. Adds bounds that the library lacks: attributes of one element (it compares each with all
// before it), different names (so that its table of them stays small), the memory of the tree, and the declarations in
// a document type.
#include "XmlTree.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

#include <algorithm>

namespace VyrPlatform {

namespace {

/// With a document type, entities and default attributes multiply the size.
constexpr std::size_t sizeLimitWithDocumentType = 512 << 10;
constexpr std::size_t documentTypeLimit = 64 << 10;
constexpr int attributeLimit = 1000;
/// The words that an attribute and a namespace take in the parser's arrays.
constexpr int wordsPerAttribute = 5;
constexpr int wordsPerNamespace = 2;
/// The parser's arrays grow by halves or doubling, beyond their content.
constexpr int growth = 3;
constexpr int nameLimit = 50000;
constexpr std::size_t memoryLimit = 128 << 20;
/// The memory of a node of the tree, in addition to its text, with a text node below it.
constexpr std::size_t nodeMemory = 256;

/// Keeps this thread's messages of the library off the error stream while it lives: bytes that are not of the declared
/// encoding are reported without a parser.
class NoMessages
{
public:
    NoMessages() noexcept : m_context(xmlStructuredErrorContext), m_former(xmlStructuredError)
    {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlError*) {});
    }
    NoMessages(const NoMessages&) = delete;
    NoMessages& operator=(const NoMessages&) = delete;
    ~NoMessages() { xmlSetStructuredErrorFunc(m_context, m_former); }

private:
    void* m_context;
    xmlStructuredErrorFunc m_former;
};

/// The state of a parse: the bytes read, and the memory of the tree.
class Parse
{
public:
    Parse(const XmlBytes& bytes, XmlContent content);
    Parse(const Parse&) = delete;
    Parse& operator=(const Parse&) = delete;

    [[nodiscard]] XmlTree Run();

private:
    static Parse& Of(void* context) { return *static_cast<Parse*>(static_cast<xmlParserCtxt*>(context)->_private); }
    static int Read(void* parse, char* buffer, int size);
    static void OnElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                          int namespaceCount, const xmlChar** namespaces, int attributeCount, int defaultCount,
                          const xmlChar** attributes);
    static void OnCdata(void* context, const xmlChar* text, int length);
    static void OnEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                         xmlChar* content);

    [[nodiscard]] bool IsWithinBounds() const;
    /// Adds the memory of a node; ends the parse when the sum is too large.
    void Count(std::size_t memory);
    void Refuse();

    struct FreeContext
    {
        void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
    };

    const XmlBytes& m_bytes;
    std::unique_ptr<xmlParserCtxt, FreeContext> m_context;
    std::size_t m_read = 0;
    std::size_t m_memory = 0;
    bool m_isRefused = false;
};

Parse::Parse(const XmlBytes& bytes, XmlContent content) : m_bytes(bytes), m_context(xmlNewParserCtxt())
{
    if (!m_context)
        return;
    m_context->_private = this;
    xmlSAXHandler& handler = *m_context->sax;
    handler.startElementNs = &Parse::OnElement;
    handler.cdataBlock = &Parse::OnCdata;
    handler.entityDecl = &Parse::OnEntity;
    if (content == XmlContent::Everything)
        return;
    // Comments are not used, and the text on both sides of one is a single text.
    handler.comment = nullptr;
    handler.processingInstruction = nullptr;
}

XmlTree Parse::Run()
{
    if (!m_context)
        return nullptr;
    const NoMessages noMessages;
    constexpr int options = XML_PARSE_NOENT | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    xmlDoc* const tree = xmlCtxtReadIO(m_context.get(), &Parse::Read, nullptr, this, nullptr, nullptr, options);
    XmlTree shared(tree, [](xmlDoc* document) {
        if (document)
            xmlFreeDoc(document);
    });
    return m_isRefused ? nullptr : shared;
}

/// Reads small pieces, between which the parser's state is checked.
int Parse::Read(void* parse, char* buffer, int size)
{
    constexpr int pieceSize = 4096;
    Parse& self = *static_cast<Parse*>(parse);
    if (self.m_isRefused || !self.IsWithinBounds()) {
        self.m_isRefused = true;
        return -1;
    }
    const int count = self.m_bytes({buffer, static_cast<std::size_t>(std::min(size, pieceSize))});
    if (count > 0)
        self.m_read += static_cast<std::size_t>(count);
    else if (count < 0)
        self.m_isRefused = true;
    return count;
}

bool Parse::IsWithinBounds() const
{
    const xmlDoc* const tree = m_context->myDoc;
    const bool hasDocumentType = tree && tree->intSubset;
    const bool isInDocumentType = m_context->inSubset != 0;
    return m_read <= (hasDocumentType ? sizeLimitWithDocumentType : xmlSizeLimit) &&
           (!isInDocumentType || m_read <= documentTypeLimit) &&
           m_context->maxatts <= growth * attributeLimit * wordsPerAttribute &&
           m_context->nsMax <= growth * attributeLimit * wordsPerNamespace && xmlDictSize(m_context->dict) <= nameLimit;
}

void Parse::Count(std::size_t memory)
{
    m_memory += memory;
    if (m_memory > memoryLimit)
        Refuse();
}

void Parse::Refuse()
{
    m_isRefused = true;
    xmlStopParser(m_context.get());
}

void Parse::OnElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
                      const xmlChar** namespaces, int attributeCount, int defaultCount, const xmlChar** attributes)
{
    // An attribute has its name, its prefix, its namespace address, and the two ends of its value.
    std::size_t memory = nodeMemory * static_cast<std::size_t>(1 + namespaceCount + attributeCount);
    for (int i = 0; i < attributeCount; ++i) {
        const xmlChar* const* const attribute = attributes + i * wordsPerAttribute;
        memory += static_cast<std::size_t>(attribute[4] - attribute[3]);
    }
    Of(context).Count(memory);
    if (attributeCount - defaultCount > attributeLimit)
        Of(context).Refuse();
    // Default attributes count like all others.
    if (!Of(context).m_isRefused)
        xmlSAX2StartElementNs(context, name, prefix, uri, namespaceCount, namespaces, attributeCount, 0, attributes);
}

void Parse::OnCdata(void* context, const xmlChar* text, int length)
{
    Of(context).Count(nodeMemory + static_cast<std::size_t>(length));
    xmlSAX2CDataBlock(context, text, length);
}

/// An external entity is empty; external declarations cannot be skipped.
void Parse::OnEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                     xmlChar* content)
{
    xmlChar nothing[] = "";
    if (type == XML_EXTERNAL_PARAMETER_ENTITY)
        Of(context).Refuse();
    else if (type == XML_EXTERNAL_GENERAL_PARSED_ENTITY)
        xmlSAX2EntityDecl(context, name, XML_INTERNAL_GENERAL_ENTITY, nullptr, nullptr, nothing);
    else
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
}

} // namespace

XmlTree ParseXml(const XmlBytes& bytes, XmlContent content)
{
    xmlInitParser();
    return Parse(bytes, content).Run();
}

xmlNode* NextBelow(xmlNode* node, const xmlNode* top) noexcept
{
    if (node->type == XML_ELEMENT_NODE && node->children)
        return node->children;
    while (node != top && !node->next)
        node = node->parent;
    return node == top ? nullptr : node->next;
}

} // namespace VyrPlatform
