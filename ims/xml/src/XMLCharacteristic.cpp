#include "XMLCharacteristic.h"

#include <iterator>

#include "XmlElementSupport.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCharacteristic";

constexpr XmlField kParmFields[] = {
    {XmlFieldKind::Text, IX_STR_NAME, XmlTextMember(&ix_parm::mName)},
    {XmlFieldKind::Text, IX_STR_VALUE, XmlTextMember(&ix_parm::mValue)},
};
constexpr XmlFieldTable kParmTable = {nullptr, kParmFields, std::size(kParmFields)};

constexpr XmlField kCharacteristicFields[] = {
    {XmlFieldKind::Text, IX_STR_TYPE, XmlTextMember(&ix_characteristic::mType)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_characteristic::mParmList), 0, nullptr, kParmName},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_characteristic::mCharacteristicList), 0, nullptr,
     kCharacteristicName},
};
constexpr XmlFieldTable kCharacteristicTable = {nullptr, kCharacteristicFields, std::size(kCharacteristicFields)};

constexpr XmlField kDocumentFields[] = {
    {XmlFieldKind::Text, IX_STR_VERSION, XmlTextMember(&ix_characteristicDocType::mVersion)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_characteristicDocType::mCharacteristicList), 0, nullptr,
     kCharacteristicName},
};
constexpr XmlFieldTable kDocumentTable = {nullptr, kDocumentFields, std::size(kDocumentFields)};

}  // namespace

ix_parm::~ix_parm() { XmlFields::Release(this, kParmTable); }

const XmlFieldTable* ix_parm::FieldTable() const { return &kParmTable; }

int ix_parm::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_NAME)) return ixTakeText(mName, text, child);
    if (ixNameIs(name, IX_STR_VALUE)) return ixTakeText(mValue, text, child);
    return 1;
}

int ix_parm::setParmName(const char* name) { return ixTakeText(mName, name, nullptr); }

int ix_parm::setParmValue(const char* value) { return ixTakeText(mValue, value, nullptr); }

ix_characteristic::~ix_characteristic() { XmlFields::Release(this, kCharacteristicTable); }

const XmlFieldTable* ix_characteristic::FieldTable() const { return &kCharacteristicTable; }

int ix_characteristic::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_TYPE)) return ixTakeText(mType, text, child);
    if (ixNameIs(name, kParmName)) return ixTakeInto<ix_parm>(mParmList, child, kSourceFile, __LINE__);
    if (ixNameIs(name, kCharacteristicName)) {
        return ixTakeInto<ix_characteristic>(mCharacteristicList, child, kSourceFile, __LINE__);
    }
    return 1;
}

int ix_characteristic::setTypeValue(const char* type) { return ixTakeText(mType, type, nullptr); }

int ix_characteristic::setParmList(IxSingleElementList* list) { return ixSetElementList(mParmList, list); }

int ix_characteristic::addParm(ix_parm* parm) { return ixAppend(mParmList, parm, kSourceFile, __LINE__); }

int ix_characteristic::setCharacteristicList(IxSingleElementList* list) {
    return ixSetElementList(mCharacteristicList, list);
}

int ix_characteristic::addCharacteristic(ix_characteristic* characteristic) {
    return ixAppend(mCharacteristicList, characteristic, kSourceFile, __LINE__);
}

ix_characteristicDocType::~ix_characteristicDocType() { XmlFields::Release(this, kDocumentTable); }

const XmlFieldTable* ix_characteristicDocType::FieldTable() const { return &kDocumentTable; }

int ix_characteristicDocType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_VERSION)) return ixTakeText(mVersion, text, child);
    if (ixNameIs(name, kCharacteristicName)) {
        return ixTakeInto<ix_characteristic>(mCharacteristicList, child, kSourceFile, __LINE__);
    }
    // A setting belongs to a group.
    return ixNameIs(name, kParmName) && child != nullptr ? 0 : 1;
}

int ix_characteristicDocType::setVersionValue(const char* version) { return ixTakeText(mVersion, version, nullptr); }

int ix_characteristicDocType::setCharacteristicList(IxSingleElementList* list) {
    return ixSetElementList(mCharacteristicList, list);
}

int ix_characteristicDocType::addCharacteristic(ix_characteristic* characteristic) {
    return ixAppend(mCharacteristicList, characteristic, kSourceFile, __LINE__);
}

ix_characteristic* XmlCharacteristicDataBinder::CreateCharacteristic() { return IX_NEW(ix_characteristic); }

ix_parm* XmlCharacteristicDataBinder::CreateParm() { return IX_NEW(ix_parm); }

char* XmlCharacteristicMarshaller::Marshall(XMLElement* /*root*/) { return nullptr; }
