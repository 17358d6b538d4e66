/// @file
/// What the services with a ruleset share, communication diversion and communication barring: how the elements of their
/// rules (XMLCommonPolicy.h, XMLSimservsXcap.h) are created and written.
#ifndef IX_XML_SIMSERVS_RULES_H
#define IX_XML_SIMSERVS_RULES_H

#include "XMLSimservsXcap.h"

/// Creates the elements of rules. They have no children and no values yet, and belong to the caller, who links them.
class IX_XML_EXPORT XmlRuleDataBinder : public XMLObjectFactory {
  public:
    /// @name New elements; NULL without memory.
    /// @{
    ix_ns_common_policy_ruleset* CreateRuleSetElement() { return New<ix_ns_common_policy_ruleset>(); }
    ix_ns_common_policy_ruleType* CreateRuleTypeElement() { return New<ix_ns_common_policy_ruleType>(); }
    ix_ns_common_policy_conditionsType* CreateConditionsTypeElement() {
        return New<ix_ns_common_policy_conditionsType>();
    }
    ix_ns_common_policy_identityType* CreateIdentityTypeElement() { return New<ix_ns_common_policy_identityType>(); }
    ix_ns_common_policy_oneType* CreateOneTypeElement() { return New<ix_ns_common_policy_oneType>(); }
    ix_ns_common_policy_manyType* CreateManyTypeElement() { return New<ix_ns_common_policy_manyType>(); }
    ix_ns_common_policy_exceptType* CreateExceptTypeElement() { return New<ix_ns_common_policy_exceptType>(); }
    ix_ns_common_policy_sphereType* CreateSphereTypeElement() { return New<ix_ns_common_policy_sphereType>(); }
    ix_ns_common_policy_validityType* CreateValidityTypeElement() { return New<ix_ns_common_policy_validityType>(); }
    ix_ns_common_policy_extensibleType* CreateActionsTypeElement() { return New<ix_ns_common_policy_extensibleType>(); }
    ix_ns_common_policy_extensibleType* CreateTransformationsTypeElement() {
        return New<ix_ns_common_policy_extensibleType>();
    }
    /// For a flag such as `busy`: to be given its name and its presence.
    ix_empty_element_type* CreateEmptyTypeElement() { return New<ix_empty_element_type>(); }
    ix_ns_xcap_media_type* CreateMediaTypeElement() { return New<ix_ns_xcap_media_type>(); }
    /// For the dates of a validity.
    ix_string* CreateStringElement() { return New<ix_string>(); }
    /// @}

  protected:
    /// @param source the service's own file, under which the elements are registered, with the line of this call.
    explicit XmlRuleDataBinder(const char* source, int line = __builtin_LINE()) : m_pSource(source), m_line(line) {}

  private:
    template <class Element>
    Element* New() const {
        return ixNew<Element>(m_pSource, m_line);
    }

    const char* m_pSource;
    int m_line;
};

/// The log lines of a marshaller of rules that name it.
struct XmlRuleWriterTexts {
    XmlLogText addActions;
    XmlLogText noFlag;
    XmlLogText flagNotPresent;
    XmlLogText noFlagBuffer;
};

#define IX_RULE_WRITER_TEXTS(marshaller, actions)                                                                   \
    XmlRuleWriterTexts {                                                                                            \
        {2, actions, __LINE__}, {3, marshaller "::AddEmptyElementtoXml: Received empty element is NULL", __LINE__}, \
            {3, marshaller "::AddEmptyElementtoXml: Received empty present false", __LINE__},                       \
            {2, marshaller "::AddEmptyElementtoXml: Malloc cannot assign memory", __LINE__},                        \
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
    XmlRuleMarshaller(const XmlMarshallerInfo& info, const XmlRuleWriterTexts& texts)
        : XmlServiceMarshaller(info), m_texts(texts) {}

    /// A start or end tag with the prefix of a namespace.
    void StartPrefixed(e_XmlStrRef prefix, e_XmlStrRef name);
    void EndPrefixed(e_XmlStrRef prefix, e_XmlStrRef name);
    /// An element with a text and the prefix of the simservs namespace; without content for NULL.
    void AddServiceText(e_XmlStrRef name, const char* text);
    /// An action that is neither flag nor media type; nothing for one that the service does not write.
    virtual void AddAction(XMLElement* action) = 0;
    /// The end of a service: its ruleset, if it has one, and the end tag.
    void EndService(e_XmlStrRef name, const ix_ns_xcap_ruleServiceType& service);

  private:
    int AddIdentityElementToXml(ix_ns_common_policy_identityType* element);
    int AddOneElementToXml(ix_ns_common_policy_oneType* element);
    int AddManyElementToXml(ix_ns_common_policy_manyType* element);
    int AddSphereElementToXml(ix_ns_common_policy_sphereType* element);
    int AddValidityElementToXml(ix_ns_common_policy_validityType* element);
    void AddManyList(const IxSingleElementList* list);
    void AddFlagOrMedia(XMLElement* element);

    const XmlRuleWriterTexts& m_texts;
};

#endif
