/// @file
/// Decoder of the bootstrapping information (XMLBootstrappingInfo.h).
#ifndef IX_BOOTSTRAPPING_INFO_H
#define IX_BOOTSTRAPPING_INFO_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLBootstrappingInfoDecoder : public XmlFamilyDecoder {
  public:
    XMLBootstrappingInfoDecoder();
};

#endif
