/// @file
/// Decoder of the RCS terms information (XMLRcsTermsInfo.h).
#ifndef IX_RCS_TERMS_INFO_H
#define IX_RCS_TERMS_INFO_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLRcsTermsInfoDecoder : public XmlFamilyDecoder {
  public:
    XMLRcsTermsInfoDecoder();
};

#endif
