/// @file
/// Simservs (3GPP TS 24.623): several supplementary services in one document.
///
/// - Root element: `simservs`. Of its services those are known that have a schema of their own: incoming and outgoing
/// communication barring, communication diversion, communication waiting, originating and terminating identity
/// presentation. Others are ignored.
/// - Namespace: http://uri.etsi.org/ngn/params/xml/simservs/xcap.
/// - Prefixes: the root is recognised without a prefix and as `ss:`, and with the prefix of a namespace binder; for its
/// services see their schemas, to which the binder is not handed on.
/// - Read and written. Each service is cut out of the text by its name and read by its own schema; each is written by
/// its own schema and put into an empty root. The services come in the order barring (incoming before outgoing),
/// diversion, waiting, OIP, TIP, and within one kind in that of the document.
///
/// The search for a service is one for its bare name, which has consequences that callers rely on:
/// - An element whose name begins with that of a service (`originating-identity-presentation-restriction`,
/// `communication-diversion-serv-cap`) is cut out as well. Its schema does not know it, so it is dropped, or leaves a
/// part of it as service (the first rule, media type ... in it), which is never written.
/// - A name that stands anywhere else, in an attribute value or a comment, takes what surrounds it with it.
/// - Required: a name that neither an end tag nor "/>" follows keeps `UnMarshall` busy without end.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_SIMSERVS_H
#define IX_XML_SIMSERVS_H

#include "XMLCommunicationBarring.h"
#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLOriginatingIdentityPresentation.h"
#include "XMLTerminatingIdentityPresentation.h"
#include "XmlFamily.h"

/// The element `simservs`.
class IX_XML_EXPORT ix_Simservs : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_SIMSERVS, class SimservsDataBinder>;

    ix_Simservs() : XmlDescribedElement(kClass) {}
    ~ix_Simservs() override { ixRelease(*this, kClass); }
    /// Services arrive through `addService`, not as child elements. @return 1.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over a list of services in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setServiceValue(IxSingleElementList* list) { return ixSetList(*this, mServiceList, list); }
    /// Appends a service, which then belongs to this element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addService(XMLElement* service) { return ixAdd(*this, mServiceList, service); }

    IxSingleElementList* mServiceList = nullptr;  ///< Owned root elements of the services' schemas; NULL: none.
};

class IX_XML_EXPORT SimservsDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_Simservs` without services; NULL without memory.
    XMLElement* CreateRootElement() override;
};

/// Reads a document in two steps: the services are cut out of its text, then each part is decoded by itself.
///
/// At most ten services of each kind are read (barring counts as one kind); more are left where they are, and ignored.
class IX_XML_EXPORT SimservsUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    SimservsUnMarshaller();

    /// @return the root with its services; NULL when the text is NULL, not complete and balanced, or of another root,
    /// and without memory. A service that its schema cannot read is left out.
    XMLElement* UnMarshall(const char* text) override;
    XMLElement* UnMarshall(XMLFile* file) override;

    /// Cuts `length` + 1 characters out of a text, in place.
    ///
    /// Required: unless the cut reaches to the end of the text, one character too many stays at its end, the one that
    /// stood where the shorter text would end. It follows the end tag of the root, and decoders pass over it.
    /// @param out receives the piece, to be freed by the caller; left alone without memory, and when the text does not
    /// have these characters, and so is the text.
    /// @return `text`.
    char* replaceSubStringWithNull(char* text, char** out, int at, int length);
};

/// Writes an XML declaration and the root with the declarations of its namespaces; between its tags, each service as
/// its own schema writes it. A service that cannot be written is left out.
class IX_XML_EXPORT SimservsMarshaller : public XmlFamilyMarshaller {
  public:
    SimservsMarshaller();

    char* Marshall(XMLElement* root) override;
    /// Also 1 when the text of a service was cut.
    int IsTruncated() const override;

    /// The root without its services. @return 1, or 0 for NULL.
    int AddSimservsElementToXml(ix_Simservs* element);

    /// Puts `piece` in front of the first end tag of `document`, which is freed. @return the new text, to be freed by
    /// the caller; `document` itself without memory; NULL when one of the two is NULL or there is no end tag.
    char* InsertString(char* document, const char* piece);

  private:
    char* WriteServices(const IxSingleElementList& services);
    std::size_t WriteEach(const IxSingleElementList& services, char* text, std::size_t size);

    bool m_bServiceTruncated = false;
};

class IX_XML_EXPORT SimservsContext : public XmlBinderContext {
  public:
    SimservsContext();

    int SetNamespaceBinder(XMLObject* binder) override;
};

#endif
