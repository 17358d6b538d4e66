#include "XMLReginfo.h"

#include <cstring>
#include <iterator>

#include "ReginfoDecoder.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLReginfo";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_OLD_UNMARSHALLER_INFO(XMLReginfoDecoder, "ReginfoUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(ReginfoMarshaller, AddReginfoElementToXml, ix_reginfo)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.entered = {2, kSchemaCode, __LINE__, "<XML Module>: ReginfoMarshaller :: Marshall"};
    info.deleting = {2, kSchemaCode, __LINE__, "<XML Module>: ReginfoMarshaller :: Marshall: Deleting mReginfoXml"};
    info.written = {2, kSchemaCode, __LINE__, "<XML Module>: ReginfoMarshaller XML %s"};
    info.failed = {4, kSchemaCode, __LINE__, "<XML Module>: ReginfoMarshaller XML Failed!"};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

/// What an element class logs of what it does not take.
struct ClassTexts {
    const char* childClass;  ///< The class of the children that it lists by name; NULL: none.
    XmlLogText noChild;
    XmlLogText noChildClass;
    XmlLogText otherChild;    ///< With the child's class.
    XmlLogText otherElement;  ///< With the element's name.
    XmlLogText noAttribute;
    XmlLogText otherAttribute;  ///< With the attribute's name.
};

constexpr ClassTexts kReginfoTexts = {
    ix_registration::kClassName,
    {3, kSchemaCode, __LINE__, "ix_reginfo::ProcessUnMarshall: n_Object is Null"},
    {3, kSchemaCode, __LINE__, "ix_reginfo::ProcessUnMarshall: pElementName is Null"},
    {3, kSchemaCode, __LINE__, "ix_reginfo::ProcessUnMarshall: pElementName is %s while ClassName is ix_registration"},
    {3, kSchemaCode, __LINE__, "ix_reginfo::ProcessUnMarshall Cannot accommodate the element %s"},
    {3, kSchemaCode, __LINE__, "ix_reginfo::ProcessUnMarshallAttribute n_strAttribute is NULL"},
    {3, kSchemaCode, __LINE__, "ix_reginfo::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"}};
constexpr ClassTexts kRegistrationTexts = {
    ix_ns_reginfo_contact::kClassName,
    {3, kSchemaCode, __LINE__, "ix_registration::ProcessUnMarshall: n_Object is Null"},
    {3, kSchemaCode, __LINE__, "ix_registration::ProcessUnMarshall: pElementName is Null"},
    {3, kSchemaCode, __LINE__,
     "ix_registration::ProcessUnMarshall: pElementName is %s while ClassName is ix_ns_reginfo_contact"},
    {3, kSchemaCode, __LINE__, "ix_registration::ProcessUnMarshall Cannot accommodate the element %s"},
    {3, kSchemaCode, __LINE__, "ix_registration::ProcessUnMarshallAttribute n_strAttribute is NULL"},
    {3, kSchemaCode, __LINE__, "ix_registration::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"}};
constexpr ClassTexts kContactTexts = {
    ix_unknown_param::kClassName,
    {3, kSchemaCode, __LINE__, "ix_ns_reginfo_contact::ProcessUnMarshall: n_Object is Null"},
    {3, kSchemaCode, __LINE__, "ix_ns_reginfo_contact::ProcessUnMarshall: pElementName is Null"},
    {3, kSchemaCode, __LINE__,
     "ix_ns_reginfo_contact::ProcessUnMarshall: pElementName is %s while ClassName is ix_unknown_param"},
    {3, kSchemaCode, __LINE__, "ix_ns_reginfo_contact::ProcessUnMarshall Cannot accommodate the element %s"},
    {3, kSchemaCode, __LINE__, "ix_ns_reginfo_contact::ProcessUnMarshallAttribute n_strAttribute is NULL"},
    {3, kSchemaCode, __LINE__,
     "ix_ns_reginfo_contact::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"}};
constexpr ClassTexts kUnknownParamTexts = {
    nullptr,
    {},
    {},
    {},
    {3, kSchemaCode, __LINE__, "ix_unknown_param::ProcessUnMarshall Cannot accommodate the element %s"},
    {3, kSchemaCode, __LINE__, "ix_unknown_param::ProcessUnMarshallAttribute n_strAttribute is NULL"},
    {3, kSchemaCode, __LINE__, "ix_unknown_param::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"}};

constexpr XmlLogText kReginfoNoState = {1, kSchemaCode, __LINE__,
                                        "<XML Module>: AddReginfoElementToXml state is required"};
constexpr XmlLogText kRegistrationFailed = {4, kSchemaCode, __LINE__,
                                            "<XML Module>: AddRegistrationElementToXml Failed"};
constexpr XmlLogText kReginfoAny = {2, kSchemaCode, __LINE__, "<XML Module>: pReginfo: AnyElement not supported"};
constexpr XmlLogText kRegistrationNoAor = {4, kSchemaCode, __LINE__,
                                           "<XML Module>: AddRegistrationElementToXml aor is required"};
constexpr XmlLogText kRegistrationNoId = {4, kSchemaCode, __LINE__,
                                          "<XML Module>: AddRegistrationElementToXml id is required"};
constexpr XmlLogText kRegistrationNoState = {1, kSchemaCode, __LINE__,
                                             "<XML Module>: AddRegistrationElementToXml state is required"};
constexpr XmlLogText kContactFailed = {4, kSchemaCode, __LINE__, "<XML Module>: AddReginfoContactElementToXml Failed"};
constexpr XmlLogText kRegistrationAny = {2, kSchemaCode, __LINE__,
                                         "<XML Module>: pRegistration: AnyElement not supported"};
constexpr XmlLogText kContactNoState = {1, kSchemaCode, __LINE__,
                                        "<XML Module>: AddReginfoContactElementToXml state is required"};
constexpr XmlLogText kContactNoEvent = {1, kSchemaCode, __LINE__,
                                        "<XML Module>: AddReginfoContactElementToXml event is required"};
constexpr XmlLogText kContactNoId = {4, kSchemaCode, __LINE__,
                                     "<XML Module>: AddReginfoContactElementToXml id is required"};
constexpr XmlLogText kUnknownParamFailed = {4, kSchemaCode, __LINE__,
                                            "<XML Module>: AddUnknownParamElementToXml Failed"};
// Required: an element of a contact that is not written is told in the name of the writer of parameters.
constexpr XmlLogText kContactAny = {
    2, kSchemaCode, __LINE__, "<XML Module>: AddUnknownParamElementToXml cannot accommodate any element classname: %s"};
constexpr XmlLogText kUnknownParamNoName = {4, kSchemaCode, __LINE__,
                                            "<XML Module>: AddUnknownParamElementToXml name is required"};
constexpr XmlLogText kPubGruuNoUri = {3, kSchemaCode, __LINE__,
                                      "<XML Module>: AddPubGruuElementToXml: Uri is a mandatory attribute"};
constexpr XmlLogText kTempGruuNoUri = {3, kSchemaCode, __LINE__,
                                       "<XML Module>: AddTempGruuElementToXml: Uri is a mandatory attribute"};

/// The texts of all enumerations, one behind the other. Their order counts: see the reach of a word below.
constexpr char kTexts[][32] = {
    // States of a document.
    "full", "partial",
    // States of a contact.
    "active", "terminated",
    // Events of a contact.
    "registered", "created", "refreshed", "shortened", "expired", "deactivated", "probation", "unregistered",
    "rejected",
    // States of a registration.
    "init", "active", "terminated"};
constexpr int kContactStates = 2;
constexpr int kContactEvents = 4;
constexpr int kRegistrationStates = 13;

constexpr XmlEnumeration Rows(int first, int count) { return {kTexts[first], sizeof kTexts[0], count}; }
constexpr XmlEnumeration kReginfoState = Rows(0, IX_REGINFO_STATE_UNSET);
constexpr XmlEnumeration kContactState = Rows(kContactStates, IX_CONTACT_STATE_UNSET);
constexpr XmlEnumeration kContactEvent = Rows(kContactEvents, IX_CONTACT_EVENT_UNSET);
constexpr XmlEnumeration kRegistrationState = Rows(kRegistrationStates, IX_REGISTRATION_STATE_UNSET);

/// @name Rows that are looked at for a word, where they are not those of the enumeration.
/// @{
// Required: one row past the states, "registered", and one past the events, "init": a word that is no state or event
// has a number of its own, which is not written either.
constexpr XmlEnumeration kContactStateReach = Rows(kContactStates, IX_CONTACT_STATE_UNSET + 1);
constexpr XmlEnumeration kContactEventReach = Rows(kContactEvents, IX_CONTACT_EVENT_UNSET + 1);
// Required: the word "terminated" is not looked for, as any other word is taken for it.
constexpr XmlEnumeration kRegistrationStateReach = Rows(kRegistrationStates, IX_REGISTRATION_STATE_TERMINATED);
/// @}

constexpr XmlField kUnknownParamFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_unknown_param::mValue), 0, nullptr, "text"},
    {XmlFieldKind::Text, IX_STR_NAME, XmlTextMember(&ix_unknown_param::mName)},
};
constexpr XmlFieldTable kUnknownParamTable = {nullptr, kUnknownParamFields, std::size(kUnknownParamFields)};

constexpr XmlField kContactFields[] = {
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_ns_reginfo_contact::mUri)},
    {XmlFieldKind::Text, IX_STR_DISPLAY_NAME, XmlTextMember(&ix_ns_reginfo_contact::mDisplayName)},
    {XmlFieldKind::ChildList, IX_STR_UNKNOWN_PARAM, XmlListMember(&ix_ns_reginfo_contact::mUnknownParamList)},
    {XmlFieldKind::Enumeration, IX_STR_STATE, XmlIntMember(&ix_ns_reginfo_contact::mState), IX_CONTACT_STATE_UNSET,
     &kContactState},
    {XmlFieldKind::Enumeration, IX_STR_EVENT, XmlIntMember(&ix_ns_reginfo_contact::mEvent), IX_CONTACT_EVENT_UNSET,
     &kContactEvent},
    {XmlFieldKind::Number64, IX_STR_DURATION_REGISTERED, XmlInt64Member(&ix_ns_reginfo_contact::mDurationRegistered)},
    {XmlFieldKind::Number64, IX_STR_EXPIRES, XmlInt64Member(&ix_ns_reginfo_contact::mExpires)},
    {XmlFieldKind::Number64, IX_STR_RETRY_AFTER, XmlInt64Member(&ix_ns_reginfo_contact::mRetryAfter)},
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_ns_reginfo_contact::mId)},
    {XmlFieldKind::Text, IX_STR_Q, XmlTextMember(&ix_ns_reginfo_contact::mQ)},
    {XmlFieldKind::Text, IX_STR_CALLID, XmlTextMember(&ix_ns_reginfo_contact::mCallid)},
    {XmlFieldKind::Number64, IX_STR_CSEQ, XmlInt64Member(&ix_ns_reginfo_contact::mCseq)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_ns_reginfo_contact::mAnyElementList), 0, nullptr,
     "any"},
};
constexpr XmlFieldTable kContactTable = {nullptr, kContactFields, std::size(kContactFields)};

constexpr XmlField kRegistrationFields[] = {
    {XmlFieldKind::ChildList, IX_STR_CONTACT, XmlListMember(&ix_registration::mContactList)},
    {XmlFieldKind::Text, IX_STR_AOR, XmlTextMember(&ix_registration::mAor)},
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_registration::mId)},
    {XmlFieldKind::Enumeration, IX_STR_STATE, XmlIntMember(&ix_registration::mState), IX_REGISTRATION_STATE_UNSET,
     &kRegistrationState},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_registration::mAnyElementList), 0, nullptr, "any"},
};
constexpr XmlFieldTable kRegistrationTable = {nullptr, kRegistrationFields, std::size(kRegistrationFields)};

constexpr XmlField kReginfoFields[] = {
    {XmlFieldKind::ChildList, IX_STR_REGISTRATION, XmlListMember(&ix_reginfo::mRegistrationList)},
    {XmlFieldKind::Enumeration, IX_STR_STATE, XmlIntMember(&ix_reginfo::mState), IX_REGINFO_STATE_UNSET,
     &kReginfoState},
    {XmlFieldKind::Unsigned, IX_STR_VERSION, XmlUnsignedMember(&ix_reginfo::mVersion), kXmlAlwaysSet},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_reginfo::mAnyElementList), 0, nullptr, "any"},
};
constexpr XmlFieldTable kReginfoTable = {nullptr, kReginfoFields, std::size(kReginfoFields)};

/// True when `child` is of the class that the name it comes under stands for.
bool IsNamedChild(const XMLElement* child, const ClassTexts& texts) {
    const char* const name = child != nullptr ? child->ClassName() : nullptr;
    if (child == nullptr) {
        ixLog(kSourceFile, texts.noChild);
    } else if (name == nullptr) {
        ixLog(kSourceFile, texts.noChildClass);
    } else if (std::strcmp(name, texts.childClass) != 0) {
        ixLog(kSourceFile, texts.otherChild, name);
    } else {
        return true;
    }
    return false;
}

/// Logs an attribute that the class does not have. @return 0.
int RefuseAttribute(const char* attribute, const ClassTexts& texts) {
    ixLog(kSourceFile, attribute != nullptr ? texts.otherAttribute : texts.noAttribute, attribute);
    return 0;
}

/// Logs what is missing. @return 0.
int Fail(const XmlLogText& missing) {
    ixLog(kSourceFile, missing);
    return 0;
}

/// Logs that elements of other classes are not written, if there are any.
void LogAnyElements(const IxSingleElementList* list, const XmlLogText& text) {
    if (ixNodesOf(list) != nullptr) ixLog(kSourceFile, text);
}

}  // namespace

ix_unknown_param::~ix_unknown_param() { XmlFields::Release(this, kUnknownParamTable); }

const XmlFieldTable* ix_unknown_param::FieldTable() const { return &kUnknownParamTable; }

int ix_unknown_param::ProcessUnMarshall(char* name, char* text, XMLElement* /*child*/) {
    if (ixEndNameIs(name, IX_STR_UNKNOWN_PARAM)) return setValueValue(text);
    ixLog(kSourceFile, kUnknownParamTexts.otherElement, name);
    return 0;
}

int ix_unknown_param::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (ixNameIs(attribute, IX_STR_NAME)) return setNameValue(value);
    return RefuseAttribute(attribute, kUnknownParamTexts);
}

ix_ns_reginfo_contact::~ix_ns_reginfo_contact() { XmlFields::Release(this, kContactTable); }

const XmlFieldTable* ix_ns_reginfo_contact::FieldTable() const { return &kContactTable; }

int ix_ns_reginfo_contact::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_UNKNOWN_PARAM)) {
        return IsNamedChild(child, kContactTexts) ? addUnknownParam(static_cast<ix_unknown_param*>(child)) : 0;
    }
    if (ixNameIs(name, IX_STR_URI) || ixNameIs(name, IX_STR_DISPLAY_NAME)) return 1;
    if (child != nullptr) return addAnyElement(child);
    if (text != nullptr && ixEndNameIs(name, IX_STR_URI)) return setUriValue(text);
    if (text != nullptr && ixEndNameIs(name, IX_STR_DISPLAY_NAME)) return setDisplayNameValue(text);
    ixLog(kSourceFile, kContactTexts.otherElement, name);
    return 1;
}

int ix_ns_reginfo_contact::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (ixNameIs(attribute, IX_STR_ID)) return setIdValue(value);
    if (ixNameIs(attribute, IX_STR_Q)) return setQValue(value);
    if (ixNameIs(attribute, IX_STR_CALLID)) return setCallidValue(value);
    if (ixNameIs(attribute, IX_STR_DURATION_REGISTERED)) return setDurationRegisteredValue(__atoi64(value));
    if (ixNameIs(attribute, IX_STR_EXPIRES)) return setExpiresValue(__atoi64(value));
    if (ixNameIs(attribute, IX_STR_RETRY_AFTER)) return setRetryAfterValue(__atoi64(value));
    if (ixNameIs(attribute, IX_STR_CSEQ)) return setCseqValue(__atoi64(value));
    if (ixNameIs(attribute, IX_STR_STATE)) {
        mState = kContactStateReach.IndexOfPrefix(value);
    } else if (ixNameIs(attribute, IX_STR_EVENT)) {
        mEvent = kContactEventReach.IndexOfPrefix(value);
    } else {
        return RefuseAttribute(attribute, kContactTexts);
    }
    return 1;
}

int ix_ns_reginfo_contact::addUnknownParam(ix_unknown_param* param) {
    return ixAppend(mUnknownParamList, param, kSourceFile, __LINE__);
}

int ix_ns_reginfo_contact::addAnyElement(XMLElement* element) {
    return ixAppend(mAnyElementList, element, kSourceFile, __LINE__);
}

ix_registration::~ix_registration() { XmlFields::Release(this, kRegistrationTable); }

const XmlFieldTable* ix_registration::FieldTable() const { return &kRegistrationTable; }

int ix_registration::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_CONTACT)) {
        return IsNamedChild(child, kRegistrationTexts) ? addContact(static_cast<ix_ns_reginfo_contact*>(child)) : 0;
    }
    if (child != nullptr) return addAnyElement(child);
    ixLog(kSourceFile, kRegistrationTexts.otherElement, name);
    return 1;
}

int ix_registration::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (ixNameIs(attribute, IX_STR_AOR)) return setAorValue(value);
    if (ixNameIs(attribute, IX_STR_ID)) return setIdValue(value);
    if (!ixNameIs(attribute, IX_STR_STATE)) return RefuseAttribute(attribute, kRegistrationTexts);
    mState = kRegistrationStateReach.IndexOfPrefix(value);
    return 1;
}

int ix_registration::addContact(ix_ns_reginfo_contact* contact) {
    return ixAppend(mContactList, contact, kSourceFile, __LINE__);
}

int ix_registration::addAnyElement(XMLElement* element) {
    return ixAppend(mAnyElementList, element, kSourceFile, __LINE__);
}

ix_reginfo::~ix_reginfo() { XmlFields::Release(this, kReginfoTable); }

const XmlFieldTable* ix_reginfo::FieldTable() const { return &kReginfoTable; }

int ix_reginfo::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_REGISTRATION)) {
        return IsNamedChild(child, kReginfoTexts) ? addRegistration(static_cast<ix_registration*>(child)) : 0;
    }
    if (child != nullptr) return addAnyElement(child);
    ixLog(kSourceFile, kReginfoTexts.otherElement, name);
    return 1;
}

int ix_reginfo::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (ixNameIs(attribute, IX_STR_VERSION)) {
        // As many of the number's bits as there are, so that a version of 2^31 and more is itself.
        return value != nullptr ? setVersionValue(static_cast<unsigned int>(__atoi64(value))) : 1;
    }
    if (!ixNameIs(attribute, IX_STR_STATE)) return RefuseAttribute(attribute, kReginfoTexts);
    mState = kReginfoState.IndexOfPrefix(value);
    return 1;
}

int ix_reginfo::addRegistration(ix_registration* registration) {
    return ixAppend(mRegistrationList, registration, kSourceFile, __LINE__);
}

int ix_reginfo::addAnyElement(XMLElement* element) { return ixAppend(mAnyElementList, element, kSourceFile, __LINE__); }

XMLElement* ReginfoDataBinder::CreateRootElement() { return IX_NEW(ix_reginfo); }

ix_registration* ReginfoDataBinder::CreateRegistrationElement() { return IX_NEW(ix_registration); }

ix_ns_reginfo_contact* ReginfoDataBinder::CreateContactElement() { return IX_NEW(ix_ns_reginfo_contact); }

ix_unknown_param* ReginfoDataBinder::CreateUnknownParamElement() { return IX_NEW(ix_unknown_param); }

ix_pub_gruu* ReginfoDataBinder::CreatePubGruuElement() { return IX_NEW(ix_pub_gruu); }

ix_temp_gruu* ReginfoDataBinder::CreateTempGruuElement() { return IX_NEW(ix_temp_gruu); }

ReginfoMarshaller::ReginfoMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int ReginfoMarshaller::AddReginfoElementToXml(ix_reginfo* reginfo) {
    if (reginfo == nullptr) return 0;
    StartElementOpen(IX_STR_REGINFO);
    AddAttribute(IX_STR_XMLNS, ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_REGINFO),
                 Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_GR,
                         ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_GRUUINFO),
                         Attribute::Open);
    AddDecimalAttribute(IX_STR_VERSION, reginfo->mVersion, Attribute::Open);
    const char* const state = kReginfoState.TextOf(reginfo->mState);
    if (state == nullptr) return Fail(kReginfoNoState);
    AddAttribute(IX_STR_STATE, state, Attribute::Closing);
    if (AddChildList(reginfo->mRegistrationList,
                     IX_OLD_WRITER(ReginfoMarshaller, AddRegistrationElementToXml, ix_registration),
                     kRegistrationFailed) == 0) {
        return 0;
    }
    LogAnyElements(reginfo->mAnyElementList, kReginfoAny);
    EndElement(IX_STR_REGINFO);
    return 1;
}

int ReginfoMarshaller::AddRegistrationElementToXml(ix_registration* registration) {
    if (registration == nullptr) return 0;
    StartElementOpen(IX_STR_REGISTRATION);
    if (registration->mAor == nullptr) return Fail(kRegistrationNoAor);
    AddAttribute(IX_STR_AOR, registration->mAor, Attribute::Open);
    // Required: the address of record is tested a second time where the id is meant, so that a registration without id
    // is written, with an empty one.
    if (registration->mAor == nullptr) return Fail(kRegistrationNoId);
    AddAttribute(IX_STR_ID, registration->mId, Attribute::Open);
    const char* const state = kRegistrationState.TextOf(registration->mState);
    if (state == nullptr) return Fail(kRegistrationNoState);
    AddAttribute(IX_STR_STATE, state, Attribute::Closing);
    if (AddChildList(registration->mContactList,
                     IX_OLD_WRITER(ReginfoMarshaller, AddReginfoContactElementToXml, ix_ns_reginfo_contact),
                     kContactFailed) == 0) {
        return 0;
    }
    LogAnyElements(registration->mAnyElementList, kRegistrationAny);
    EndElement(IX_STR_REGISTRATION);
    return 1;
}

int ReginfoMarshaller::AddReginfoContactElementToXml(ix_ns_reginfo_contact* contact) {
    if (contact == nullptr) return 0;
    StartElementOpen(IX_STR_CONTACT);
    if (AddContactAttributes(*contact) == 0) return 0;
    AddTextElement(IX_STR_URI, contact->mUri);
    AddTextElement(IX_STR_DISPLAY_NAME, contact->mDisplayName);
    if (AddChildList(contact->mUnknownParamList,
                     IX_OLD_WRITER(ReginfoMarshaller, AddUnknownParamElementToXml, ix_unknown_param),
                     kUnknownParamFailed) == 0 ||
        AddChildList(contact->mAnyElementList, IX_OLD_WRITER(ReginfoMarshaller, AddAnyElementToXml, XMLElement)) == 0) {
        return 0;
    }
    EndElement(IX_STR_CONTACT);
    return 1;
}

int ReginfoMarshaller::AddContactAttributes(const ix_ns_reginfo_contact& contact) {
    const char* const state = kContactState.TextOf(contact.mState);
    if (state == nullptr) return Fail(kContactNoState);
    AddAttribute(IX_STR_STATE, state, Attribute::Open);
    const char* const event = kContactEvent.TextOf(contact.mEvent);
    if (event == nullptr) return Fail(kContactNoEvent);
    AddAttribute(IX_STR_EVENT, event, Attribute::Open);
    AddNumber(IX_STR_DURATION_REGISTERED, contact.mDurationRegistered);
    AddNumber(IX_STR_EXPIRES, contact.mExpires);
    AddNumber(IX_STR_RETRY_AFTER, contact.mRetryAfter);
    if (contact.mQ != nullptr) AddAttribute(IX_STR_Q, contact.mQ, Attribute::Open);
    if (contact.mCallid != nullptr) AddAttribute(IX_STR_CALLID, contact.mCallid, Attribute::Open);
    AddNumber(IX_STR_CSEQ, contact.mCseq);
    if (contact.mId == nullptr) return Fail(kContactNoId);
    AddAttribute(IX_STR_ID, contact.mId, Attribute::Closing);
    return 1;
}

/// An attribute that is left out at 0.
void ReginfoMarshaller::AddNumber(e_XmlStrRef name, std::int64_t value) {
    if (value != 0) AddDecimalAttribute(name, value, Attribute::Open);
}

int ReginfoMarshaller::AddUnknownParamElementToXml(ix_unknown_param* param) {
    if (param == nullptr) return 0;
    StartElementOpen(IX_STR_UNKNOWN_PARAM);
    if (param->mName == nullptr) return Fail(kUnknownParamNoName);
    AddAttribute(IX_STR_NAME, param->mName, Attribute::Closing);
    m_generator.ixXmlSetData(param->mValue);
    EndElement(IX_STR_UNKNOWN_PARAM);
    return 1;
}

/// An element of a contact that is none of its own.
int ReginfoMarshaller::AddAnyElementToXml(XMLElement* element) {
    // Required: a GRUU without URI does not fail its contact.
    if (ixIs<ix_pub_gruu>(element)) {
        AddPubGruuElementToXml(static_cast<ix_pub_gruu*>(element));
    } else if (ixIs<ix_temp_gruu>(element)) {
        AddTempGruuElementToXml(static_cast<ix_temp_gruu*>(element));
    } else {
        ixLog(kSourceFile, kContactAny, element->ClassName());
    }
    return 1;
}

int ReginfoMarshaller::AddPubGruuElementToXml(ix_pub_gruu* gruu) {
    if (gruu == nullptr) return 0;
    StartGruu(IX_STR_PUB_GRUU);
    return AddGruuUri(*gruu, kPubGruuNoUri);
}

int ReginfoMarshaller::AddTempGruuElementToXml(ix_temp_gruu* gruu) {
    if (gruu == nullptr) return 0;
    StartGruu(IX_STR_TEMP_GRUU);
    AddDecimalAttribute(IX_STR_FIRST_CSEQ, gruu->mFirstCseq, Attribute::Open);
    return AddGruuUri(*gruu, kTempGruuNoUri);
}

void ReginfoMarshaller::StartGruu(e_XmlStrRef name) {
    SetFixedElementPrefix(IX_STR_GR);
    StartElementOpen(name);
    ClearElementPrefix();
}

/// The attribute that ends the element.
int ReginfoMarshaller::AddGruuUri(const ix_gruuType& gruu, const XmlLogText& missing) {
    // Required: the start tag of a GRUU without URI stays as it is, unterminated.
    if (gruu.mUri == nullptr) return Fail(missing);
    AddAttribute(IX_STR_URI, gruu.mUri, Attribute::SelfClosing);
    return 1;
}

IX_OLD_FAMILY(ReginfoContext, ReginfoMarshaller, ReginfoUnMarshaller, ReginfoDataBinder);
