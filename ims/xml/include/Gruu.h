/// @file
/// Decoder of the GRUU information (XMLGruu.h).
#ifndef IX_GRUU_H
#define IX_GRUU_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLGruuDecoder : public XmlFamilyDecoder {
  public:
    XMLGruuDecoder();

  protected:
    /// Elements other than the two roots are ignored.
    int OtherElement(const XmlTag& /*tag*/, char* /*text*/) override { return 0; }
};

#endif
