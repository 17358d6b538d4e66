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

/// An element of the same name as an attribute has no text at its start tag, so NULL must not clear what is there.
int ReplaceText(char*& field, const char* text) {
    return text != nullptr ? ixSetText(field, text) : 1;
}

}  // namespace

ix_parm::~ix_parm() {
    XmlFields::Release(this, kParmTable);
}

const XmlFieldTable* ix_parm::FieldTable() const {
    return &kParmTable;
}

int ix_parm::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_NAME)) return child == nullptr ? setParmName(text) : 0;
    if (ixNameIs(name, IX_STR_VALUE)) return child == nullptr ? setParmValue(text) : 0;
    return 1;
}

int ix_parm::setParmName(const char* name) {
    return ReplaceText(mName, name);
}

int ix_parm::setParmValue(const char* value) {
    return ReplaceText(mValue, value);
}

ix_characteristic::~ix_characteristic() {
    XmlFields::Release(this, kCharacteristicTable);
}

const XmlFieldTable* ix_characteristic::FieldTable() const {
    return &kCharacteristicTable;
}

int ix_characteristic::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_TYPE)) return child == nullptr ? setTypeValue(text) : 0;
    if (ixNameIs(name, kParmName)) return ixIs<ix_parm>(child) ? addParm(static_cast<ix_parm*>(child)) : 0;
    if (ixNameIs(name, kCharacteristicName)) {
        return ixIs<ix_characteristic>(child) ? addCharacteristic(static_cast<ix_characteristic*>(child)) : 0;
    }
    return 1;
}

int ix_characteristic::setTypeValue(const char* type) {
    return ReplaceText(mType, type);
}

int ix_characteristic::setParmList(IxSingleElementList* list) {
    return ixSetElementList(mParmList, list);
}

int ix_characteristic::addParm(ix_parm* parm) {
    return ixAppend(mParmList, parm, kSourceFile, __LINE__);
}

int ix_characteristic::setCharacteristicList(IxSingleElementList* list) {
    return ixSetElementList(mCharacteristicList, list);
}

int ix_characteristic::addCharacteristic(ix_characteristic* characteristic) {
    return ixAppend(mCharacteristicList, characteristic, kSourceFile, __LINE__);
}

ix_characteristicDocType::~ix_characteristicDocType() {
    XmlFields::Release(this, kDocumentTable);
}

const XmlFieldTable* ix_characteristicDocType::FieldTable() const {
    return &kDocumentTable;
}

int ix_characteristicDocType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_VERSION)) return child == nullptr ? setVersionValue(text) : 0;
    if (ixNameIs(name, kCharacteristicName)) {
        return ixIs<ix_characteristic>(child) ? addCharacteristic(static_cast<ix_characteristic*>(child)) : 0;
    }
    // A setting belongs to a group.
    return ixNameIs(name, kParmName) && child != nullptr ? 0 : 1;
}

int ix_characteristicDocType::setVersionValue(const char* version) {
    return ReplaceText(mVersion, version);
}

int ix_characteristicDocType::setCharacteristicList(IxSingleElementList* list) {
    return ixSetElementList(mCharacteristicList, list);
}

int ix_characteristicDocType::addCharacteristic(ix_characteristic* characteristic) {
    return ixAppend(mCharacteristicList, characteristic, kSourceFile, __LINE__);
}

ix_characteristic* XmlCharacteristicDataBinder::CreateCharacteristic() {
    return IX_NEW(ix_characteristic);
}

ix_parm* XmlCharacteristicDataBinder::CreateParm() {
    return IX_NEW(ix_parm);
}

char* XmlCharacteristicMarshaller::Marshall(XMLElement* /*root*/) {
    return nullptr;
}
