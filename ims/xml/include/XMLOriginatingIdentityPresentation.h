/// @file
/// Originating identity presentation (3GPP TS 24.607, XCAP document of TS 24.623): the caller's identity is shown to
/// the called party.
///
/// - Root element: `originating-identity-presentation`, with the attribute `active`; children are ignored.
/// - Namespace: http://uri.etsi.org/ngn/params/xml/simservs/xcap.
/// - Prefixes: removed, whatever they are; written with `ss:`, or the prefix of a namespace binder.
/// - Read and written. Other attributes of the document, those of child elements among them, are kept and written back.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_ORIGINATING_IDENTITY_PRESENTATION_H
#define IX_XML_ORIGINATING_IDENTITY_PRESENTATION_H

#include "XMLSimservsXcap.h"

/// The element `originating-identity-presentation`.
class IX_XML_EXPORT ix_originating_identity_presentation : public ix_ns_xcap_simservType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_OIP, class OIPDataBinder>;

    ix_originating_identity_presentation() : ix_ns_xcap_simservType(kClass) {}
};

class IX_XML_EXPORT OIPDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_originating_identity_presentation`, active.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT OIPUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    OIPUnMarshaller();
};

/// Writes `<ss:originating-identity-presentation  active="true"/>`, with the attributes kept from the document it was
/// decoded from before `active`, and with the prefix that a namespace binder gives to the namespace. No XML
/// declaration, and no namespace declaration unless it was among the attributes.
class IX_XML_EXPORT OIPMarshaller : public XmlServiceMarshaller {
  public:
    OIPMarshaller();

    /// @return 1, or 0 for NULL.
    int AddOIPElementToXml(ix_originating_identity_presentation* element);
};

class IX_XML_EXPORT OIPContext : public XmlBinderContext {
  public:
    OIPContext();
};

#endif
