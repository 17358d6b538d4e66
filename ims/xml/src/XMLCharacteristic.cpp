#include "XMLCharacteristic.h"

namespace {

using namespace XmlRow;

constexpr XmlField kParmFields[] = {
    Attribute<&ix_parm::mName>(IX_STR_NAME).Mandatory(),
    Attribute<&ix_parm::mValue>(IX_STR_VALUE),
};

constexpr XmlField kCharacteristicFields[] = {
    Attribute<&ix_characteristic::mType>(IX_STR_TYPE).Mandatory(),
    Children<&ix_characteristic::mParmList, ix_parm>(kXmlNameParm),
    Children<&ix_characteristic::mCharacteristicList, ix_characteristic>(kXmlNameCharacteristic),
};

constexpr XmlField kDocumentFields[] = {
    Attribute<&ix_characteristicDocType::mVersion>(IX_STR_VERSION),
    Children<&ix_characteristicDocType::mCharacteristicList, ix_characteristic>(kXmlNameCharacteristic),
};

}  // namespace

constexpr XmlClass ix_parm::kClass = ixClass<ix_parm>("ix_parm", "Parm", kSource, kParmFields, ixSettingAnswers());
constexpr XmlClass ix_characteristic::kClass =
    ixClass<ix_characteristic>("ix_characteristic", "Characteristic", kSource, kCharacteristicFields,
                               ixSettingAnswers())
        .Unordered();
constexpr XmlClass ix_characteristicDocType::kClass =
    ixClass<ix_characteristicDocType>("ix_characteristicDocType", "CharacteristicDocType", kSource, kDocumentFields)
        .Unordered();

int ix_characteristicDocType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    // Required: a setting outside of any group is refused, while other objects are ignored.
    if (child != nullptr && XmlTag(name).Starts(kXmlNameParm)) return 0;
    return XmlDescribedObject::ProcessUnMarshall(name, text, child);
}

int XmlCharacteristicDecoder::ProcessAttribute(char* element, char* attribute, char* value) {
    if (element == nullptr || attribute == nullptr)
        return XmlFamilyDecoder::ProcessAttribute(element, attribute, value);
    // Required: whatever element it stands at, and whatever its name is.
    if (Top() != nullptr) XmlHooks::OfferTo(*Top(), XmlTag(attribute, LengthOf(attribute)), value, nullptr);
    return 0;
}

ix_characteristic* XmlCharacteristicDataBinder::CreateCharacteristic() { return ixNew<ix_characteristic>(kSource); }
ix_parm* XmlCharacteristicDataBinder::CreateParm() { return ixNew<ix_parm>(kSource); }

char* XmlCharacteristicMarshaller::Marshall(XMLElement* /*root*/) { return nullptr; }
