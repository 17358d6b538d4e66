/// @file
/// The registry of document schemas, and the interfaces through which a caller works with one of them.
///
/// A caller takes the context of a schema (`XMLFactory::newInstance`), has it create a binder factory and a marshaller
/// to build and write a document, or an unmarshaller to read one, and gives back the tree (`XMLFactory::DeleteElement`)
/// and the context (`XMLFactory::deleteContext`).
#ifndef IX_XML_FACTORY_H
#define IX_XML_FACTORY_H

#include <memory>

#include "XMLCommonDef.h"
#include "XmlPlatform.h"

class XMLFile;
struct XmlNamedClass;

/// Numbers of the schemas.
enum eXMLSchemaID : int {
    IX_XML_SCHEMA_IS_COMPOSING = 0,
    IX_XML_SCHEMA_RESOURCE_LISTS = 1,
    IX_XML_SCHEMA_CONFERENCE_INFO = 2,
    IX_XML_SCHEMA_IMDN = 3,
    IX_XML_SCHEMA_COMMUNICATION_WAITING = 4,
    IX_XML_SCHEMA_OIP = 5,
    IX_XML_SCHEMA_RESERVED_6 = 6,  ///< Has no context.
    IX_XML_SCHEMA_TIP = 7,
    IX_XML_SCHEMA_RESERVED_8 = 8,  ///< Has no context.
    IX_XML_SCHEMA_COMMUNICATION_DIVERSION = 9,
    IX_XML_SCHEMA_COMMUNICATION_BARRING = 10,
    IX_XML_SCHEMA_SIMSERVS = 11,
    IX_XML_SCHEMA_XCAP_ERROR = 12,
    IX_XML_SCHEMA_WAP_PROVISIONING_DOC = 13,
    IX_XML_SCHEMA_VOLTE_CONFIG_INFO = 14,
    IX_XML_SCHEMA_PRESENCE = 15,
    IX_XML_SCHEMA_RLS_SERVICES = 16,
    IX_XML_SCHEMA_LIST = 17,
    IX_XML_SCHEMA_XCAP_DIRECTORY = 18,
    IX_XML_SCHEMA_FILE = 19,
    IX_XML_SCHEMA_MEDIA_CONTROL = 20,
    IX_XML_SCHEMA_CALL_WAITING_INDICATION = 21,
    IX_XML_SCHEMA_CW_INDICATION = 22,
    IX_XML_SCHEMA_RCS_TERMS_INFO = 23,
    IX_XML_SCHEMA_BOOTSTRAPPING_INFO = 24,
    IX_XML_SCHEMA_GRUU = 25,
    IX_XML_SCHEMA_REGINFO = 26,
    IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL = 27
};

/// The number of schema numbers, the reserved ones included.
constexpr int kXmlSchemaCount = IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL + 1;

/// How documents are read and written.
enum eXMLProfile : int {
    IX_XML_PROFILE_DEVICE = 0,   ///< The dialect of the IMS client stack.
    IX_XML_PROFILE_STANDARD = 1  ///< XML with namespaces and what the public standards say; nothing is lost.
};

/// Why a document could not be read or written.
struct XmlProblem {
    int line;          ///< From 1 on; 0: it has no place in a text.
    int column;        ///< In characters, from 1 on; 0: as above.
    const char* text;  ///< It belongs to the object that was asked.
};

/// Writes a tree as XML text.
class IX_XML_EXPORT XMLMarshaller : public XmlHeapObject {
  public:
    XMLMarshaller() = default;
    virtual ~XMLMarshaller() = default;
    XMLMarshaller(const XMLMarshaller&) = delete;
    XMLMarshaller& operator=(const XMLMarshaller&) = delete;

    /// @return the text, which belongs to the marshaller until its next `Marshall` or its end; NULL when the tree
    /// cannot be written. In the device profile a text longer than the writer's capacity (32767 characters) is cut; see
    /// `IsTruncated`.
    virtual char* Marshall(XMLElement* root) = 0;
    /// Does nothing; keeps its place in the table of virtual operations.
    virtual int Reserved() = 0;
    /// 1 when the text of the last `Marshall` was cut at the writer's capacity.
    virtual int IsTruncated() const;
    /// Standard profile: why the last `Marshall` yielded NULL; NULL: it did not. The device profile has no problems,
    /// but log lines: NULL.
    virtual const XmlProblem* Problem() const;
};

/// Reads a document into a new tree.
class IX_XML_EXPORT XMLUnMarshaller : public XmlHeapObject {
  public:
    XMLUnMarshaller() = default;
    virtual ~XMLUnMarshaller() = default;
    XMLUnMarshaller(const XMLUnMarshaller&) = delete;
    XMLUnMarshaller& operator=(const XMLUnMarshaller&) = delete;

    /// @return the root, which the caller frees with `XMLFactory::DeleteElement`; NULL when `text` is NULL, is not
    /// complete and balanced XML in the tokenizer's sense (standard profile: well-formed), has another root, or when
    /// memory ran out. Memory that runs out while an element or a text is stored does not fail the document of the
    /// device profile, but leaves that one out.
    virtual XMLElement* UnMarshall(const char* text) = 0;
    /// The same for the text of a file. The file stays with the caller, who closes it.
    virtual XMLElement* UnMarshall(XMLFile* file) = 0;
    /// The same for the `length` characters at `text`, which need no NUL behind them. The device profile reads up to
    /// the first NUL among them.
    virtual XMLElement* UnMarshall(const char* text, std::size_t length);
    /// Standard profile: why the last `UnMarshall` yielded NULL, and where; NULL: it did not. The device profile has no
    /// problems, but log lines: NULL.
    virtual const XmlProblem* Problem() const;
};

/// Creates the elements of a tree. The factory of each schema adds creators of its own.
class IX_XML_EXPORT XMLObjectFactory : public XmlHeapObject {
  public:
    XMLObjectFactory() = default;
    virtual ~XMLObjectFactory() = default;
    XMLObjectFactory(const XMLObjectFactory&) = delete;
    XMLObjectFactory& operator=(const XMLObjectFactory&) = delete;

    /// @return an empty root, which the caller frees with `XMLFactory::DeleteElement`; NULL without memory.
    virtual XMLElement* CreateRootElement() = 0;
};

/// Entry to one schema. Owns the three objects that it creates. Call each create operation once: a second call makes a
/// new object, and the earlier one is then the caller's, who frees it with `ixDelete`.
class IX_XML_EXPORT XMLContext : public XmlHeapObject {
  public:
    XMLContext() = default;
    virtual ~XMLContext();
    XMLContext(const XMLContext&) = delete;
    XMLContext& operator=(const XMLContext&) = delete;

    /// Each yields NULL without memory, `createMarshaller` also for a schema that is only read.
    virtual XMLMarshaller* createMarshaller() = 0;
    virtual XMLUnMarshaller* createUnMarshaller() = 0;
    virtual XMLObjectFactory* createBinderFactory() = 0;

    /// Supplementary services: gives the context the namespace declarations of a document (the root that the schema
    /// namespace retrieval decodes), so that its prefixes are understood and written. Call it before the create
    /// operations. The binder stays with the caller and must live until both are created, and as long as the
    /// unmarshaller is used; NULL changes nothing.
    ///
    /// In the standard profile every schema takes one: its prefixes count where the document does not declare them
    /// itself, which an element cut out of a document needs.
    /// @return 1 for the contexts of the supplementary services and for those of the standard profile, 0 for all
    /// others, which do nothing.
    virtual int SetNamespaceBinder(XMLObject* binder);

  protected:
    XMLMarshaller* m_pMarshaller = nullptr;
    XMLUnMarshaller* m_pUnMarshaller = nullptr;
    XMLObjectFactory* m_pBinderFactory = nullptr;
};

/// What the registry knows of a schema.
struct XmlSchemaInfo {
    eXMLSchemaID id;
    const char* name;          ///< Short name, for example "communication-waiting".
    const char* rootElements;  ///< Local names of its root elements, separated by blanks; "*": any.
    const char* namespaceUri;  ///< "" when its documents carry none.
    bool writes;               ///< False: documents are only read.
    bool takesBinder;          ///< True: `SetNamespaceBinder` has an effect.
    XMLContext* (*create)();   ///< A new context of the schema; NULL without memory.
    /// The descriptions (XmlClass.h) of the roots, and of what may stand in their documents and no row names; NULL
    /// behind the last one. All other classes are found through the rows of these.
    const XmlClass* const* classes;
    /// Parts of documents that can be read alone, up to one without description; NULL: none.
    const XmlNamedClass* parts = nullptr;
    /// The namespace of its standard, where the device profile has another; NULL: `namespaceUri`.
    const char* standardUri = nullptr;
    /// The content types of its documents, separated by blanks, the usual one first; "": none is its own.
    const char* contentTypes = "";
};

class IX_XML_EXPORT XMLFactory {
  public:
    /// @return the context of a schema, freed with `deleteContext`; NULL for a number without a context, or without
    /// memory.
    static XMLContext* newInstance(eXMLSchemaID id);
    /// The same in a profile. Schema 21 has no standard profile: its root has a name that XML does not know.
    static XMLContext* newInstance(eXMLSchemaID id, eXMLProfile profile);
    /// Frees a context and what it created. NULL is ignored.
    static void deleteContext(XMLContext* context);
    /// Frees a tree. NULL is ignored.
    static void DeleteElement(XMLElement* element);
    /// Tells in which points a document is not what its standard says, as far as the descriptions of the classes know
    /// it: what is missing, given twice, out of place, no word or number of the standard, or not of it. Elements and
    /// attributes of other namespaces are no fault.
    /// @param report gets each point, in document order, and `context`; NULL: nobody is told.
    /// @return how many there are; -1 when the document cannot be read, which is the last that is reported.
    static int Validate(eXMLSchemaID id, const char* text, std::size_t length,
                        void (*report)(const XmlProblem& problem, void* context), void* context);
    /// @return NULL for a number that stands for no schema.
    static const XmlSchemaInfo* SchemaInfo(int id);
    /// @param type what a header field Content-Type says: parameters, case and white space around do not count.
    /// @return the number of the schema that documents of this type have; -1 for none, and for NULL.
    static int SchemaForContentType(const char* type);
};

/// What documents with a root of some class are: the member `Document` of that class.
template <eXMLSchemaID schema, class BinderFactory>
struct XmlDocumentOf {
    static constexpr eXMLSchemaID kSchema = schema;
    using Factory = BinderFactory;  ///< What `XMLContext::createBinderFactory` creates.
};

/// Frees trees and contexts for `std::unique_ptr`.
struct XmlDeleter {
    void operator()(XMLElement* element) const { XMLFactory::DeleteElement(element); }
    void operator()(XMLContext* context) const { XMLFactory::deleteContext(context); }
};

/// Owns a tree, or a part of one that is not linked yet; NULL: none.
template <class Element = XMLElement>
using XmlOwned = std::unique_ptr<Element, XmlDeleter>;

/// Owns a context. NULL: none.
using XmlOwnedContext = std::unique_ptr<XMLContext, XmlDeleter>;

#endif
