/// @file
/// Terminating identity presentation (3GPP TS 24.608, XCAP document of TS 24.623): the connected party's identity is
/// shown to the caller.
///
/// - Root element: `terminating-identity-presentation`, with the attribute `active`; children are ignored.
/// - Namespace: http://uri.etsi.org/ngn/params/xml/simservs/xcap.
/// - Prefixes: removed, whatever they are; written with `ss:`, or the prefix of a namespace binder.
/// - Read and written. Other attributes of the document, those of child elements among them, are kept and written back.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_TERMINATING_IDENTITY_PRESENTATION_H
#define IX_XML_TERMINATING_IDENTITY_PRESENTATION_H

#include "XMLSimservsXcap.h"

/// The element `terminating-identity-presentation`.
class IX_XML_EXPORT ix_terminating_identity_presentation : public ix_ns_xcap_simservType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_TIP, class TIPDataBinder>;

    ix_terminating_identity_presentation() : ix_ns_xcap_simservType(kClass) {}
};

class IX_XML_EXPORT TIPDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_terminating_identity_presentation`, active.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT TIPUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    TIPUnMarshaller();
};

/// Writes `<ss:terminating-identity-presentation  active="true"/>`, with the attributes kept from the document it was
/// decoded from before `active`, and with the prefix that a namespace binder gives to the namespace. No XML
/// declaration, and no namespace declaration unless it was among the attributes.
class IX_XML_EXPORT TIPMarshaller : public XmlServiceMarshaller {
  public:
    TIPMarshaller();

    /// @return 1, or 0 for NULL.
    int AddTIPElementToXml(ix_terminating_identity_presentation* element);
};

class IX_XML_EXPORT TIPContext : public XmlBinderContext {
  public:
    TIPContext();
};

#endif
