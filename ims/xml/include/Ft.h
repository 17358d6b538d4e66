/// @file
/// Decoder of the file transfer information (XMLFt.h).
#ifndef IX_FT_H
#define IX_FT_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLFileDecoder : public XmlFamilyDecoder {
  public:
    XMLFileDecoder();
};

#endif
