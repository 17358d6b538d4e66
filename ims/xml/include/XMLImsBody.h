/// @file
/// IM CN subsystem XML body (3GPP TS 24.229), and what the two documents made of it share: the call waiting indication
/// (XMLCallWaitingIndication.h) and the CW indication (XMLCWIndication.h), which differ by their root and by what an
/// alternative service holds.
///
/// - A root has the attribute `version` and holds an `alternative-service`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. Lost: all attributes but `version`, and the elements that the headers of the two do not name.
#ifndef IX_XML_IMS_BODY_H
#define IX_XML_IMS_BODY_H

#include "XmlFamily.h"

/// The root of both documents, each of which derives its own.
class IX_XML_EXPORT ix_imsBodyType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    static constexpr unsigned int kNoVersion = 0xffffffffU;

    ~ix_imsBodyType() override { ixRelease(*this, kClass); }
    /// As the rows say. @return 1, whatever it is offered.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// @return 1.
    int setVersionValue(unsigned int version) { return ixSetNumber(mVersion, version); }

    unsigned int mVersion = kNoVersion;  ///< Version of the schema; `kNoVersion`: not set. A number in a text is cut to
                                         ///< 32 bits, so that -1 sets none.

  protected:
    explicit ix_imsBodyType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// What the decoders of both documents share.
class IX_XML_EXPORT XmlImsBodyDecoder : public XmlFamilyDecoder {
  protected:
    /// @param element, attribute the one attribute that is given to an object without a pair, too.
    XmlImsBodyDecoder(const XmlDecoderInfo& info, e_XmlStrRef element, e_XmlStrRef attribute)
        : XmlFamilyDecoder(info), m_element(element), m_attribute(attribute) {}

    int KnownAttribute(XMLElement& receiver, const XmlField& row, const XmlTag& attribute, char* value) override;
    int OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) override;

  private:
    const e_XmlStrRef m_element;
    const e_XmlStrRef m_attribute;
};

/// What the marshallers of both documents share.
class IX_XML_EXPORT XmlImsBodyMarshaller : public XmlFamilyMarshaller {
  protected:
    using XmlFamilyMarshaller::XmlFamilyMarshaller;

    /// The start tag of the root, with its version when there is one: `<3gpp-ims version="1">`.
    void StartRoot(e_XmlStrRef name, const ix_imsBodyType& root);
};

#endif
