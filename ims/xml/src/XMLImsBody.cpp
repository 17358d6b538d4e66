#include "XMLImsBody.h"

namespace {

using namespace XmlRow;

constexpr XmlField kFields[] = {
    Attribute<&ix_imsBodyType::mVersion>(IX_STR_VERSION).NotSet(ix_imsBodyType::kNoVersion),
};

}  // namespace

constexpr XmlClass ix_imsBodyType::kClass = ixClass<ix_imsBodyType>("ix_imsBodyType", "ImsBodyType", kSource, kFields);

int ix_imsBodyType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    XmlDescribedElement::ProcessUnMarshallAttribute(attribute, value, pair);
    // Required: a version that comes with a pair is not taken, and answered with 1 all the same.
    return 1;
}

int XmlImsBodyDecoder::KnownAttribute(XMLElement& receiver, const XmlField& /*row*/, const XmlTag& attribute,
                                      char* value) {
    return OtherAttribute(receiver, attribute, value);
}

int XmlImsBodyDecoder::OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) {
    // Required: an attribute that comes without a pair comes once more, with one.
    if (ixNameIs(PassName(), m_element) && ixNameIs(attribute.text, m_attribute)) {
        XmlHooks::OfferAttributeTo(receiver, attribute, value, nullptr);
    }
    return XmlFamilyDecoder::OtherAttribute(receiver, attribute, value);
}

void XmlImsBodyMarshaller::StartRoot(e_XmlStrRef name, const ix_imsBodyType& root) {
    char digits[32];
    XmlStartTag tag(*this, name);
    if (root.mVersion != ix_imsBodyType::kNoVersion) {
        tag.AddOnly(IX_STR_VERSION, __itoaL(root.mVersion, digits, sizeof digits, 10));
    }
    tag.Close();
}
