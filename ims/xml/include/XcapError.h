/// @file
/// Decoder of the XCAP error (XMLXcapError.h).
#ifndef IX_XCAP_ERROR_H
#define IX_XCAP_ERROR_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLXcapErrorDecoder : public XmlFamilyDecoder {
  public:
    XMLXcapErrorDecoder();
};

#endif
