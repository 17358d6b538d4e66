/// @file
/// Decoder of the simservs document without its services (XMLSimservs.h).
#ifndef IX_SIMSERVS_H
#define IX_SIMSERVS_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLSimservsDecoder : public XmlOldFamilyDecoder {
  public:
    XMLSimservsDecoder();

  protected:
    int StartElement(char* name) override;
};

#endif
