#include "XMLCommonPolicy.h"

#include <iterator>

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCommonPolicy";

constexpr XmlLogText kNoPlace = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};

/// The field of the elements that have no field of their own.
#define IX_ANY_FIELD(member) \
    { XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(member), 0, nullptr, "any" }

constexpr XmlField kExtensibleFields[] = {IX_ANY_FIELD(&ix_ns_common_policy_extensibleType::mElementList)};
constexpr XmlFieldTable kExtensibleTable = {nullptr, kExtensibleFields, std::size(kExtensibleFields)};

constexpr XmlField kExceptFields[] = {
    {XmlFieldKind::Text, IX_STR_DOMAIN, XmlTextMember(&ix_ns_common_policy_exceptType::mDomain)},
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_ns_common_policy_exceptType::mId)},
};
constexpr XmlFieldTable kExceptTable = {nullptr, kExceptFields, std::size(kExceptFields)};

constexpr XmlField kOneFields[] = {
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_ns_common_policy_oneType::mId)},
    IX_ANY_FIELD(&ix_ns_common_policy_oneType::mExtensionList),
};
constexpr XmlFieldTable kOneTable = {nullptr, kOneFields, std::size(kOneFields)};

constexpr XmlField kManyFields[] = {
    {XmlFieldKind::ChildList, IX_STR_EXCEPT, XmlListMember(&ix_ns_common_policy_manyType::mExceptList)},
    {XmlFieldKind::Text, IX_STR_DOMAIN, XmlTextMember(&ix_ns_common_policy_manyType::mDomain)},
    IX_ANY_FIELD(&ix_ns_common_policy_manyType::mExtensionList),
};
constexpr XmlFieldTable kManyTable = {nullptr, kManyFields, std::size(kManyFields)};

constexpr XmlField kIdentityFields[] = {
    {XmlFieldKind::ChildList, IX_STR_ONE, XmlListMember(&ix_ns_common_policy_identityType::mOneList)},
    {XmlFieldKind::ChildList, IX_STR_MANY, XmlListMember(&ix_ns_common_policy_identityType::mManyList)},
    IX_ANY_FIELD(&ix_ns_common_policy_identityType::mExtensionList),
};
constexpr XmlFieldTable kIdentityTable = {nullptr, kIdentityFields, std::size(kIdentityFields)};

constexpr XmlField kSphereFields[] = {
    {XmlFieldKind::Text, IX_STR_VALUE, XmlTextMember(&ix_ns_common_policy_sphereType::mValue)},
};
constexpr XmlFieldTable kSphereTable = {nullptr, kSphereFields, std::size(kSphereFields)};

constexpr XmlField kValidityFields[] = {
    {XmlFieldKind::ChildList, IX_STR_FROM, XmlListMember(&ix_ns_common_policy_validityType::mFromList)},
    {XmlFieldKind::ChildList, IX_STR_UNTIL, XmlListMember(&ix_ns_common_policy_validityType::mUntilList)},
};
constexpr XmlFieldTable kValidityTable = {nullptr, kValidityFields, std::size(kValidityFields)};

constexpr XmlField kConditionsFields[] = {
    {XmlFieldKind::ChildList, IX_STR_IDENTITY, XmlListMember(&ix_ns_common_policy_conditionsType::mIdentityList)},
    {XmlFieldKind::ChildList, IX_STR_SPHERE, XmlListMember(&ix_ns_common_policy_conditionsType::mSphereList)},
    {XmlFieldKind::ChildList, IX_STR_VALIDITY, XmlListMember(&ix_ns_common_policy_conditionsType::mValidityList)},
    IX_ANY_FIELD(&ix_ns_common_policy_conditionsType::mOtherConditionsList),
};
constexpr XmlFieldTable kConditionsTable = {nullptr, kConditionsFields, std::size(kConditionsFields)};

constexpr XmlField kRuleFields[] = {
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_ns_common_policy_ruleType::mId)},
    {XmlFieldKind::Child, IX_STR_CONDITIONS, IX_CHILD_MEMBER(ix_ns_common_policy_ruleType, mConditions)},
    {XmlFieldKind::Child, IX_STR_ACTIONS, IX_CHILD_MEMBER(ix_ns_common_policy_ruleType, mActions)},
    {XmlFieldKind::Child, IX_STR_TRANSFORMATIONS, IX_CHILD_MEMBER(ix_ns_common_policy_ruleType, mTransformations)},
};
constexpr XmlFieldTable kRuleTable = {nullptr, kRuleFields, std::size(kRuleFields)};

constexpr XmlField kRulesetFields[] = {
    {XmlFieldKind::ChildList, IX_STR_RULE, XmlListMember(&ix_ns_common_policy_ruleset::mRuleList)},
};
constexpr XmlFieldTable kRulesetTable = {nullptr, kRulesetFields, std::size(kRulesetFields)};

/// Takes an element that has no field of its own. @return 1, or 0 without memory.
int TakeAny(IxSingleElementList*& list, const char* name, const char* text, XMLElement* child, int line) {
    if (child != nullptr) return ixAppend(list, child, kSourceFile, line);
    ixLog(kSourceFile, kNoPlace, name, text);
    return 1;
}

/// Takes the value of an attribute. @return 1, or 0 when it comes as a pair, or without memory.
int TakeText(char*& field, const char* value, const XMLAttribute* pair) {
    return pair == nullptr ? ixOverwriteWithText(field, value) : 0;
}

/// Takes the text of an end tag as an element of its own.
int TakeString(IxSingleElementList*& list, const char* text, const XMLElement* child, int line) {
    if (child != nullptr) return 0;
    ix_string* const string = IX_NEW_AT(line, ix_string);
    if (string == nullptr) return 0;
    if (string->setValueValue(text) != 0 && ixAppend(list, string, kSourceFile, line) != 0) return 1;
    IX_DELETE(string);
    return 0;
}

}  // namespace

ix_ns_common_policy_extensibleType::~ix_ns_common_policy_extensibleType() {
    XmlFields::Release(this, kExtensibleTable);
}

const XmlFieldTable* ix_ns_common_policy_extensibleType::FieldTable() const { return &kExtensibleTable; }

int ix_ns_common_policy_extensibleType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return name == nullptr ? 1 : TakeAny(mElementList, name, text, child, __LINE__);
}

int ix_ns_common_policy_extensibleType::addElement(XMLElement* element) {
    return ixAppend(mElementList, element, kSourceFile, __LINE__);
}

ix_ns_common_policy_exceptType::~ix_ns_common_policy_exceptType() { XmlFields::Release(this, kExceptTable); }

const XmlFieldTable* ix_ns_common_policy_exceptType::FieldTable() const { return &kExceptTable; }

int ix_ns_common_policy_exceptType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (ixNameIs(attribute, IX_STR_DOMAIN)) return TakeText(mDomain, value, pair);
    if (ixNameIs(attribute, IX_STR_ID)) return TakeText(mId, value, pair);
    return 1;
}

ix_ns_common_policy_oneType::~ix_ns_common_policy_oneType() { XmlFields::Release(this, kOneTable); }

const XmlFieldTable* ix_ns_common_policy_oneType::FieldTable() const { return &kOneTable; }

int ix_ns_common_policy_oneType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return TakeAny(mExtensionList, name, text, child, __LINE__);
}

int ix_ns_common_policy_oneType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_ID) ? TakeText(mId, value, pair) : 1;
}

int ix_ns_common_policy_oneType::addExtension(XMLElement* element) {
    return ixAppend(mExtensionList, element, kSourceFile, __LINE__);
}

ix_ns_common_policy_manyType::~ix_ns_common_policy_manyType() { XmlFields::Release(this, kManyTable); }

const XmlFieldTable* ix_ns_common_policy_manyType::FieldTable() const { return &kManyTable; }

int ix_ns_common_policy_manyType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (name == nullptr) return 1;
    if (ixNameIs(name, IX_STR_EXCEPT))
        return ixTakeInto<ix_ns_common_policy_exceptType>(mExceptList, child, kSourceFile, __LINE__);
    return TakeAny(mExtensionList, name, text, child, __LINE__);
}

int ix_ns_common_policy_manyType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_DOMAIN) ? TakeText(mDomain, value, pair) : 1;
}

int ix_ns_common_policy_manyType::addExcept(ix_ns_common_policy_exceptType* except) {
    return ixAppend(mExceptList, except, kSourceFile, __LINE__);
}

int ix_ns_common_policy_manyType::addExtension(XMLElement* element) {
    return ixAppend(mExtensionList, element, kSourceFile, __LINE__);
}

ix_ns_common_policy_identityType::~ix_ns_common_policy_identityType() { XmlFields::Release(this, kIdentityTable); }

const XmlFieldTable* ix_ns_common_policy_identityType::FieldTable() const { return &kIdentityTable; }

int ix_ns_common_policy_identityType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (name == nullptr) return 1;
    if (ixNameIs(name, IX_STR_ONE))
        return ixTakeInto<ix_ns_common_policy_oneType>(mOneList, child, kSourceFile, __LINE__);
    if (ixNameIs(name, IX_STR_MANY))
        return ixTakeInto<ix_ns_common_policy_manyType>(mManyList, child, kSourceFile, __LINE__);
    return TakeAny(mExtensionList, name, text, child, __LINE__);
}

int ix_ns_common_policy_identityType::addOne(ix_ns_common_policy_oneType* one) {
    return ixAppend(mOneList, one, kSourceFile, __LINE__);
}

int ix_ns_common_policy_identityType::addMany(ix_ns_common_policy_manyType* many) {
    return ixAppend(mManyList, many, kSourceFile, __LINE__);
}

int ix_ns_common_policy_identityType::addExtension(XMLElement* element) {
    return ixAppend(mExtensionList, element, kSourceFile, __LINE__);
}

ix_ns_common_policy_sphereType::~ix_ns_common_policy_sphereType() { XmlFields::Release(this, kSphereTable); }

const XmlFieldTable* ix_ns_common_policy_sphereType::FieldTable() const { return &kSphereTable; }

int ix_ns_common_policy_sphereType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_VALUE) ? TakeText(mValue, value, pair) : 1;
}

ix_ns_common_policy_validityType::~ix_ns_common_policy_validityType() { XmlFields::Release(this, kValidityTable); }

const XmlFieldTable* ix_ns_common_policy_validityType::FieldTable() const { return &kValidityTable; }

int ix_ns_common_policy_validityType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_FROM)) return TakeString(mFromList, text, child, __LINE__);
    if (ixEndNameIs(name, IX_STR_UNTIL)) return TakeString(mUntilList, text, child, __LINE__);
    return 1;
}

int ix_ns_common_policy_validityType::addFrom(ix_string* from) {
    return ixAppend(mFromList, from, kSourceFile, __LINE__);
}

int ix_ns_common_policy_validityType::addUntil(ix_string* until) {
    return ixAppend(mUntilList, until, kSourceFile, __LINE__);
}

ix_ns_common_policy_conditionsType::~ix_ns_common_policy_conditionsType() {
    XmlFields::Release(this, kConditionsTable);
}

const XmlFieldTable* ix_ns_common_policy_conditionsType::FieldTable() const { return &kConditionsTable; }

int ix_ns_common_policy_conditionsType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (name == nullptr) return 1;
    if (ixNameIs(name, IX_STR_IDENTITY)) {
        return ixTakeInto<ix_ns_common_policy_identityType>(mIdentityList, child, kSourceFile, __LINE__);
    }
    if (ixNameIs(name, IX_STR_SPHERE))
        return ixTakeInto<ix_ns_common_policy_sphereType>(mSphereList, child, kSourceFile, __LINE__);
    if (ixNameIs(name, IX_STR_VALIDITY)) {
        return ixTakeInto<ix_ns_common_policy_validityType>(mValidityList, child, kSourceFile, __LINE__);
    }
    return TakeAny(mOtherConditionsList, name, text, child, __LINE__);
}

int ix_ns_common_policy_conditionsType::addIdentity(ix_ns_common_policy_identityType* identity) {
    return ixAppend(mIdentityList, identity, kSourceFile, __LINE__);
}

int ix_ns_common_policy_conditionsType::addSphere(ix_ns_common_policy_sphereType* sphere) {
    return ixAppend(mSphereList, sphere, kSourceFile, __LINE__);
}

int ix_ns_common_policy_conditionsType::addValidity(ix_ns_common_policy_validityType* validity) {
    return ixAppend(mValidityList, validity, kSourceFile, __LINE__);
}

int ix_ns_common_policy_conditionsType::addOtherCondition(XMLElement* condition) {
    return ixAppend(mOtherConditionsList, condition, kSourceFile, __LINE__);
}

ix_ns_common_policy_ruleType::~ix_ns_common_policy_ruleType() { XmlFields::Release(this, kRuleTable); }

const XmlFieldTable* ix_ns_common_policy_ruleType::FieldTable() const { return &kRuleTable; }

int ix_ns_common_policy_ruleType::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (name == nullptr) return 1;
    if (ixNameIs(name, IX_STR_CONDITIONS) && ixIs<ix_ns_common_policy_conditionsType>(child)) {
        return setConditionsValue(static_cast<ix_ns_common_policy_conditionsType*>(child));
    }
    if (!ixIs<ix_ns_common_policy_extensibleType>(child)) return 0;
    auto* const extensible = static_cast<ix_ns_common_policy_extensibleType*>(child);
    if (ixNameIs(name, IX_STR_ACTIONS)) return setActionsValue(extensible);
    return ixNameIs(name, IX_STR_TRANSFORMATIONS) ? setTransformationsValue(extensible) : 0;
}

int ix_ns_common_policy_ruleType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_ID) ? TakeText(mId, value, pair) : 1;
}

ix_ns_common_policy_ruleset::~ix_ns_common_policy_ruleset() { XmlFields::Release(this, kRulesetTable); }

const XmlFieldTable* ix_ns_common_policy_ruleset::FieldTable() const { return &kRulesetTable; }

int ix_ns_common_policy_ruleset::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (name == nullptr) return 1;
    return ixNameIs(name, IX_STR_RULE)
               ? ixTakeInto<ix_ns_common_policy_ruleType>(mRuleList, child, kSourceFile, __LINE__)
               : 0;
}

int ix_ns_common_policy_ruleset::addRule(ix_ns_common_policy_ruleType* rule) {
    return ixAppend(mRuleList, rule, kSourceFile, __LINE__);
}
