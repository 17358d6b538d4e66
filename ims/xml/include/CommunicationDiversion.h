/// @file
/// Decoder of the communication diversion document (XMLCommunicationDiversion.h).
#ifndef IX_COMMUNICATION_DIVERSION_H
#define IX_COMMUNICATION_DIVERSION_H

#include "SimservsRules.h"

class IX_XML_EXPORT XMLCommunicationDiversionDecoder : public XmlRuleDecoder {
  public:
    XMLCommunicationDiversionDecoder();

  protected:
    /// Refuses (-1) an element of which there is no local name to hand on.
    int OtherElement(const XmlTag& tag, char* text) override;
};

#endif
