/// @file
/// What the services with a ruleset share: communication diversion and communication barring. Their conditions
/// (3GPP TS 24.604 and 24.611, simservs XML schema), their root elements, and how their rules are written.
#ifndef IX_XML_SIMSERVS_RULES_H
#define IX_XML_SIMSERVS_RULES_H

#include "XMLCommonPolicy.h"
#include "XMLSimservsXcap.h"

/// The condition `media`: a media type of the call, such as "audio".
class IX_XML_EXPORT ix_ns_xcap_media_type : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_ns_xcap_media_type";

    ~ix_ns_xcap_media_type() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "MediaType"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setMediaValue(const char* media) { return ixOverwriteWithText(mMedia, media); }

    char* mMedia = nullptr;  ///< Owned; NULL: not set.
};

/// The condition `presence-status`. Read, but never written.
class IX_XML_EXPORT ix_presence_status_activity_type : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_presence_status_activity_type";

    ~ix_presence_status_activity_type() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "PresenceStatusActivityType"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setPresenceStatusValue(const char* status) { return ixOverwriteWithText(mPresenceStatus, status); }

    char* mPresenceStatus = nullptr;  ///< Owned; NULL: not set.
};

/// The condition `external-list`. Neither read nor written; the class is there for applications.
class IX_XML_EXPORT ix_external_list : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_external_list";

    ~ix_external_list() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "ExternalList"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setExternalListValue(const char* list) { return ixOverwriteWithText(mExternalList, list); }

    char* mExternalList = nullptr;  ///< Owned; NULL: not set.
};

/// The action `forward-to`: the target of a forwarded call, and who is told what about it.
///
/// The notifications are 1 (true), 0 (false) or -1 (not set); the others are indices of the texts "false",
/// "not-reveal-GRUU" and "true", or 3 (not set).
class IX_XML_EXPORT ix_ns_xcap_forward_to_type : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_ns_xcap_forward_to_type";

    static constexpr int kNotifyNotSet = -1;
    static constexpr int kRevealNotSet = 3;
    /// The text of a value that is no notification; NULL: not set.
    static const char* RevealText(int value);

    ~ix_ns_xcap_forward_to_type() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "CommunicationDiversion:ForwardToType"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies the address; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setTargetValue(const char* target) { return ixSetText(mTarget, target); }
    /// @return 1.
    int setNotifyCallerValue(int value) { return ixSetNumber(mNotifyCaller, value); }
    int setRevealIdentityToCallerValue(int value) { return ixSetNumber(mRevealIdentityToCaller, value); }
    int setRevealServedUserIdentityToCallerValue(int value) {
        return ixSetNumber(mRevealServedUserIdentityToCaller, value);
    }
    int setNotifyServedUserValue(int value) { return ixSetNumber(mNotifyServedUser, value); }
    int setNotifyServedUserOnOutboundCallValue(int value) {
        return ixSetNumber(mNotifyServedUserOnOutboundCall, value);
    }
    int setRevealIdentityToTargetValue(int value) { return ixSetNumber(mRevealIdentityToTarget, value); }

    char* mTarget = nullptr;  ///< Owned; a URI. NULL: not set.
    int mNotifyCaller = kNotifyNotSet;
    int mRevealIdentityToCaller = kRevealNotSet;
    int mRevealServedUserIdentityToCaller = kRevealNotSet;
    int mNotifyServedUser = kNotifyNotSet;
    int mNotifyServedUserOnOutboundCall = kNotifyNotSet;
    int mRevealIdentityToTarget = kRevealNotSet;
};

/// The root element of a service with a ruleset.
class IX_XML_EXPORT ix_ns_xcap_ruleServiceType : public ix_ns_xcap_simservType {
  public:
    ~ix_ns_xcap_ruleServiceType() override;
    const XmlFieldTable* FieldTable() const override;
    /// Takes a `ruleset` and refuses (0) anything else of that name; what has another name is dropped (1).
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    /// `active` is 1 for "true" and 0 for "false", and left alone by anything else; as a pair it is refused. Other
    /// pairs are kept. @return 1, or 0.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Stores a ruleset, which passes to this element, in place of an earlier one, which is deleted; NULL is ignored.
    /// @return 1.
    int setRulesetValue(ix_ns_common_policy_ruleset* ruleset);

    ix_ns_common_policy_ruleset* mRuleset = nullptr;  ///< Owned; NULL: none.

  protected:
    int ExtensionListLine() const override;
};

/// Creates the elements of rules. They have no children and no values yet, and belong to the caller, who links them.
class IX_XML_EXPORT XmlRuleDataBinder : public XMLObjectFactory {
  public:
    /// @name New elements; NULL without memory.
    /// @{
    ix_ns_common_policy_ruleset* CreateRuleSetElement();
    ix_ns_common_policy_ruleType* CreateRuleTypeElement();
    ix_ns_common_policy_conditionsType* CreateConditionsTypeElement();
    ix_ns_common_policy_identityType* CreateIdentityTypeElement();
    ix_ns_common_policy_oneType* CreateOneTypeElement();
    ix_ns_common_policy_manyType* CreateManyTypeElement();
    ix_ns_common_policy_exceptType* CreateExceptTypeElement();
    ix_ns_common_policy_sphereType* CreateSphereTypeElement();
    ix_ns_common_policy_validityType* CreateValidityTypeElement();
    ix_ns_common_policy_extensibleType* CreateActionsTypeElement();
    ix_ns_common_policy_extensibleType* CreateTransformationsTypeElement();
    /// For a flag such as `busy`: to be given its name and its presence.
    ix_empty_element_type* CreateEmptyTypeElement();
    ix_ns_xcap_media_type* CreateMediaTypeElement();
    /// For the dates of a validity.
    ix_string* CreateStringElement();
    /// @}

  protected:
    /// The source file under which the elements are registered.
    virtual const char* SourceFile() const = 0;
};

/// The log lines of a marshaller of rules that name it.
struct XmlRuleWriterTexts {
    XmlLogText addActions;
    XmlLogText noFlag;
    XmlLogText flagNotPresent;
    XmlLogText noFlagBuffer;
};

#define IX_RULE_WRITER_TEXTS(marshaller, actions)                                                            \
    {                                                                                                        \
        {2, kSchemaCode, __LINE__, actions},                                                                 \
            {3, kSchemaCode, __LINE__, marshaller "::AddEmptyElementtoXml: Received empty element is NULL"}, \
            {3, kSchemaCode, __LINE__, marshaller "::AddEmptyElementtoXml: Received empty present false"},   \
            {2, kSchemaCode, __LINE__, marshaller "::AddEmptyElementtoXml: Malloc cannot assign memory"},    \
    }

/// The rows of the elements that every marshaller of rules accepts.
/// Required: a transformations element has the class of the actions, and is written as actions.
#define IX_RULE_WRITER_ROWS                                                                               \
    {IX_OLD_WRITER_OF(XmlRuleMarshaller, AddRuleSetElementToXml, ix_ns_common_policy_ruleset)},               \
        {IX_OLD_WRITER_OF(XmlRuleMarshaller, AddRuleElementToXml, ix_ns_common_policy_ruleType)},             \
        {IX_OLD_WRITER_OF(XmlRuleMarshaller, AddConditionsElementToXml, ix_ns_common_policy_conditionsType)}, \
        {IX_OLD_WRITER_OF(XmlRuleMarshaller, AddActionsElementToXml, ix_ns_common_policy_extensibleType)}, {  \
        "ix_empty_element_type", IX_OLD_WRITER(XmlRuleMarshaller, AddEmptyElementtoXml, ix_empty_element_type)                      \
    }

/// Base of the marshallers of the services with a ruleset. Every operation writes one element, and answers 0 for NULL,
/// and when it left the element unfinished because something mandatory is missing.
///
/// A rule without an id ends the ruleset; a condition that lacks something ends the conditions. What was written by
/// then stays, and the document goes on with the end tags of the elements around it.
class IX_XML_EXPORT XmlRuleMarshaller : public XmlServiceMarshaller {
  public:
    int AddRuleSetElementToXml(ix_ns_common_policy_ruleset* element);
    int AddRuleElementToXml(ix_ns_common_policy_ruleType* element);
    int AddConditionsElementToXml(ix_ns_common_policy_conditionsType* element);
    int AddActionsElementToXml(ix_ns_common_policy_extensibleType* element);
    /// Writes the element without its content.
    int AddTransformationsElementToXml(ix_ns_common_policy_extensibleType* element);
    /// Written with the prefix of the element around it; alone, it has none. Without an id its start tag stays open.
    int AddExceptElementToXml(ix_ns_common_policy_exceptType* element);
    /// A flag such as `busy`. @return 0 for NULL, or when it is not present or has no name, and nothing is written.
    int AddEmptyElementtoXml(ix_empty_element_type* element);

  protected:
    XmlRuleMarshaller(const XmlOldMarshallerInfo& info, const XmlRuleWriterTexts& texts);

    /// A start or end tag with the prefix of a namespace.
    void StartPrefixed(e_XmlStrRef prefix, e_XmlStrRef name);
    void EndPrefixed(e_XmlStrRef prefix, e_XmlStrRef name);
    /// An element with a text and the prefix of the simservs namespace; without content for NULL.
    void AddServiceText(e_XmlStrRef name, const char* text);
    /// A flag or a media type; nothing for any other element.
    void AddFlagOrMedia(XMLElement* element);
    /// An action that is neither flag nor media type; nothing for one that the service does not write.
    virtual void AddAction(XMLElement* action) = 0;
    /// The root element of a service: start tag, its own elements, ruleset, end tag.
    void AddRuleService(e_XmlStrRef name, const ix_ns_xcap_ruleServiceType& service);
    /// The elements of a service in front of its ruleset; none here.
    virtual void AddServiceElements(const ix_ns_xcap_ruleServiceType& service);

  private:
    int AddIdentityElementToXml(const ix_ns_common_policy_identityType& element);
    int AddSphereElementToXml(const ix_ns_common_policy_sphereType& element);
    int AddValidityElementToXml(const ix_ns_common_policy_validityType& element);
    void AddManyList(const IxSingleElementList* list);

    const XmlRuleWriterTexts& m_texts;
};

#endif
