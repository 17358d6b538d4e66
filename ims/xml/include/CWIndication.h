/// @file
/// Decoder of the CW indication (XMLCWIndication.h).
#ifndef IX_CW_INDICATION_H
#define IX_CW_INDICATION_H

#include "XMLImsBody.h"

class IX_XML_EXPORT XMLCWIndicationDecoder : public XmlImsBodyDecoder {
  public:
    XMLCWIndicationDecoder();
};

#endif
