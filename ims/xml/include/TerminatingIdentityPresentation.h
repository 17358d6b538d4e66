/// @file
/// Decoder of the terminating identity presentation document (XMLTerminatingIdentityPresentation.h).
#ifndef IX_TERMINATING_IDENTITY_PRESENTATION_H
#define IX_TERMINATING_IDENTITY_PRESENTATION_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLTIPDecoder : public XmlFamilyDecoder {
  public:
    XMLTIPDecoder();
};

#endif
