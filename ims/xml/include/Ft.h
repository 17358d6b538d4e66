/// @file
/// Decoder of the file transfer information (XMLFt.h).
#ifndef IX_FT_H
#define IX_FT_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLFileDecoder : public XmlOldFamilyDecoder {
  public:
    XMLFileDecoder();
};

#endif
