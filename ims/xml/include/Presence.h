/// @file
/// Decoder of presence documents (XMLPresence.h).
#ifndef IX_PRESENCE_H
#define IX_PRESENCE_H

#include "XmlOldFamily.h"

class IX_XML_EXPORT XMLPresenceDecoder : public XmlOldFamilyDecoder {
  public:
    XMLPresenceDecoder();

    /// Deals with a tag that PIDF itself does not know, its prefix removed: an extension becomes an object and is
    /// offered to the object on top of the stack, a text goes to that object.
    /// @param data the text before an end tag.
    /// @return the object that is on top afterwards; NULL when the name is unknown, or no object is under construction.
    XMLElement* ProcessAnyElement(char* name, char* data);

  protected:
    int StartElement(char* name) override;
    int EndElement(char* name, char* text) override;
    int OtherElement(char* name, char* text) override;

  private:
    /// Where an element comes from.
    enum Origin { Pidf, Extension, Unknown };

    Origin OriginOf(const char* name) const;
    void LogOutside(const char* name) const;

    XmlOldRowIndex m_names;
};

#endif
