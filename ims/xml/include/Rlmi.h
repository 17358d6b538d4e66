/// @file
/// Decoder of the resource list meta-information (XMLRlmi.h).
#ifndef IX_RLMI_H
#define IX_RLMI_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLListDecoder : public XmlFamilyDecoder {
  public:
    XMLListDecoder();
};

#endif
