/// @file
/// Decoder of the XCAP directory (XMLXcapDirectory.h).
#ifndef IX_XCAP_DIRECTORY_H
#define IX_XCAP_DIRECTORY_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLXcapDirectoryDecoder : public XmlFamilyDecoder {
  public:
    XMLXcapDirectoryDecoder();
};

#endif
