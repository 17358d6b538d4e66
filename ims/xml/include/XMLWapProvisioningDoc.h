/// @file
/// WAP provisioning document (OMA Client Provisioning, provisioning content): the settings with which an operator or a
/// device manager configures a device.
///
/// - Root element: `wap-provisioningdoc`, with the attribute `version` and `characteristic`s. XMLCharacteristic.h tells
///   what is in them, how it is decoded, and what is lost.
/// - Namespace: none. Names are compared as they stand in the document, prefix included.
/// - Read only.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_WAP_PROVISIONING_DOC_H
#define IX_XML_WAP_PROVISIONING_DOC_H

#include "XMLCharacteristic.h"

/// The element `wap-provisioningdoc`.
class IX_XML_EXPORT ix_wap_provisioning_doc : public ix_characteristicDocType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_WAP_PROVISIONING_DOC, class WapProvisioningDocDataBinder>;

    ix_wap_provisioning_doc() : ix_characteristicDocType(kClass) {}
};

class IX_XML_EXPORT WapProvisioningDocDataBinder : public XmlCharacteristicDataBinder {
  public:
    /// A new `ix_wap_provisioning_doc`.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT WapProvisioningDocUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    WapProvisioningDocUnMarshaller();
};

class IX_XML_EXPORT WapProvisioningDocMarshall : public XmlCharacteristicMarshaller {};

class IX_XML_EXPORT WapProvisioningDocContext : public XmlFamilyContext {
  public:
    WapProvisioningDocContext();
};

#endif
