/// @file
/// Decoder of the communication diversion document (XMLCommunicationDiversion.h).
#ifndef IX_COMMUNICATION_DIVERSION_H
#define IX_COMMUNICATION_DIVERSION_H

#include "XmlFamily.h"

class IX_XML_EXPORT XMLCommunicationDiversionDecoder : public XmlFamilyDecoder {
  public:
    XMLCommunicationDiversionDecoder();
};

#endif
