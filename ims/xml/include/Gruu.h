/// @file
/// Decoder of the GRUU information (XMLGruu.h).
#ifndef IX_GRUU_H
#define IX_GRUU_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLGruuDecoder : public XmlOldFamilyDecoder {
  public:
    XMLGruuDecoder();

  protected:
    /// Elements other than the two roots are ignored.
    int OtherElement(char* name, char* text) override;
};

#endif
