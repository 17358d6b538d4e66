/// @file
/// Decoder of the XCAP error (XMLXcapError.h).
#ifndef IX_XCAP_ERROR_H
#define IX_XCAP_ERROR_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLXcapErrorDecoder : public XmlOldFamilyDecoder {
  public:
    XMLXcapErrorDecoder();
};

#endif
