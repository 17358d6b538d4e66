/// @file
/// Originating identity presentation (3GPP TS 24.607, XCAP document of TS 24.623): the caller's identity is shown to
/// the called party.
///
/// - Root element: `originating-identity-presentation`, with the attribute `active`; children are ignored.
/// - Namespace: http://uri.etsi.org/ngn/params/xml/simservs/xcap.
/// - Prefixes: removed, whatever they are; written with `ss:`, or the prefix of a namespace binder.
/// - Read and written. Other attributes of the document, those of child elements among them, are kept and written back.
#ifndef IX_XML_ORIGINATING_IDENTITY_PRESENTATION_H
#define IX_XML_ORIGINATING_IDENTITY_PRESENTATION_H

#include "XMLIdentityPresentation.h"

/// The element `originating-identity-presentation`.
class IX_XML_EXPORT ix_originating_identity_presentation : public ix_ns_identity_presentationType {
  public:
    static constexpr char kClassName[] = "originating-identity-presentation";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "OriginatingIdentityPresentation"; }

  protected:
    const char* SourceFile() const override;
};

class IX_XML_EXPORT OIPDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_originating_identity_presentation`, active.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT OIPUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

class IX_XML_EXPORT OIPMarshaller : public XmlIdentityPresentationMarshaller {
  public:
    OIPMarshaller();

    /// @return 1, or 0 for NULL.
    int AddOIPElementToXml(ix_originating_identity_presentation* element);
};

class IX_XML_EXPORT OIPContext : public XmlOldBinderContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
