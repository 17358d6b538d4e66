/// @file
/// Decoder of the indication of message composition (XMLIsComposing.h).
#ifndef IX_IS_COMPOSING_H
#define IX_IS_COMPOSING_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLIsComposingDecoder : public XmlFamilyDecoder {
  public:
    XMLIsComposingDecoder();

  protected:
    /// Offers the attribute as if it were an element.
    int OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) override;
};

#endif
