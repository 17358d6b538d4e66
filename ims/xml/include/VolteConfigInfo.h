/// @file
/// Decoder of the VoLTE configuration information (XMLVolteConfigInfo.h).
#ifndef IX_VOLTE_CONFIG_INFO_H
#define IX_VOLTE_CONFIG_INFO_H

#include "XMLCharacteristic.h"

class IX_XML_EXPORT XMLVolteConfigInfoDecoder : public XmlCharacteristicDecoder {
  public:
    XMLVolteConfigInfoDecoder();
};

#endif
