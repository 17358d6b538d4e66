#include "XMLReginfo.h"

#include "ReginfoDecoder.h"

namespace {

using namespace XmlRow;

/// The texts of all enumerations, one behind the other. Their order counts where reading looks past an enumeration.
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

constexpr XmlEnumeration Words(int first, int count, int reach = 0) {
    return {kTexts[first], sizeof kTexts[0], count, false, reach};
}
constexpr XmlEnumeration kReginfoStates = Words(0, IX_REGINFO_STATE_UNSET);
// Required: reading looks one row past the states, at "registered", and one past the events, at "init": a word that is
// no state or event has a number of its own, which is not written either.
constexpr XmlEnumeration kContactStates = Words(2, IX_CONTACT_STATE_UNSET, IX_CONTACT_STATE_UNSET + 1);
constexpr XmlEnumeration kContactEvents = Words(4, IX_CONTACT_EVENT_UNSET, IX_CONTACT_EVENT_UNSET + 1);
// Required: the word "terminated" is not looked for, as any other word is taken for it.
constexpr XmlEnumeration kRegistrationStates = Words(13, IX_REGISTRATION_STATE_UNSET, IX_REGISTRATION_STATE_TERMINATED);

constexpr XmlField kUnknownParamFields[] = {
    Attribute<&ix_unknown_param::mName>(IX_STR_NAME).Mandatory(),
    OwnText<&ix_unknown_param::mValue>(),
};

constexpr XmlNamedClass kGruus[] = {
    {IX_STR_PUB_GRUU, &ix_pub_gruu::kClass, XmlNamespace::GruuInfo},
    {IX_STR_TEMP_GRUU, &ix_temp_gruu::kClass, XmlNamespace::GruuInfo},
};

constexpr XmlField kContactFields[] = {
    Attribute<&ix_ns_reginfo_contact::mState>(IX_STR_STATE, kContactStates).Mandatory(),
    Attribute<&ix_ns_reginfo_contact::mEvent>(IX_STR_EVENT, kContactEvents).Mandatory(),
    Attribute<&ix_ns_reginfo_contact::mDurationRegistered>(IX_STR_DURATION_REGISTERED),
    Attribute<&ix_ns_reginfo_contact::mExpires>(IX_STR_EXPIRES),
    Attribute<&ix_ns_reginfo_contact::mRetryAfter>(IX_STR_RETRY_AFTER),
    Attribute<&ix_ns_reginfo_contact::mId>(IX_STR_ID).Mandatory(),
    Attribute<&ix_ns_reginfo_contact::mQ>(IX_STR_Q),
    Attribute<&ix_ns_reginfo_contact::mCallid>(IX_STR_CALLID),
    Attribute<&ix_ns_reginfo_contact::mCseq>(IX_STR_CSEQ),
    Element<&ix_ns_reginfo_contact::mUri>(IX_STR_URI).Mandatory(),
    Element<&ix_ns_reginfo_contact::mDisplayName>(IX_STR_DISPLAY_NAME),
    Children<&ix_ns_reginfo_contact::mUnknownParamList, ix_unknown_param>(IX_STR_UNKNOWN_PARAM),
    Others<&ix_ns_reginfo_contact::mAnyElementList>(kGruus),
};

constexpr XmlField kRegistrationFields[] = {
    Attribute<&ix_registration::mAor>(IX_STR_AOR).Mandatory(),
    Attribute<&ix_registration::mId>(IX_STR_ID).Mandatory(),
    Attribute<&ix_registration::mState>(IX_STR_STATE, kRegistrationStates).Mandatory(),
    Children<&ix_registration::mContactList, ix_ns_reginfo_contact>(IX_STR_CONTACT),
    Others<&ix_registration::mAnyElementList>(),
};

constexpr XmlField kReginfoFields[] = {
    Attribute<&ix_reginfo::mVersion>(IX_STR_VERSION).Always().Mandatory(),
    Attribute<&ix_reginfo::mState>(IX_STR_STATE, kReginfoStates).Mandatory(),
    Children<&ix_reginfo::mRegistrationList, ix_registration>(IX_STR_REGISTRATION),
    Others<&ix_reginfo::mAnyElementList>(),
};

/// Every class has texts of its own, the last three where it has children of one class.
constexpr XmlAnswers Answers(const XmlLogText& noAttribute, const XmlLogText& unknownAttribute,
                             const XmlLogText& unknown, const XmlLogText& noChild = {},
                             const XmlLogText& namelessChild = {}, const XmlLogText& otherChild = {}) {
    XmlAnswers answers;
    answers.attribute = 0;
    answers.pair = 0;
    answers.noAttribute = noAttribute;
    answers.unknownAttribute = unknownAttribute;
    answers.unknown = unknown;
    answers.noChild = noChild;
    answers.namelessChild = namelessChild;
    answers.otherChild = otherChild;
    return answers;
}

constexpr XmlAnswers UnknownParamAnswers() {
    XmlAnswers answers =
        Answers({3, "ix_unknown_param::ProcessUnMarshallAttribute n_strAttribute is NULL"},
                {3, "ix_unknown_param::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"},
                {3, "ix_unknown_param::ProcessUnMarshall Cannot accommodate the element %s"});
    answers.event = 0;
    answers.unknownObject = answers.unknown;
    return answers;
}
constexpr XmlAnswers kUnknownParamAnswers = UnknownParamAnswers();

constexpr XmlAnswers kContactAnswers =
    Answers({3, "ix_ns_reginfo_contact::ProcessUnMarshallAttribute n_strAttribute is NULL"},
            {3, "ix_ns_reginfo_contact::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"},
            {3, "ix_ns_reginfo_contact::ProcessUnMarshall Cannot accommodate the element %s"},
            {3, "ix_ns_reginfo_contact::ProcessUnMarshall: n_Object is Null"},
            {3, "ix_ns_reginfo_contact::ProcessUnMarshall: pElementName is Null"},
            {3, "ix_ns_reginfo_contact::ProcessUnMarshall: pElementName is %s while ClassName is ix_unknown_param"});
constexpr XmlAnswers kRegistrationAnswers =
    Answers({3, "ix_registration::ProcessUnMarshallAttribute n_strAttribute is NULL"},
            {3, "ix_registration::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"},
            {3, "ix_registration::ProcessUnMarshall Cannot accommodate the element %s"},
            {3, "ix_registration::ProcessUnMarshall: n_Object is Null"},
            {3, "ix_registration::ProcessUnMarshall: pElementName is Null"},
            {3, "ix_registration::ProcessUnMarshall: pElementName is %s while ClassName is ix_ns_reginfo_contact"});
constexpr XmlAnswers kReginfoAnswers = Answers(
    {3, "ix_reginfo::ProcessUnMarshallAttribute n_strAttribute is NULL"},
    {3, "ix_reginfo::ProcessUnMarshallAttribute Cannot accommodate the attribute %s"},
    {3, "ix_reginfo::ProcessUnMarshall Cannot accommodate the element %s"},
    {3, "ix_reginfo::ProcessUnMarshall: n_Object is Null"}, {3, "ix_reginfo::ProcessUnMarshall: pElementName is Null"},
    {3, "ix_reginfo::ProcessUnMarshall: pElementName is %s while ClassName is ix_registration"});

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLReginfoDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in ReginfoUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&ReginfoMarshaller::AddReginfoElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters,
                     {{2, "<XML Module>: ReginfoMarshaller :: Marshall"},
                      {2, "<XML Module>: ReginfoMarshaller :: Marshall: Deleting mReginfoXml"},
                      {2, "<XML Module>: ReginfoMarshaller XML %s"},
                      {4, "<XML Module>: ReginfoMarshaller XML Failed!"}});

}  // namespace

constexpr XmlClass ix_unknown_param::kClass =
    ixClass<ix_unknown_param>("ix_unknown_param", "unknown-param", kSource, kUnknownParamFields, kUnknownParamAnswers)
        .Of(IX_STR_UNKNOWN_PARAM)
        .NoRoot();
constexpr XmlClass ix_ns_reginfo_contact::kClass =
    ixClass<ix_ns_reginfo_contact>("ix_ns_reginfo_contact", "contact", kSource, kContactFields, kContactAnswers);
constexpr XmlClass ix_registration::kClass =
    ixClass<ix_registration>("ix_registration", "registration", kSource, kRegistrationFields, kRegistrationAnswers);
constexpr XmlClass ix_reginfo::kClass =
    ixClass<ix_reginfo>("ix_reginfo", "reginfo", kSource, kReginfoFields, kReginfoAnswers);

XMLElement* ReginfoDataBinder::CreateRootElement() { return ixNew<ix_reginfo>(kSource); }
ix_registration* ReginfoDataBinder::CreateRegistrationElement() { return ixNew<ix_registration>(kSource); }
ix_ns_reginfo_contact* ReginfoDataBinder::CreateContactElement() { return ixNew<ix_ns_reginfo_contact>(kSource); }
ix_unknown_param* ReginfoDataBinder::CreateUnknownParamElement() { return ixNew<ix_unknown_param>(kSource); }
ix_pub_gruu* ReginfoDataBinder::CreatePubGruuElement() { return ixNew<ix_pub_gruu>(kSource); }
ix_temp_gruu* ReginfoDataBinder::CreateTempGruuElement() { return ixNew<ix_temp_gruu>(kSource); }

ReginfoUnMarshaller::ReginfoUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

ReginfoMarshaller::ReginfoMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

ReginfoContext::ReginfoContext()
    : XmlFamilyContext(ixFamily<ReginfoMarshaller, ReginfoUnMarshaller, ReginfoDataBinder>(kSource)) {}

int ReginfoMarshaller::AddReginfoElementToXml(ix_reginfo* reginfo) {
    if (!Enter(reginfo, {2, "<XML Module>: AddReginfoElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_REGINFO);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_REGINFO);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_GR, IX_STR_URN_IETF_PARAMS_XML_NS_GRUUINFO);
    tag.AddDecimal(IX_STR_VERSION, reginfo->mVersion);
    const char* const state = kReginfoStates.TextOf(reginfo->mState);
    if (state == nullptr) return Fail({1, "<XML Module>: AddReginfoElementToXml state is required"});
    tag.Add(IX_STR_STATE, state);
    tag.Close();
    if (!AddChildren<&ReginfoMarshaller::AddRegistrationElementToXml>(
            reginfo->mRegistrationList, {4, "<XML Module>: AddRegistrationElementToXml Failed"})) {
        return 0;
    }
    if (ixNodesOf(reginfo->mAnyElementList) != nullptr) Log({2, "<XML Module>: pReginfo: AnyElement not supported"});
    EndElement(IX_STR_REGINFO);
    return 1;
}

int ReginfoMarshaller::AddRegistrationElementToXml(ix_registration* registration) {
    if (!Enter(registration, {2, "<XML Module>: AddRegistrationElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_REGISTRATION);
    if (registration->mAor == nullptr) return Fail({4, "<XML Module>: AddRegistrationElementToXml aor is required"});
    tag.Add(IX_STR_AOR, registration->mAor);
    // Required: the address of record is tested a second time where the id is meant, so that a registration without id
    // is written, with an empty one.
    if (registration->mAor == nullptr) return Fail({4, "<XML Module>: AddRegistrationElementToXml id is required"});
    tag.Add(IX_STR_ID, registration->mId != nullptr ? registration->mId : "");
    const char* const state = kRegistrationStates.TextOf(registration->mState);
    if (state == nullptr) return Fail({1, "<XML Module>: AddRegistrationElementToXml state is required"});
    tag.Add(IX_STR_STATE, state);
    tag.Close();
    if (!AddChildren<&ReginfoMarshaller::AddReginfoContactElementToXml>(
            registration->mContactList, {4, "<XML Module>: AddReginfoContactElementToXml Failed"})) {
        return 0;
    }
    if (ixNodesOf(registration->mAnyElementList) != nullptr) {
        Log({2, "<XML Module>: pRegistration: AnyElement not supported"});
    }
    EndElement(IX_STR_REGISTRATION);
    return 1;
}

int ReginfoMarshaller::AddReginfoContactElementToXml(ix_ns_reginfo_contact* contact) {
    if (!Enter(contact, {2, "<XML Module>: AddReginfoContactElementToXml"})) return 0;
    if (!AddContactStartTag(*contact)) return 0;
    AddTextElement(IX_STR_URI, contact->mUri);
    AddTextElement(IX_STR_DISPLAY_NAME, contact->mDisplayName);
    if (!AddChildren<&ReginfoMarshaller::AddUnknownParamElementToXml>(
            contact->mUnknownParamList, {4, "<XML Module>: AddUnknownParamElementToXml Failed"})) {
        return 0;
    }
    for (auto* const element : XmlEntries<XMLElement>(contact->mAnyElementList)) AddAnyElementToXml(element);
    EndElement(IX_STR_CONTACT);
    return 1;
}

int ReginfoMarshaller::AddContactStartTag(const ix_ns_reginfo_contact& contact) {
    XmlStartTag tag(*this, IX_STR_CONTACT);
    const char* const state = kContactStates.TextOf(contact.mState);
    if (state == nullptr) return Fail({1, "<XML Module>: AddReginfoContactElementToXml state is required"});
    tag.Add(IX_STR_STATE, state);
    const char* const event = kContactEvents.TextOf(contact.mEvent);
    if (event == nullptr) return Fail({1, "<XML Module>: AddReginfoContactElementToXml event is required"});
    tag.Add(IX_STR_EVENT, event);
    if (contact.mDurationRegistered != 0) tag.AddDecimal(IX_STR_DURATION_REGISTERED, contact.mDurationRegistered);
    if (contact.mExpires != 0) tag.AddDecimal(IX_STR_EXPIRES, contact.mExpires);
    if (contact.mRetryAfter != 0) tag.AddDecimal(IX_STR_RETRY_AFTER, contact.mRetryAfter);
    tag.Add(IX_STR_Q, contact.mQ);
    tag.Add(IX_STR_CALLID, contact.mCallid);
    if (contact.mCseq != 0) tag.AddDecimal(IX_STR_CSEQ, contact.mCseq);
    if (contact.mId == nullptr) return Fail({4, "<XML Module>: AddReginfoContactElementToXml id is required"});
    tag.Add(IX_STR_ID, contact.mId);
    tag.Close();
    return 1;
}

int ReginfoMarshaller::AddUnknownParamElementToXml(ix_unknown_param* param) {
    if (!Enter(param, {2, "<XML Module>: AddUnknownParamElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_UNKNOWN_PARAM);
    if (param->mName == nullptr) {
        tag.LeaveOpen();
        return Fail({4, "<XML Module>: AddUnknownParamElementToXml name is required"});
    }
    tag.Add(IX_STR_NAME, param->mName);
    tag.Close();
    m_generator.ixXmlSetData(param->mValue);
    EndElement(IX_STR_UNKNOWN_PARAM);
    return 1;
}

/// Writes an element of a contact that is of another schema, if it is a GRUU.
void ReginfoMarshaller::AddAnyElementToXml(XMLElement* element) {
    // Required: a GRUU without URI does not fail its contact.
    if (auto* const pub = ixAs<ix_pub_gruu>(element)) {
        AddPubGruuElementToXml(pub);
    } else if (auto* const temp = ixAs<ix_temp_gruu>(element)) {
        AddTempGruuElementToXml(temp);
    } else {
        // Required: an element that is not written is told in the name of the writer of parameters.
        Log({2, "<XML Module>: AddUnknownParamElementToXml cannot accommodate any element classname: %s"},
            element != nullptr ? element->ClassName() : nullptr);
    }
}

int ReginfoMarshaller::AddPubGruuElementToXml(ix_pub_gruu* gruu) {
    if (!Enter(gruu, {2, "<XML Module>: AddPubGruuElementToXml"})) return 0;
    SetFixedElementPrefix(IX_STR_GR);
    const bool written = ixWriteGruu(*this, *gruu);
    ClearElementPrefix();
    // Required: the start tag of a GRUU without URI stays as it is, unterminated.
    return written ? 1 : Fail({3, "<XML Module>: AddPubGruuElementToXml: Uri is a mandatory attribute"});
}

int ReginfoMarshaller::AddTempGruuElementToXml(ix_temp_gruu* gruu) {
    if (!Enter(gruu, {2, "<XML Module>: AddTempGruuElementToXml"})) return 0;
    SetFixedElementPrefix(IX_STR_GR);
    const bool written = ixWriteGruu(*this, *gruu, gruu->mFirstCseq);
    ClearElementPrefix();
    return written ? 1 : Fail({3, "<XML Module>: AddTempGruuElementToXml: Uri is a mandatory attribute"});
}
