/// @file
/// Decoder of the simservs document without its services (XMLSimservs.h).
#ifndef IX_SIMSERVS_H
#define IX_SIMSERVS_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLSimservsDecoder : public XmlFamilyDecoder {
  public:
    XMLSimservsDecoder();

  protected:
    int StartElement(const XmlTag& tag) override;
};

#endif
