/// @file
/// Decoder of presence documents (XMLPresence.h).
#ifndef IX_PRESENCE_H
#define IX_PRESENCE_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLPresenceDecoder : public XmlFamilyDecoder {
  public:
    XMLPresenceDecoder();

    /// Deals with a tag that PIDF itself does not know, its prefix removed: an extension becomes an object and is
    /// offered to the object on top of the stack, a text goes to that object.
    /// @param data the text before an end tag.
    /// @return the object that is on top afterwards; NULL when the name is unknown, or no object is under construction.
    XMLElement* ProcessAnyElement(char* name, char* data);

  protected:
    int StartElement(const XmlTag& tag) override;
    int EndElement(const XmlTag& tag, char* text) override;

  private:
    int ForeignElement(const XmlTag& tag, char* text);
};

#endif
