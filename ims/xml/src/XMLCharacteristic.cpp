#include "XMLCharacteristic.h"

namespace {

using namespace XmlRow;

constexpr XmlField kParmFields[] = {
    Attribute<&ix_parm::mName>(IX_STR_NAME),
    Attribute<&ix_parm::mValue>(IX_STR_VALUE),
};

constexpr XmlField kCharacteristicFields[] = {
    Attribute<&ix_characteristic::mType>(IX_STR_TYPE),
    Children<&ix_characteristic::mParmList, ix_parm>(kXmlNameParm),
    Children<&ix_characteristic::mCharacteristicList, ix_characteristic>(kXmlNameCharacteristic),
};

constexpr XmlField kDocumentFields[] = {
    Attribute<&ix_characteristicDocType::mVersion>(IX_STR_VERSION),
    Children<&ix_characteristicDocType::mCharacteristicList, ix_characteristic>(kXmlNameCharacteristic),
};

/// Required: an attribute comes as a start tag does, its value as the text.
int Take(XMLElement& element, char* name, char* text, XMLElement* child) {
    const XmlClass& description = *element.Class();
    const XmlTag tag(name);
    if (tag.isEnd || XmlHooks::AttributeRow(description, tag.name) == nullptr) {
        return XmlHooks::Offer(element, description, tag, text, child) != XmlAnswer::Refused ? 1 : 0;
    }
    if (child != nullptr) return 0;
    return XmlHooks::OfferAttribute(element, description, tag.name, name, text, nullptr) != XmlAnswer::Refused ? 1 : 0;
}

}  // namespace

constexpr XmlClass ix_parm::kClass = ixClass<ix_parm>("ix_parm", "Parm", kSource, kParmFields, ixIgnoring());
constexpr XmlClass ix_characteristic::kClass =
    ixClass<ix_characteristic>("ix_characteristic", "Characteristic", kSource, kCharacteristicFields, ixIgnoring());
constexpr XmlClass ix_characteristicDocType::kClass =
    ixClass<ix_characteristicDocType>("ix_characteristicDocType", "CharacteristicDocType", kSource, kDocumentFields);

int ix_parm::ProcessUnMarshall(char* name, char* text, XMLElement* child) { return Take(*this, name, text, child); }

int ix_characteristic::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return Take(*this, name, text, child);
}

int ix_characteristicDocType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    // Required: a setting outside of any group is refused, while other objects are ignored.
    if (child != nullptr && XmlTag(name).Starts(kXmlNameParm)) return 0;
    return Take(*this, name, text, child);
}

int XmlCharacteristicDecoder::ProcessAttribute(char* element, char* attribute, char* value) {
    if (element == nullptr || attribute == nullptr)
        return XmlFamilyDecoder::ProcessAttribute(element, attribute, value);
    // Required: whatever element it stands at, and whatever its name is.
    if (Top() != nullptr) Top()->ProcessUnMarshall(attribute, value, nullptr);
    return 0;
}

ix_characteristic* XmlCharacteristicDataBinder::CreateCharacteristic() { return ixNew<ix_characteristic>(kSource); }
ix_parm* XmlCharacteristicDataBinder::CreateParm() { return ixNew<ix_parm>(kSource); }

char* XmlCharacteristicMarshaller::Marshall(XMLElement* /*root*/) { return nullptr; }
