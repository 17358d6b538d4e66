/// @file
/// Decoder of the RCS terms information (XMLRcsTermsInfo.h).
#ifndef IX_RCS_TERMS_INFO_H
#define IX_RCS_TERMS_INFO_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLRcsTermsInfoDecoder : public XmlOldFamilyDecoder {
  public:
    XMLRcsTermsInfoDecoder();
};

#endif
