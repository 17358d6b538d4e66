/// @file
/// Decoder of the call waiting indication (XMLCallWaitingIndication.h).
#ifndef IX_CALL_WAITING_INDICATION_H
#define IX_CALL_WAITING_INDICATION_H

#include "XMLImsBody.h"

class IX_XML_EXPORT XMLCallWaitingIndicationDecoder : public XmlImsBodyDecoder {
  public:
    XMLCallWaitingIndicationDecoder();

  protected:
    /// The end of the indication, which is never on the stack, goes to the object on top like that of any element.
    int EndElement(const XmlTag& tag, char* text) override;
};

#endif
