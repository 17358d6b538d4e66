// Whole documents: decoded with their own namespaces as binder, compared, written, decoded and written once more.
//
// First byte: the number of the schema. Second byte: which allocation fails, 0 for none. The rest is the document.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "XMLFactory.h"
#include "XMLList.h"
#include "XmlFields.h"
#include "XmlNamespaceTable.h"
#include "ixDplHost.h"

namespace {

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "violated: %s\n", what);
    ixDplHostDumpLedger(stderr);
    std::abort();
}

/// Lines are put together although nobody reads them: a wrong argument shows only then.
void IgnoreLine(const ixDplHostLogLine& /*line*/, void* /*context*/) {}

/// One caller's whole work on a document.
class Work {
  public:
    Work(eXMLSchemaID id, const char* text) {
        XMLContext* const namespaces = XMLFactory::newInstance(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL);
        XMLContext* const context = XMLFactory::newInstance(id);
        if (namespaces != nullptr && context != nullptr) Run(*namespaces, *context, text);
        XMLFactory::deleteContext(context);
        XMLFactory::deleteContext(namespaces);
    }

    /// True when no decoding failed. The tree of one that fails half-way is left to nobody.
    bool AllDecoded() const { return m_allDecoded; }

    /// False when the document was written, decoded and written again, and the texts differ without an excuse:
    ///
    /// - A text that was cut is not the document any more.
    /// - Only the double quote is escaped on output, so a text with an entity may hold one that the document had
    ///   escaped twice. Reading it takes away one level, and the next text has one less.
    /// - A disposition notification of a message that was processed is written under a name that is not read. A default
    ///   namespace that a child element declares is written on the root, where it is not read.
    /// - The walk over the `many` of an identity leaves some out, others each time.
    /// - A default namespace in the binder takes the prefix away from the names that are written. Those of common
    /// policy
    ///   are read with a prefix only.
    bool IsStable() const {
        return !m_writtenTwice || m_cut || m_unprefixed || m_first.find('&') != std::string::npos ||
               m_first == m_second || m_first.find("<proessing-notification>") != std::string::npos ||
               DeclaresDefaultTwice() || m_first.find("<many ") != std::string::npos ||
               m_first.find(":many ") != std::string::npos;
    }

    void Print() const { std::fprintf(stderr, "first:\n%s\nsecond:\n%s\n", m_first.c_str(), m_second.c_str()); }

  private:
    bool DeclaresDefaultTwice() const { return m_first.find(" xmlns=\"") != m_first.rfind(" xmlns=\""); }

    /// True when the binder gives the names of a common policy no prefix.
    static bool UnprefixesCommonPolicy(const XMLObject* binder) {
        const IxSingleElementList* const declarations = XmlNamespaceBinder::DeclarationsOf(binder);
        for (const ix_AttributeValuePair* pair : XmlEntries<const ix_AttributeValuePair>(declarations)) {
            const bool isPolicy = pair->mValue != nullptr && std::strstr(pair->mValue, ":common-policy") != nullptr;
            if (isPolicy && pair->mName == nullptr) return true;
        }
        return false;
    }

    XMLElement* Decode(XMLUnMarshaller* reader, const char* text) {
        XMLElement* const root = reader != nullptr ? reader->UnMarshall(text) : nullptr;
        m_allDecoded = m_allDecoded && root != nullptr;
        return root;
    }

    void Run(XMLContext& namespaces, XMLContext& context, const char* text) {
        XMLElement* const binder = Decode(namespaces.createUnMarshaller(), text);
        auto* const declarations = static_cast<XMLObject*>(binder);
        m_unprefixed = UnprefixesCommonPolicy(declarations);
        context.SetNamespaceBinder(declarations);
        XMLUnMarshaller* const reader = context.createUnMarshaller();
        XMLMarshaller* const writer = context.createMarshaller();
        XMLElement* const root = Decode(reader, text);
        Require(XmlFields::Equal(root, root), "a tree equals itself");
        if (root != nullptr && writer != nullptr) WriteTwice(reader, *writer, root);
        XMLFactory::DeleteElement(root);
        XMLFactory::DeleteElement(binder);
    }

    void WriteTwice(XMLUnMarshaller* reader, XMLMarshaller& writer, XMLElement* root) {
        const char* const first = writer.Marshall(root);
        if (first == nullptr) return;
        m_first = first;
        m_cut = writer.IsTruncated() != 0;
        XMLElement* const again = Decode(reader, m_first.c_str());
        const char* const second = again != nullptr ? writer.Marshall(again) : nullptr;
        m_writtenTwice = again != nullptr;
        if (second != nullptr) m_second = second;
        XMLFactory::DeleteElement(again);
    }

    bool m_allDecoded = true;
    bool m_cut = false;
    bool m_unprefixed = false;
    bool m_writtenTwice = false;
    std::string m_first;
    std::string m_second;
};

/// What is given twice in one of these leaves the first one behind; so does a service that fails half-way.
bool LeavesBehind(eXMLSchemaID id) {
    return id == IX_XML_SCHEMA_IS_COMPOSING || id == IX_XML_SCHEMA_COMMUNICATION_DIVERSION ||
           id == IX_XML_SCHEMA_COMMUNICATION_BARRING || id == IX_XML_SCHEMA_SIMSERVS;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return -1;
    const XmlSchemaInfo* const schema = XMLFactory::SchemaInfo(data[0] % kXmlSchemaCount);
    if (schema == nullptr) return -1;
    const unsigned failing = data[1];
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);

    ixDplHostSetLogSink(IgnoreLine, nullptr, kIxDplHostAllLevels);
    ixDplHostEnableLedger(true);
    ixDplHostFailAllocation(failing);
    const Work work(schema->id, text.c_str());
    const bool failed = failing != 0 && ixDplHostAllocations() >= failing;
    ixDplHostStopCounting();

    const ixDplHostLedgerTotals totals = ixDplHostLedger();
    Require(totals.doubleRemovals == 0, "nothing is unregistered twice");
    Require(totals.unknownRemovals == 0, "nothing unknown is unregistered");
    if (!failed) {
        if (work.AllDecoded()) {
            const bool mayLeave = LeavesBehind(schema->id);
            Require(totals.liveObjects == 0 || mayLeave, "no object stays");
            Require(totals.liveHeapBlocks == 0 || mayLeave, "no block stays");
        }
        if (!work.IsStable()) work.Print();
        Require(work.IsStable(), "what was written is read and written as the same");
    }
    // What the trees of failed documents left behind.
    ixDplHostReleaseHeap();
    ixDplHostEnableLedger(false);
    return 0;
}
