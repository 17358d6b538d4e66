/// @file
/// Decoder of the communication barring document (XMLCommunicationBarring.h).
#ifndef IX_COMMUNICATION_BARRING_H
#define IX_COMMUNICATION_BARRING_H

#include "SimservsRules.h"

class IX_XML_EXPORT XMLCommunicationBarringDecoder : public XmlRuleDecoder {
  public:
    XMLCommunicationBarringDecoder();
};

#endif
