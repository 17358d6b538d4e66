/// @file
/// Decoder of the media control document (XMLMediaControl.h).
#ifndef IX_MEDIA_CONTROL_H
#define IX_MEDIA_CONTROL_H

#include "XmlFamilyDecoder.h"

/// `picture_fast_update` keeps the name that it has in the document, prefix included. Elements take names without
/// prefix, so its start tag is handled apart.
class IX_XML_EXPORT XMLMediaControlDecoder : public XmlFamilyDecoder {
  public:
    XMLMediaControlDecoder();

    int ProcessElement(char* element, char* text) override;
    /// Attributes are ignored. @return 0.
    int ProcessAttribute(char* /*element*/, char* /*attribute*/, char* /*value*/) override { return 0; }

  protected:
    int StartElement(const XmlTag& tag) override;

  private:
    const char* m_pWrittenName = nullptr;  ///< The name of the current tag as it stands in the document; not owned.
};

#endif
