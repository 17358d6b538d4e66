/// @file
/// The rules of a common-policy document (RFC 4745): a ruleset holds rules, a rule says under which conditions which
/// actions are taken. Communication diversion and communication barring express their settings in these.
///
/// - Namespace: urn:ietf:params:xml:ns:common-policy, canonical prefix `cp`.
///
/// Each class takes its children and attributes by local name. A child of a class that does not belong to its name is
/// refused, and so is anything else that a ruleset or a rule has no place for; the other classes log it, or pass over
/// it.
///
/// Required: setting a field a second time, by setter or by a document that has a child or an attribute twice, does not
/// free the earlier value (`ixOverwriteWithText`, `ixOverwriteChild`). Each field is meant to be set once.
#ifndef IX_XML_COMMON_POLICY_H
#define IX_XML_COMMON_POLICY_H

#include "XmlElementSupport.h"

/// Actions or transformations of a rule: any elements, in document order.
class IX_XML_EXPORT ix_ns_common_policy_extensibleType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_extensibleType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_extensibleType() override { ixRelease(*this, kClass); }

    /// Appends an element, which then belongs to the list. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addElement(XMLElement* element) { return ixAdd(*this, mElementList, element); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setElementValue(IxSingleElementList* list) { return ixOverwriteChild(mElementList, list); }

    IxSingleElementList* mElementList = nullptr;  ///< Owned elements of any class; NULL: none.
};

/// The element `except`: whom a `many` does not match.
class IX_XML_EXPORT ix_ns_common_policy_exceptType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_exceptType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_exceptType() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setDomainValue(const char* domain) { return ixOverwriteWithText(mDomain, domain); }
    int setIdValue(const char* id) { return ixOverwriteWithText(mId, id); }

    char* mDomain = nullptr;  ///< Owned; a whole domain. NULL: not set.
    char* mId = nullptr;      ///< Owned; one identity, a URI. NULL: not set.
};

/// The element `one`: exactly one identity.
class IX_XML_EXPORT ix_ns_common_policy_oneType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_oneType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_oneType() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setIdValue(const char* id) { return ixOverwriteWithText(mId, id); }
    /// Appends an element, which then belongs to the list. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addExtension(XMLElement* element) { return ixAdd(*this, mExtensionList, element); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setExtensionValue(IxSingleElementList* list) { return ixOverwriteChild(mExtensionList, list); }

    char* mId = nullptr;                            ///< Owned; a URI. NULL: not set. Mandatory in a written document.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned elements of any class, never written; NULL: none.
};

/// The element `many`: every identity, or every one of a domain, with exceptions.
class IX_XML_EXPORT ix_ns_common_policy_manyType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_manyType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_manyType() override { ixRelease(*this, kClass); }

    /// Appends an exception, which then belongs to this element. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    int addExcept(ix_ns_common_policy_exceptType* except) { return ixAdd(*this, mExceptList, except); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setExceptValue(IxSingleElementList* list) { return ixOverwriteChild(mExceptList, list); }
    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setDomainValue(const char* domain) { return ixOverwriteWithText(mDomain, domain); }
    /// Appends an element, which then belongs to the list. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addExtension(XMLElement* element) { return ixAdd(*this, mExtensionList, element); }
    int setExtensionValue(IxSingleElementList* list) { return ixOverwriteChild(mExtensionList, list); }

    IxSingleElementList* mExceptList = nullptr;     ///< Owned `ix_ns_common_policy_exceptType`s; NULL: none.
    char* mDomain = nullptr;                        ///< Owned; NULL: any domain.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned elements of any class, never written; NULL: none.
};

/// The element `identity`: who a rule is about.
class IX_XML_EXPORT ix_ns_common_policy_identityType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_identityType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_identityType() override { ixRelease(*this, kClass); }

    /// Appends a child, which then belongs to this element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addOne(ix_ns_common_policy_oneType* one) { return ixAdd(*this, mOneList, one); }
    int addMany(ix_ns_common_policy_manyType* many) { return ixAdd(*this, mManyList, many); }
    int addExtension(XMLElement* element) { return ixAdd(*this, mExtensionList, element); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setOneValue(IxSingleElementList* list) { return ixOverwriteChild(mOneList, list); }
    int setManyValue(IxSingleElementList* list) { return ixOverwriteChild(mManyList, list); }
    int setExtensionValue(IxSingleElementList* list) { return ixOverwriteChild(mExtensionList, list); }

    IxSingleElementList* mOneList = nullptr;        ///< Owned `ix_ns_common_policy_oneType`s; NULL: none.
    IxSingleElementList* mManyList = nullptr;       ///< Owned `ix_ns_common_policy_manyType`s; NULL: none.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned elements of any class, never written; NULL: none.
};

/// The element `sphere`: the state that the user is in, such as "work".
class IX_XML_EXPORT ix_ns_common_policy_sphereType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_sphereType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_sphereType() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setValueValue(const char* value) { return ixOverwriteWithText(mValue, value); }

    char* mValue = nullptr;  ///< Owned; NULL: not set. Mandatory in a written document.
};

/// The element `validity`: periods in which a rule holds. The n-th entries of both lists are one period.
class IX_XML_EXPORT ix_ns_common_policy_validityType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_validityType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_validityType() override { ixRelease(*this, kClass); }
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Appends a date and time, which then belongs to this element. @return 1, or 0 without memory, when it stays with
    /// the caller.
    int addFrom(ix_string* from) { return ixAdd(*this, mFromList, from); }
    int addUntil(ix_string* until) { return ixAdd(*this, mUntilList, until); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setFromValue(IxSingleElementList* list) { return ixOverwriteChild(mFromList, list); }
    int setUntilValue(IxSingleElementList* list) { return ixOverwriteChild(mUntilList, list); }

    IxSingleElementList* mFromList = nullptr;   ///< Owned `ix_string`s, xs:dateTime; NULL: none.
    IxSingleElementList* mUntilList = nullptr;  ///< Owned `ix_string`s, xs:dateTime; NULL: none.
};

/// The element `conditions`: when a rule applies.
class IX_XML_EXPORT ix_ns_common_policy_conditionsType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_conditionsType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_conditionsType() override { ixRelease(*this, kClass); }

    /// Appends a condition, which then belongs to this element. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    int addIdentity(ix_ns_common_policy_identityType* identity) { return ixAdd(*this, mIdentityList, identity); }
    int addSphere(ix_ns_common_policy_sphereType* sphere) { return ixAdd(*this, mSphereList, sphere); }
    int addValidity(ix_ns_common_policy_validityType* validity) { return ixAdd(*this, mValidityList, validity); }
    int addOtherCondition(XMLElement* condition) { return ixAdd(*this, mOtherConditionsList, condition); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setIdentityValue(IxSingleElementList* list) { return ixOverwriteChild(mIdentityList, list); }
    int setSphereValue(IxSingleElementList* list) { return ixOverwriteChild(mSphereList, list); }
    int setValidityValue(IxSingleElementList* list) { return ixOverwriteChild(mValidityList, list); }
    int setOtherConditionsValue(IxSingleElementList* list) { return ixOverwriteChild(mOtherConditionsList, list); }

    IxSingleElementList* mIdentityList = nullptr;         ///< Owned `ix_ns_common_policy_identityType`s; NULL: none.
    IxSingleElementList* mSphereList = nullptr;           ///< Owned `ix_ns_common_policy_sphereType`s; NULL: none.
    IxSingleElementList* mValidityList = nullptr;         ///< Owned `ix_ns_common_policy_validityType`s; NULL: none.
    IxSingleElementList* mOtherConditionsList = nullptr;  ///< Owned elements of any class; flags (`busy` ...) and media
                                                          ///< are written, others are not. NULL: none.
};

/// The element `rule`.
class IX_XML_EXPORT ix_ns_common_policy_ruleType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_ruleType() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_ruleType() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setIdValue(const char* id) { return ixOverwriteWithText(mId, id); }
    /// Stores a child, which passes to this element. NULL is ignored. @return 1.
    int setConditionsValue(ix_ns_common_policy_conditionsType* child) { return ixOverwriteChild(mConditions, child); }
    int setActionsValue(ix_ns_common_policy_extensibleType* child) { return ixOverwriteChild(mActions, child); }
    int setTransformationsValue(ix_ns_common_policy_extensibleType* child) {
        return ixOverwriteChild(mTransformations, child);
    }

    char* mId = nullptr;  ///< Owned; NULL: not set. Mandatory in a written document.
    ix_ns_common_policy_conditionsType* mConditions = nullptr;       ///< Owned; NULL: none.
    ix_ns_common_policy_extensibleType* mActions = nullptr;          ///< Owned; NULL: none.
    ix_ns_common_policy_extensibleType* mTransformations = nullptr;  ///< Owned; written without content. NULL: none.
};

/// The element `ruleset`.
class IX_XML_EXPORT ix_ns_common_policy_ruleset : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_common_policy_ruleset() : XmlDescribedElement(kClass) {}
    ~ix_ns_common_policy_ruleset() override { ixRelease(*this, kClass); }

    /// Appends a rule, which then belongs to this element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addRule(ix_ns_common_policy_ruleType* rule) { return ixAdd(*this, mRuleList, rule); }
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setRuleValue(IxSingleElementList* list) { return ixOverwriteChild(mRuleList, list); }

    IxSingleElementList* mRuleList = nullptr;  ///< Owned `ix_ns_common_policy_ruleType`s; NULL: none.
};

#endif
