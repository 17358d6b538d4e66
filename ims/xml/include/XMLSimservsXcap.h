/// @file
/// What the documents of the supplementary services are made of (3GPP TS 24.623, simservs XML schema): the type of
/// their root elements, the conditions and actions in their rules, and how a service is read and written. The rules
/// themselves are those of common-policy (XMLCommonPolicy.h).
#ifndef IX_XML_SIMSERVS_XCAP_H
#define IX_XML_SIMSERVS_XCAP_H

#include "XMLCommonPolicy.h"
#include "XmlFamily.h"

/// @name Root elements
/// @{

/// The simserv type: a service that is switched on or off. An application may derive services of its own from it.
class IX_XML_EXPORT ix_ns_xcap_simservType : public XmlDescribedObject {
  public:
    static const XmlClass kClass;

    ~ix_ns_xcap_simservType() override { ixRelease(*this, kClass); }
    /// A class without rows of its own: an element "active" sets the switch by its text, "true" or "false"; as an
    /// object it is refused (0). Any other object is kept, anything else logged. @return 1, or 0. The services of this
    /// library take none of this over.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// @return 1.
    int setActiveValue(int active) { return ixSetNumber(mActive, active); }
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setExtensionListValue(IxSingleElementList* list) { return ixSetList(*this, mExtensionList, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addExtension(ix_AttributeValuePair* pair) { return ixAdd(*this, mExtensionList, pair); }

    /// Takes over a list of elements in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAnyListValue(IxSingleElementList* list);
    /// Appends an element, which then belongs to this one. @return 1, or 0 for NULL, without memory, or when this is a
    /// service of this library, when it stays with the caller.
    int addAny(XMLElement* element) { return ixAdd(*this, mAnyList, element); }

    int mActive = 1;                                ///< 1 active, else inactive; a new service is active.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned `ix_AttributeValuePair`s: every attribute but "active",
                                                    ///< such as namespace declarations, to be written back. NULL: none.
    IxSingleElementList* mAnyList = nullptr;        ///< Owned child elements of any other kind, which only services of
                                                    ///< an application have; never written. They and the pairs have no
                                                    ///< base class in common. NULL: none.

  protected:
    ix_ns_xcap_simservType() : XmlDescribedObject(kClass) {}
    explicit ix_ns_xcap_simservType(const XmlClass& description) : XmlDescribedObject(description) {}
};

/// The description of a service of this library. Its rows name the members of the base classes, too, so that its list
/// of attributes is registered under its own file; each class frees its own members all the same.
constexpr XmlClass ixServiceClass(XmlClass description) {
    description.parent = &ix_ns_xcap_simservType::kClass;
    // Required: an attribute that cannot be kept is no error.
    description.answers.lostPair = 1;
    return description;
}

/// The root element of a service with a ruleset.
class IX_XML_EXPORT ix_ns_xcap_ruleServiceType : public ix_ns_xcap_simservType {
  public:
    ~ix_ns_xcap_ruleServiceType() override { ixDelete(mRuleset); }

    /// Stores a ruleset, which passes to this element; NULL is ignored. An earlier one is not freed and stays with the
    /// caller. @return 1.
    int setRulesetValue(ix_ns_common_policy_ruleset* ruleset) { return ixOverwriteChild(mRuleset, ruleset); }

    ix_ns_common_policy_ruleset* mRuleset = nullptr;  ///< Owned; NULL: none.

  protected:
    using ix_ns_xcap_simservType::ix_ns_xcap_simservType;
};
/// @}

/// @name Conditions and actions of rules
/// Required: setting a text a second time does not free the earlier one (`ixOverwriteText`). Each is meant to be set
/// once.
/// @{

/// The condition `media`: a media type of the call, such as "audio".
class IX_XML_EXPORT ix_ns_xcap_media_type : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_xcap_media_type() : XmlDescribedElement(kClass) {}
    ~ix_ns_xcap_media_type() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setMediaValue(const char* media) { return ixOverwriteWithText(mMedia, media); }

    char* mMedia = nullptr;  ///< Owned; NULL: not set.
};

/// The condition `presence-status`. Read, but never written.
class IX_XML_EXPORT ix_presence_status_activity_type : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_presence_status_activity_type() : XmlDescribedElement(kClass) {}
    ~ix_presence_status_activity_type() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setPresenceStatusValue(const char* status) { return ixOverwriteWithText(mPresenceStatus, status); }

    char* mPresenceStatus = nullptr;  ///< Owned; NULL: not set.
};

/// The condition `external-list`. Neither read nor written; the class is there for applications.
class IX_XML_EXPORT ix_external_list : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_external_list() : XmlDescribedElement(kClass) {}
    ~ix_external_list() override { ixRelease(*this, kClass); }

    /// Copies the text; NULL is ignored. @return 1, or 0 without memory.
    int setExternalListValue(const char* list) { return ixOverwriteWithText(mExternalList, list); }

    char* mExternalList = nullptr;  ///< Owned; NULL: not set.
};

/// The action `forward-to`: the target of a forwarded call, and who is told what about it. Anything but its texts is
/// refused.
///
/// The notifications are 1 (true), 0 (false) or -1 (not set); the others are indices of the texts "false",
/// "not-reveal-GRUU" and "true", or 3 (not set).
class IX_XML_EXPORT ix_ns_xcap_forward_to_type : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    static constexpr int kNotifyNotSet = -1;
    static constexpr int kRevealNotSet = 3;
    /// The text of a value that is no notification; NULL: not set.
    static const char* RevealText(int value);

    ix_ns_xcap_forward_to_type() : XmlDescribedElement(kClass) {}
    ~ix_ns_xcap_forward_to_type() override { ixRelease(*this, kClass); }

    /// Copies the address; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setTargetValue(const char* target) { return ixSetText(mTarget, target); }
    /// @name Each answers 1.
    /// @{
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
    /// @}

    char* mTarget = nullptr;  ///< Owned; a URI. NULL: not set.
    int mNotifyCaller = kNotifyNotSet;
    int mRevealIdentityToCaller = kRevealNotSet;
    int mRevealServedUserIdentityToCaller = kRevealNotSet;
    int mNotifyServedUser = kNotifyNotSet;
    int mNotifyServedUserOnOutboundCall = kNotifyNotSet;
    int mRevealIdentityToTarget = kRevealNotSet;
};
/// @}

/// @name What the families of the services share
/// @{

/// The namespaces of the services' documents under their canonical prefixes. Communication waiting has a table of its
/// own.
extern IX_XML_EXPORT const XmlNamespaceRow kSimservsNamespaces[];
constexpr std::size_t kSimservsNamespaceCount = 3;

/// The log lines of a service's decoder; those that name none have the line of `noElement`.
constexpr XmlDecoderTexts ixServiceDecoderTexts(const XmlLogText& noElement, const XmlLogText& noElementName,
                                                const XmlLogText& noAttribute, const XmlLogText& noAttributeName,
                                                const XmlLogText& noFirstNamespace, const XmlLogText& noNamespace,
                                                const XmlLogText& changeTagNoMemory,
                                                const XmlLogText& removeTagNoMemory) {
    XmlDecoderTexts texts;
    texts.noElement = noElement;
    texts.noElementName = noElementName;
    texts.noAttribute = noAttribute;
    texts.noAttributeName = noAttributeName;
    const int line = noElement.line;
    texts.noObject = {3, "<XML Module>: New Failed at element = \"%s\"", line};
    texts.noPairOf = {3, "<XML Module>: New Failed at any attribute level with element = \"%s\"", line};
    texts.noFirstNamespace = noFirstNamespace;
    texts.noNamespace = noNamespace;
    texts.changeTagNoMemory = texts.changeEndTagNoMemory = changeTagNoMemory;
    texts.mappedTagNoMemory = {2, kDecoderCode, line, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};
    texts.mappedEndTagNoMemory = texts.mappedTagNoMemory;
    texts.removeTagNoMemory = removeTagNoMemory;
    return texts;
}

/// The same, from the names in them: the decoder, what it calls itself where its first namespace cannot be copied, the
/// copy of a name that attributes are compared by, and the decoder that its namespace operations were taken from.
#define IX_SERVICE_DECODER_TEXTS(decoder, constructor, copy, origin)                                                \
    ixServiceDecoderTexts(                                                                                          \
        IX_NO_ELEMENT_TEXT(decoder), IX_NO_ELEMENT_NAME_TEXT(decoder, "m_strDup or m_PassName"),                    \
        IX_NO_ATTRIBUTE_TEXT(decoder), IX_NO_ATTRIBUTE_NAME_TEXT(decoder, copy),                                    \
        XmlLogText(2, decoder " :: " constructor ": Malloc cannot allocate memory", __LINE__),                      \
        XmlLogText(2, decoder " :: " decoder ": Malloc cannot allocate memory", __LINE__),                          \
        XmlLogText(2, kDecoderCode, __LINE__, origin " :: XMLChangeNamespaceTag Malloc unable to allocate memory"), \
        IX_REMOVE_TAG_TEXT(origin))

/// What the decoders of the services share: namespaces and, with the exceptions that each makes, mapped names.
constexpr XmlDecoderInfo ixServiceDecoderInfo(XmlDecoderInfo info, const XmlDecoderTexts& texts) {
    info.names = XmlNamePolicy::Mapped;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.texts = texts;
    return info;
}

/// What their marshallers share: namespaces, and no XML declaration.
constexpr XmlMarshallerInfo ixServiceMarshallerInfo(XmlMarshallerInfo info, const XmlLogText& noNamespace) {
    info.writesDeclaration = false;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.noFirstNamespace = info.noNamespace = noNamespace;
    return info;
}

/// Base of the marshallers of the services.
class IX_XML_EXPORT XmlServiceMarshaller : public XmlFamilyMarshaller {
  protected:
    using XmlFamilyMarshaller::XmlFamilyMarshaller;

    /// The start tag of a service with the prefix of the simservs namespace: the attributes kept from the document it
    /// was decoded from, then `active`. The elements that follow have no prefix. @param isEmpty ends the element, too.
    void AddServiceStart(e_XmlStrRef name, const ix_ns_xcap_simservType& service, bool isEmpty);
    /// A service that is nothing but its start tag. @param entered logged first. @return 1, or 0 for NULL.
    int AddSwitch(const XmlLogText& entered, e_XmlStrRef name, const ix_ns_xcap_simservType* service);
};
/// @}

#endif
