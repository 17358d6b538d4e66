/// @file
/// Decoder of the originating identity presentation document (XMLOriginatingIdentityPresentation.h).
#ifndef IX_ORIGINATING_IDENTITY_PRESENTATION_H
#define IX_ORIGINATING_IDENTITY_PRESENTATION_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLOIPDecoder : public XmlFamilyDecoder {
  public:
    XMLOIPDecoder();
};

#endif
