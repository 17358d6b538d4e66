/// @file
/// The rules of a common-policy document (RFC 4745): a ruleset holds rules, a rule says under which conditions which
/// actions are taken. Communication diversion and communication barring express their settings in these.
///
/// - Namespace: urn:ietf:params:xml:ns:common-policy, canonical prefix `cp`.
///
/// Each class takes its children and attributes by local name. A child of a class that does not belong to its name is
/// refused; what has no place at all is logged.
///
/// Required: setting a field a second time, by setter or by a document that has a child or an attribute twice, does not
/// free the earlier value (`ixOverwriteWithText`, `ixOverwriteChild`). Each field is meant to be set once.
#ifndef IX_XML_COMMON_POLICY_H
#define IX_XML_COMMON_POLICY_H

#include "XMLCommonDef.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"

/// What the classes of this file share.
class IX_XML_EXPORT ix_ns_common_policy_type : public XMLElement {
  public:
    const char* BaseClassName() const override { return "XMLElement"; }
    int Reserved() const override { return 0; }
};

/// Actions or transformations of a rule: any elements, in document order.
class IX_XML_EXPORT ix_ns_common_policy_extensibleType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_extensibleType";

    ~ix_ns_common_policy_extensibleType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:ExtensibleType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Appends an element, which then belongs to the list. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addElement(XMLElement* element);
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setElementValue(IxSingleElementList* list) { return ixOverwriteChild(mElementList, list); }

    IxSingleElementList* mElementList = nullptr;  ///< Owned elements of any class; NULL: none.
};

/// The element `except`: whom a `many` does not match.
class IX_XML_EXPORT ix_ns_common_policy_exceptType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_exceptType";

    ~ix_ns_common_policy_exceptType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:ExceptType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setDomainValue(const char* domain) { return ixOverwriteWithText(mDomain, domain); }
    int setIdValue(const char* id) { return ixOverwriteWithText(mId, id); }

    char* mDomain = nullptr;  ///< Owned; a whole domain. NULL: not set.
    char* mId = nullptr;      ///< Owned; one identity, a URI. NULL: not set.
};

/// The element `one`: exactly one identity.
class IX_XML_EXPORT ix_ns_common_policy_oneType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_oneType";

    ~ix_ns_common_policy_oneType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:OneType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setIdValue(const char* id) { return ixOverwriteWithText(mId, id); }
    /// Appends an element, which then belongs to the list. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addExtension(XMLElement* element);
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setExtensionValue(IxSingleElementList* list) { return ixOverwriteChild(mExtensionList, list); }

    char* mId = nullptr;                            ///< Owned; a URI. NULL: not set. Mandatory in a written document.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned elements of any class, never written; NULL: none.
};

/// The element `many`: every identity, or every one of a domain, with exceptions.
class IX_XML_EXPORT ix_ns_common_policy_manyType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_manyType";

    ~ix_ns_common_policy_manyType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:ManyType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Appends an exception, which then belongs to this element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addExcept(ix_ns_common_policy_exceptType* except);
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setExceptValue(IxSingleElementList* list) { return ixOverwriteChild(mExceptList, list); }
    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setDomainValue(const char* domain) { return ixOverwriteWithText(mDomain, domain); }
    /// Appends an element, which then belongs to the list. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addExtension(XMLElement* element);
    int setExtensionValue(IxSingleElementList* list) { return ixOverwriteChild(mExtensionList, list); }

    IxSingleElementList* mExceptList = nullptr;     ///< Owned `ix_ns_common_policy_exceptType`s; NULL: none.
    char* mDomain = nullptr;                        ///< Owned; NULL: any domain.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned elements of any class, never written; NULL: none.
};

/// The element `identity`: who a rule is about.
class IX_XML_EXPORT ix_ns_common_policy_identityType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_identityType";

    ~ix_ns_common_policy_identityType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:IdentityType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Appends a child, which then belongs to this element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addOne(ix_ns_common_policy_oneType* one);
    int addMany(ix_ns_common_policy_manyType* many);
    int addExtension(XMLElement* element);
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setOneValue(IxSingleElementList* list) { return ixOverwriteChild(mOneList, list); }
    int setManyValue(IxSingleElementList* list) { return ixOverwriteChild(mManyList, list); }
    int setExtensionValue(IxSingleElementList* list) { return ixOverwriteChild(mExtensionList, list); }

    IxSingleElementList* mOneList = nullptr;        ///< Owned `ix_ns_common_policy_oneType`s; NULL: none.
    IxSingleElementList* mManyList = nullptr;       ///< Owned `ix_ns_common_policy_manyType`s; NULL: none.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned elements of any class, never written; NULL: none.
};

/// The element `sphere`: the state that the user is in, such as "work".
class IX_XML_EXPORT ix_ns_common_policy_sphereType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_sphereType";

    ~ix_ns_common_policy_sphereType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:SphereType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setValueValue(const char* value) { return ixOverwriteWithText(mValue, value); }

    char* mValue = nullptr;  ///< Owned; NULL: not set. Mandatory in a written document.
};

/// The element `validity`: periods in which a rule holds. The n-th entries of both lists are one period.
class IX_XML_EXPORT ix_ns_common_policy_validityType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_validityType";

    ~ix_ns_common_policy_validityType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:ValidityType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Appends a date and time, which then belongs to this element. @return 1, or 0 without memory, when it stays with
    /// the caller.
    int addFrom(ix_string* from);
    int addUntil(ix_string* until);
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setFromValue(IxSingleElementList* list) { return ixOverwriteChild(mFromList, list); }
    int setUntilValue(IxSingleElementList* list) { return ixOverwriteChild(mUntilList, list); }

    IxSingleElementList* mFromList = nullptr;   ///< Owned `ix_string`s, xs:dateTime; NULL: none.
    IxSingleElementList* mUntilList = nullptr;  ///< Owned `ix_string`s, xs:dateTime; NULL: none.
};

/// The element `conditions`: when a rule applies.
class IX_XML_EXPORT ix_ns_common_policy_conditionsType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_conditionsType";

    ~ix_ns_common_policy_conditionsType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:ConditionsType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Appends a condition, which then belongs to this element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addIdentity(ix_ns_common_policy_identityType* identity);
    int addSphere(ix_ns_common_policy_sphereType* sphere);
    int addValidity(ix_ns_common_policy_validityType* validity);
    int addOtherCondition(XMLElement* condition);
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
class IX_XML_EXPORT ix_ns_common_policy_ruleType : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_ruleType";

    ~ix_ns_common_policy_ruleType() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:RuleType"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

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
class IX_XML_EXPORT ix_ns_common_policy_ruleset : public ix_ns_common_policy_type {
  public:
    static constexpr char kClassName[] = "ix_ns_common_policy_ruleset";

    ~ix_ns_common_policy_ruleset() override;
    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "CommonPolicy:Ruleset"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Appends a rule, which then belongs to this element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addRule(ix_ns_common_policy_ruleType* rule);
    /// Stores a list, which passes to this element. NULL is ignored. @return 1.
    int setRuleValue(IxSingleElementList* list) { return ixOverwriteChild(mRuleList, list); }

    IxSingleElementList* mRuleList = nullptr;  ///< Owned `ix_ns_common_policy_ruleType`s; NULL: none.
};

#endif
