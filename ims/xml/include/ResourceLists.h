/// @file
/// Decoder of the resource lists (XMLResourceList.h).
#ifndef IX_RESOURCE_LISTS_H
#define IX_RESOURCE_LISTS_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLResourceListsDecoder : public XmlFamilyDecoder {
  public:
    XMLResourceListsDecoder();
};

#endif
