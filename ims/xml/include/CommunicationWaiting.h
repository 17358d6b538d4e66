/// @file
/// Decoder of the communication waiting document (XMLCommunicationWaiting.h).
#ifndef IX_COMMUNICATION_WAITING_H
#define IX_COMMUNICATION_WAITING_H

#include "XmlFamilyDecoder.h"

/// The namespaces of the document. Its own has no prefix until a namespace binder gives it one.
extern IX_XML_EXPORT const XmlNamespaceRow kCommunicationWaitingNamespaces[];
constexpr std::size_t kCommunicationWaitingNamespaceCount = 3;

class IX_XML_EXPORT XMLCommunicationWaitingDecoder : public XmlFamilyDecoder {
  public:
    XMLCommunicationWaitingDecoder();
};

#endif
