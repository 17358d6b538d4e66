/// @file
/// Decoder of the WAP provisioning document (XMLWapProvisioningDoc.h).
#ifndef IX_WAP_PROVISIONING_DOC_H
#define IX_WAP_PROVISIONING_DOC_H

#include "XMLCharacteristic.h"

class IX_XML_EXPORT XMLWapProvisioningDocDecoder : public XmlCharacteristicDecoder {
  public:
    XMLWapProvisioningDocDecoder();
};

#endif
