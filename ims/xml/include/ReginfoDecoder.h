/// @file
/// Decoder of the registration information (XMLReginfo.h).
#ifndef IX_REGINFO_DECODER_H
#define IX_REGINFO_DECODER_H

#include "XmlFamilyDecoder.h"

class IX_XML_EXPORT XMLReginfoDecoder : public XmlFamilyDecoder {
  public:
    XMLReginfoDecoder();

    /// An element of another namespace, its name without prefix. The start of a `pub-gruu` or `temp-gruu` makes an
    /// object and puts it on the stack; its end takes it off again.
    /// @return the new object, to be filed by the caller; NULL for an end tag, any other name, NULL, or without memory.
    XMLElement* ProcessAnyElement(char* name, char* text);

  protected:
    int EndElement(const XmlTag& tag, char* text) override;
    int OtherElement(const XmlTag& tag, char* text) override;
    int OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) override;

  private:
    XMLElement* AnyElement(const XmlTag& tag);
};

#endif
