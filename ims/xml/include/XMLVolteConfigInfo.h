/// @file
/// VoLTE configuration information (shaped like the WAP provisioning document of OMA Client Provisioning): the settings
/// of an operator for voice over LTE.
///
/// - Root element: `volte-config-info`, with the attribute `version` and `characteristic`s. XMLCharacteristic.h tells
///   what is in them, how it is decoded, and what is lost.
/// - Namespace: none. Names are compared as they stand in the document, prefix included.
/// - Read only.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_VOLTE_CONFIG_INFO_H
#define IX_XML_VOLTE_CONFIG_INFO_H

#include "XMLCharacteristic.h"

/// The element `volte-config-info`.
class IX_XML_EXPORT ix_volte_config_info : public ix_characteristicDocType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_VOLTE_CONFIG_INFO, class VolteConfigInfoDataBinder>;

    ix_volte_config_info() : ix_characteristicDocType(kClass) {}
};

class IX_XML_EXPORT VolteConfigInfoDataBinder : public XmlCharacteristicDataBinder {
  public:
    /// A new `ix_volte_config_info`.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT VolteConfigInfoUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    VolteConfigInfoUnMarshaller();
};

class IX_XML_EXPORT VolteConfigInfoMarshall : public XmlCharacteristicMarshaller {};

class IX_XML_EXPORT VolteConfigInfoContext : public XmlFamilyContext {
  public:
    VolteConfigInfoContext();
};

#endif
