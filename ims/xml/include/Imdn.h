/// @file
/// Decoder of the instant message disposition notification (XMLImdn.h).
#ifndef IX_IMDN_H
#define IX_IMDN_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLImdnDecoder : public XmlFamilyDecoder {
  public:
    XMLImdnDecoder();
};

#endif
