/// @file
/// CW indication, the other form of the IM CN subsystem XML body (3GPP TS 24.229): tells a client what an alternative
/// service of the network wants it to do, for example to register again.
///
/// - Root element: `ims-3gpp`, with the attribute `version`, one `alternative-service` with the texts `type`, `reason`
///   and `action`, and the text `service-info`. XMLImsBody.h tells what the document shares with the call waiting
///   indication.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. The three texts are always written, one that was not set without content. Lost: other attributes
///   and elements, and all but the last `alternative-service`.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_CW_INDICATION_H
#define IX_XML_CW_INDICATION_H

#include "XMLImsBody.h"

/// The element `alternative-service`.
class IX_XML_EXPORT ix_alternative_service : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_alternative_service() : XmlDescribedElement(kClass) {}
    ~ix_alternative_service() override { ixRelease(*this, kClass); }

    /// @name Each copies its text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setTypeValue(const char* type) { return ixSetText(mType, type); }
    int setReasonValue(const char* reason) { return ixSetText(mReason, reason); }
    int setActionValue(const char* action) { return ixSetText(mAction, action); }
    /// @}

    char* mType = nullptr;    ///< Owned; the kind of service. NULL: not set.
    char* mReason = nullptr;  ///< Owned; why, for people. NULL: not set.
    char* mAction = nullptr;  ///< Owned; what is to be done. NULL: not set.
};

/// The element `ims-3gpp`.
class IX_XML_EXPORT ix_ims_3gpp : public ix_imsBodyType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_CW_INDICATION, class CWIndicationDataBinder>;

    ix_ims_3gpp() : ix_imsBodyType(kClass) {}
    ~ix_ims_3gpp() override { ixRelease(*this, kClass); }

    /// Takes over the service in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAlternativeServiceValue(ix_alternative_service* service) { return ixSetChild(mAlternativeService, service); }
    /// Copies `info`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setServiceInfoValue(const char* info) { return ixSetText(mServiceInfo, info); }

    ix_alternative_service* mAlternativeService = nullptr;  ///< Owned; NULL: not set.
    char* mServiceInfo = nullptr;                           ///< Owned; NULL: not set.
};

/// Creates the elements of the schema; each creator yields NULL without memory.
class IX_XML_EXPORT CWIndicationDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_ims_3gpp`.
    XMLElement* CreateRootElement() override;
    ix_alternative_service* CreateAlternativeServiceElement();
};

class IX_XML_EXPORT CWIndicationUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    CWIndicationUnMarshaller();
};

/// Writes the document without XML declaration.
class IX_XML_EXPORT CWIndicationMarshaller : public XmlImsBodyMarshaller {
  public:
    CWIndicationMarshaller();

    /// @name Each answers 1, or 0 for NULL.
    /// @{
    int AddIms3gppElementToXml(ix_ims_3gpp* element);
    int AddAlternativeServiceElementToXml(ix_alternative_service* service);
    /// @}
};

class IX_XML_EXPORT CWIndicationContext : public XmlFamilyContext {
  public:
    CWIndicationContext();
};

#endif
