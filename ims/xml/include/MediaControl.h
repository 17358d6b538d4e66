/// @file
/// Decoder of the media control document (XMLMediaControl.h).
#ifndef IX_MEDIA_CONTROL_H
#define IX_MEDIA_CONTROL_H

#include "XmlOldFamily.h"

/// `picture_fast_update` keeps the name that it has in the document, prefix included. Elements take names without
/// prefix, so its tags are handled apart.
class IX_XML_EXPORT XMLMediaControlDecoder : public XmlOldFamilyDecoder {
  public:
    XMLMediaControlDecoder();

    int ProcessElement(char* element, char* text) override;
    /// Attributes are ignored. @return 0.
    int ProcessAttribute(char* element, char* attribute, char* value) override;

  protected:
    int StartElement(char* name) override;
    int EndElement(char* name, char* text) override;

  private:
    const char* m_pWrittenName = nullptr;  ///< The name of the current tag as it stands in the document; not owned.
};

#endif
