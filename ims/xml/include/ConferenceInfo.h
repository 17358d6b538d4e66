/// @file
/// Decoder of the conference information (XMLConferenceInfo.h).
#ifndef IX_CONFERENCE_INFO_H
#define IX_CONFERENCE_INFO_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLConferenceInfoDecoder : public XmlFamilyDecoder {
  public:
    XMLConferenceInfoDecoder();

  protected:
    /// The `entry` of a user's roles is a text; any other `entry` is an object.
    int EndElement(const XmlTag& tag, char* text) override;
};

#endif
