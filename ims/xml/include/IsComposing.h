/// @file
/// Decoder of the indication of message composition (XMLIsComposing.h).
#ifndef IX_IS_COMPOSING_H
#define IX_IS_COMPOSING_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLIsComposingDecoder : public XmlOldFamilyDecoder {
  public:
    XMLIsComposingDecoder();
};

#endif
