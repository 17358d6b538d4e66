#include "XMLOmaPres.h"

#include <cstring>
#include <iterator>

namespace {

const char kSourceFile[] = "ims/xml/src/XMLOmaPres";

constexpr XmlLogText kRefused = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};

constexpr char kStateTexts[][100] = {"active", "terminated"};
constexpr XmlEnumeration kStates = {kStateTexts[0], sizeof kStateTexts[0], std::size(kStateTexts)};

constexpr XmlField kServiceDescriptionFields[] = {
    {XmlFieldKind::Text, IX_STR_SERVICE_ID, XmlTextMember(&ix_ns_oma_pres_service_description::mServiceId)},
    {XmlFieldKind::Text, IX_STR_VERSION, XmlTextMember(&ix_ns_oma_pres_service_description::mVersion)},
    {XmlFieldKind::Text, IX_STR_DESCRIPTION, XmlTextMember(&ix_ns_oma_pres_service_description::mDescription)},
};
constexpr XmlFieldTable kServiceDescriptionTable = {nullptr, kServiceDescriptionFields,
                                                    std::size(kServiceDescriptionFields)};

constexpr XmlField kBasicFields[] = {
    {XmlFieldKind::Enumeration, IX_STR_BASIC, XmlIntMember(&ix_ns_oma_pres_basicType::mBasic),
     ix_ns_oma_pres_basicType::kNotSet, &kPresenceBasics},
};
constexpr XmlFieldTable kBasicTable = {nullptr, kBasicFields, std::size(kBasicFields)};

constexpr XmlField kStateFields[] = {
    {XmlFieldKind::Enumeration, IX_STR_IX_NULL, XmlIntMember(&ix_ns_oma_pres_stateType::mState),
     ix_ns_oma_pres_stateType::kNotSet, &kStates, "text"},
};
constexpr XmlFieldTable kStateTable = {nullptr, kStateFields, std::size(kStateFields)};

}  // namespace

ix_ns_oma_pres_service_description::~ix_ns_oma_pres_service_description() {
    XmlFields::Release(this, kServiceDescriptionTable);
}

const XmlFieldTable* ix_ns_oma_pres_service_description::FieldTable() const { return &kServiceDescriptionTable; }

int ix_ns_oma_pres_service_description::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_SERVICE_ID)) return setServiceIdValue(text);
    if (ixEndNameIs(name, IX_STR_VERSION)) return setVersionValue(text);
    if (ixEndNameIs(name, IX_STR_DESCRIPTION)) return setDescriptionValue(text);
    ixLog(kSourceFile, kRefused, name, text);
    return child == nullptr ? 1 : 0;
}

ix_ns_oma_pres_basicType::~ix_ns_oma_pres_basicType() { XmlFields::Release(this, kBasicTable); }

const XmlFieldTable* ix_ns_oma_pres_basicType::FieldTable() const { return &kBasicTable; }

int ix_ns_oma_pres_basicType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_BASIC)) return setBasicValue(kPresenceBasics.IndexOfPrefix(text));
    ixLog(kSourceFile, kRefused, name, text);
    return child == nullptr ? 1 : 0;
}

ix_ns_oma_pres_stateType::~ix_ns_oma_pres_stateType() { XmlFields::Release(this, kStateTable); }

const XmlFieldTable* ix_ns_oma_pres_stateType::FieldTable() const { return &kStateTable; }

int ix_ns_oma_pres_stateType::ProcessUnMarshall(char* name, char* text, XMLElement* /*child*/) {
    if (name == nullptr || std::strcmp(name, EndTag()) != 0) return 1;
    return setStateValue(kStates.IndexOfPrefix(text));
}
