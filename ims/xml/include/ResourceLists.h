/// @file
/// Decoder of the resource lists (XMLResourceList.h).
#ifndef IX_RESOURCE_LISTS_H
#define IX_RESOURCE_LISTS_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLResourceListsDecoder : public XmlOldFamilyDecoder {
  public:
    XMLResourceListsDecoder();
};

#endif
