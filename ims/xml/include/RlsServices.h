/// @file
/// Decoder of the RLS services (XMLRlsServices.h).
#ifndef IX_RLS_SERVICES_H
#define IX_RLS_SERVICES_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLRlsServicesDecoder : public XmlFamilyDecoder {
  public:
    XMLRlsServicesDecoder();
};

#endif
