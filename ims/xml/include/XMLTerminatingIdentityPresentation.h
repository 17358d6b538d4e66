/// @file
/// Terminating identity presentation (3GPP TS 24.608, XCAP document of TS 24.623): the connected party's identity is
/// shown to the caller.
///
/// - Root element: `terminating-identity-presentation`, with the attribute `active`; children are ignored.
/// - Namespace: http://uri.etsi.org/ngn/params/xml/simservs/xcap.
/// - Prefixes: removed, whatever they are; written with `ss:`, or the prefix of a namespace binder.
/// - Read and written. Other attributes of the document, those of child elements among them, are kept and written back.
#ifndef IX_XML_TERMINATING_IDENTITY_PRESENTATION_H
#define IX_XML_TERMINATING_IDENTITY_PRESENTATION_H

#include "XMLIdentityPresentation.h"

/// The element `terminating-identity-presentation`.
class IX_XML_EXPORT ix_terminating_identity_presentation : public ix_ns_identity_presentationType {
  public:
    static constexpr char kClassName[] = "terminating-identity-presentation";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "TerminatingIdentityPresentation"; }

  protected:
    const char* SourceFile() const override;
};

class IX_XML_EXPORT TIPDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_terminating_identity_presentation`, active.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT TIPUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

class IX_XML_EXPORT TIPMarshaller : public XmlIdentityPresentationMarshaller {
  public:
    TIPMarshaller();

    /// @return 1, or 0 for NULL.
    int AddTIPElementToXml(ix_terminating_identity_presentation* element);
};

class IX_XML_EXPORT TIPContext : public XmlOldBinderContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
