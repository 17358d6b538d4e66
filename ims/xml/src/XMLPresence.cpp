#include "XMLPresence.h"

#include "Presence.h"

using PresenceNameSpace::ix_status;

namespace {

using namespace XmlRow;

constexpr XmlField kNoteFields[] = {
    OwnText<&ix_note::mText>(),
};

constexpr XmlField kContactFields[] = {
    Attribute<&ix_contact::mPriority>(IX_STR_PRIORITY),
    OwnText<&ix_contact::mValue>(),
};

constexpr XmlField kStatusFields[] = {
    Element<&ix_status::mBasic>(IX_STR_BASIC, kPresenceBasics),
    Others<&ix_status::mAnyElementList>(),
};

constexpr XmlNamedClass kTupleExtensions[] = {
    {IX_STR_SERVICE_DESCRIPTION, &ix_ns_oma_pres_service_description::kClass, XmlNamespace::OmaPresence},
    {IX_STR_SERVCAPS, &ix_ns_caps_servcaps::kClass, XmlNamespace::Caps},
    {kXmlNameWillingness, &ix_ns_oma_pres_willingness::kClass, XmlNamespace::OmaPresence},
    {kXmlNameSessionParticipation, &ix_ns_oma_pres_session_participation::kClass, XmlNamespace::OmaPresence},
    {kXmlNameOverridingWillingness, &ix_ns_oma_pres_overriding_willingness::kClass, XmlNamespace::OmaPresence},
    {kXmlNameRegistrationState, &ix_ns_oma_pres_registration_state::kClass, XmlNamespace::OmaPresence},
    {kXmlNameBarringState, &ix_ns_oma_pres_barring_state::kClass, XmlNamespace::OmaPresence},
};
constexpr XmlField kTupleFields[] = {
    Attribute<&ix_tuple::mId>(IX_STR_ID).Mandatory(),     Child<&ix_tuple::mStatus>(IX_STR_STATUS).Mandatory(),
    Others<&ix_tuple::mAnyElementList>(kTupleExtensions), Child<&ix_tuple::mContact>(IX_STR_CONTACT),
    Children<&ix_tuple::mNoteList, ix_note>(IX_STR_NOTE), Element<&ix_tuple::mTimestamp>(IX_STR_TIMESTAMP),
};

constexpr XmlField kPresenceFields[] = {
    Attribute<&ix_presence::mEntity>(IX_STR_ENTITY).Mandatory(),
    Children<&ix_presence::mTupleList, ix_tuple>(IX_STR_TUPLE),
    Children<&ix_presence::mNoteList, ix_note>(IX_STR_NOTE),
};

constexpr XmlAnswers Answers(bool startsAreUnknown) {
    XmlAnswers answers;
    answers.startsAreUnknown = startsAreUnknown;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}
constexpr XmlAnswers kAnswers = Answers(false);
constexpr XmlAnswers kStatusAnswers = Answers(true);

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLPresenceDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in PresenceUnMarshaller::UnMarshall"});

constexpr XmlMarshallTexts Texts() {
    XmlMarshallTexts texts = IX_MARSHALL_TEXTS("PresenceMarshaller", "mPresenceXml");
    // Required: the text is announced as that of another marshaller.
    texts.written = {2, "<XML Module>: IsComposingMarshaller XML %s"};
    return texts;
}

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&PresenceMarshaller::AddPresenceElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo = ixMarshallerInfo(kSource, kWriters, Texts());

}  // namespace

constexpr XmlClass ix_note::kClass = ixClass<ix_note>("ix_note", "Note", kSource, kNoteFields).Of(IX_STR_NOTE);
constexpr XmlClass ix_contact::kClass =
    ixClass<ix_contact>("ix_contact", "Contact", kSource, kContactFields).Of(IX_STR_CONTACT);
constexpr XmlClass ix_status::kClass =
    ixClass<ix_status>("ix_status", "Status", kSource, kStatusFields, kStatusAnswers);
constexpr XmlClass ix_tuple::kClass = ixClass<ix_tuple>("ix_tuple", "Tuple", kSource, kTupleFields, kAnswers);
constexpr XmlClass ix_presence::kClass =
    ixClass<ix_presence>("ix_presence", "Presence", kSource, kPresenceFields, kAnswers);

XMLElement* PresenceDataBinder::CreateRootElement() { return ixNew<ix_presence>(kSource); }
ix_tuple* PresenceDataBinder::CreateTupleElement() { return ixNew<ix_tuple>(kSource); }
ix_status* PresenceDataBinder::CreateStatusElement() { return ixNew<ix_status>(kSource); }
ix_contact* PresenceDataBinder::CreateContactElement() { return ixNew<ix_contact>(kSource); }
ix_note* PresenceDataBinder::CreateNoteElement() { return ixNew<ix_note>(kSource); }
ix_ns_oma_pres_service_description* PresenceDataBinder::CreateServiceDescriptionElement() {
    return ixNew<ix_ns_oma_pres_service_description>(kSource);
}
ix_ns_caps_servcaps* PresenceDataBinder::CreateServcapsElement() { return ixNew<ix_ns_caps_servcaps>(kSource); }
ix_ns_caps_duplextype* PresenceDataBinder::CreateDuplexElement() { return ixNew<ix_ns_caps_duplextype>(kSource); }
ix_ns_caps_duplextypes* PresenceDataBinder::CreateDuplexTypesElement() {
    return ixNew<ix_ns_caps_duplextypes>(kSource);
}
ix_string* PresenceDataBinder::CreateStringElement() { return ixNew<ix_string>(kSource); }

PresenceUnMarshaller::PresenceUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

PresenceMarshaller::PresenceMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

PresenceContext::PresenceContext()
    : XmlFamilyContext(ixFamily<PresenceMarshaller, PresenceUnMarshaller, PresenceDataBinder>(kSource)) {}

int PresenceMarshaller::AddPresenceElementToXml(ix_presence* presence) {
    if (!Enter(presence, {2, "<XML Module>: AddPresenceElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_PRESENCE);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_PIDF);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_OP, IX_STR_URN_OMA_XML_PRS_PIDF_OMA_PRES);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_CAPS, IX_STR_URN_IETF_PARAMS_XML_NS_PIDF_CAPS);
    if (presence->mEntity == nullptr) {
        tag.LeaveOpen();
        // Required: the event number is that of the tokenizer.
        return Fail({3, kDecoderCode, __LINE__,
                     "PresenceMarshaller :: AddPresenceElementToXml: Entity is mandatory attribute"});
    }
    tag.Add(IX_STR_ENTITY, presence->mEntity);
    tag.Close();
    if (!AddChildren<&PresenceMarshaller::AddTupleElementToXml>(presence->mTupleList)) {
        return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddTupleElementToXml!"});
    }
    if (!AddNotes(presence->mNoteList)) return 0;
    EndElement(IX_STR_PRESENCE);
    return 1;
}

int PresenceMarshaller::AddTupleElementToXml(ix_tuple* tuple) {
    if (!Enter(tuple, {2, "<XML Module>: AddTupleElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_TUPLE);
    if (tuple->mId == nullptr) {
        tag.LeaveOpen();
        return 0;
    }
    tag.Add(IX_STR_ID, tuple->mId);
    tag.Close();
    if (tuple->mStatus != nullptr && !AddStatusElementToXml(tuple->mStatus)) {
        return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddStatusElementToXml!"});
    }
    for (auto* const extension : XmlEntries<XMLElement>(tuple->mAnyElementList)) {
        if (!AddExtension(extension)) return 0;
    }
    if (tuple->mContact != nullptr && !AddContactElementToXml(tuple->mContact)) {
        return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddContactElementToXml!"});
    }
    if (tuple->mTimestamp != nullptr) {
        // Required: the start tag is opened for attributes that never come, so it reads `<timestamp >`.
        XmlStartTag(*this, IX_STR_TIMESTAMP).LeaveOpen();
        m_generator.ixXmlSetData(tuple->mTimestamp);
        EndElement(IX_STR_TIMESTAMP);
    }
    if (!AddNotes(tuple->mNoteList)) return 0;
    EndElement(IX_STR_TUPLE);
    return 1;
}

int PresenceMarshaller::AddNotes(const IxSingleElementList* notes) {
    if (AddChildren<&PresenceMarshaller::AddNoteElementToXml>(notes)) return 1;
    return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddNoteElementToXml!"});
}

/// One of a tuple's other children; those of a class without a writer are passed over.
int PresenceMarshaller::AddExtension(XMLElement* element) {
    auto* const description = ixAs<ix_ns_oma_pres_service_description>(element);
    if (description != nullptr && !AddServiceDescriptionElementToXml(description)) {
        return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddServiceDescriptionElementToXml!"});
    }
    auto* const servcaps = ixAs<ix_ns_caps_servcaps>(element);
    if (servcaps != nullptr && !AddServcapsElementToXml(servcaps)) {
        return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddServcapsElementToXml!"});
    }
    return 1;
}

int PresenceMarshaller::AddStatusElementToXml(ix_status* element) {
    if (!Enter(element, {2, "<XML Module>: AddStatusElementToXml"})) return 0;
    StartElement(IX_STR_STATUS);
    AddTextElement(IX_STR_BASIC, kPresenceBasics.TextOf(element->mBasic));
    EndElement(IX_STR_STATUS);
    return 1;
}

int PresenceMarshaller::AddContactElementToXml(ix_contact* element) {
    if (!Enter(element, {2, "<XML Module>: AddContactElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_CONTACT);
    tag.Add(IX_STR_PRIORITY, element->mPriority);
    tag.Close();
    if (element->mValue != nullptr) m_generator.ixXmlSetData(element->mValue);
    EndElement(IX_STR_CONTACT);
    return 1;
}

int PresenceMarshaller::AddNoteElementToXml(ix_note* element) {
    if (!Enter(element, {2, "<XML Module>: AddNoteElementToXml"})) return 0;
    AddTextOrEmptyElement(IX_STR_NOTE, element->mText);
    return 1;
}

int PresenceMarshaller::AddServiceDescriptionElementToXml(ix_ns_oma_pres_service_description* element) {
    if (!Enter(element, {2, "<XML Module>: AddServiceDescriptionElementToXml"})) return 0;
    if (!SetFixedElementPrefix(IX_STR_OP)) return 0;
    StartElement(IX_STR_SERVICE_DESCRIPTION);
    AddTextElement(IX_STR_SERVICE_ID, element->mServiceId);
    AddTextElement(IX_STR_VERSION, element->mVersion);
    AddTextElement(IX_STR_DESCRIPTION, element->mDescription);
    EndElement(IX_STR_SERVICE_DESCRIPTION);
    ClearElementPrefix();
    return 1;
}

int PresenceMarshaller::AddServcapsElementToXml(ix_ns_caps_servcaps* element) {
    if (!Enter(element, {2, "<XML Module>: AddServcapsElementToXml"})) return 0;
    if (!SetFixedElementPrefix(IX_STR_CAPS)) return 0;
    StartElement(IX_STR_SERVCAPS);
    AddFlag(IX_STR_AUDIO, element->mAudio);
    if (element->mDuplex != nullptr) {
        if (!AddDuplexElementToXml(element->mDuplex)) {
            return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddDuplexElementToXml!"});
        }
        if (!SetFixedElementPrefix(IX_STR_CAPS)) return 0;
    }
    AddFlag(IX_STR_VIDEO, element->mVideo);
    EndElement(IX_STR_SERVCAPS);
    ClearElementPrefix();
    return 1;
}

int PresenceMarshaller::AddDuplexElementToXml(ix_ns_caps_duplextype* element) {
    if (!Enter(element, {2, "<XML Module>: AddDuplexElementToXml"})) return 0;
    if (!SetFixedElementPrefix(IX_STR_CAPS)) return 0;
    StartElement(IX_STR_DUPLEX);
    if (!AddSupport(IX_STR_SUPPORTED, element->mSupported)) return 0;
    if (!AddSupport(IX_STR_NOTSUPPORTED, element->mNotsupported)) return 0;
    EndElement(IX_STR_DUPLEX);
    ClearElementPrefix();
    return 1;
}

int PresenceMarshaller::AddDuplexTypesElementToXml(ix_ns_caps_duplextypes* element) {
    if (!Enter(element, {2, "<XML Module>: AddDuplexTypesElementToXml"})) return 0;
    if (!SetFixedElementPrefix(IX_STR_CAPS)) return 0;
    AddKind(IX_STR_FULL, element->mFull);
    AddKind(IX_STR_HALF, element->mHalf);
    AddKind(IX_STR_RECEIVE_ONLY, element->mReceiveOnly);
    AddKind(IX_STR_SEND_ONLY, element->mSendOnly);
    ClearElementPrefix();
    return 1;
}

/// `supported` or `notsupported`, if there is one. The prefix is set before and after.
int PresenceMarshaller::AddSupport(e_XmlStrRef name, ix_ns_caps_duplextypes* element) {
    if (element == nullptr) return 1;
    StartElement(name);
    if (!AddDuplexTypesElementToXml(element)) {
        return ReleaseAndFail({2, "<XML Module>: PresenceMarshaller XML Failed at AddDuplexTypesElementToXml!"});
    }
    if (!SetFixedElementPrefix(IX_STR_CAPS)) return 0;
    EndElement(name);
    return 1;
}

void PresenceMarshaller::AddFlag(e_XmlStrRef name, int flag) {
    if (flag == 0 || flag == 1) AddTextElement(name, ixString(flag == 1 ? IX_STR_TRUE : IX_STR_FALSE));
}

void PresenceMarshaller::AddKind(e_XmlStrRef name, const ix_string* kind) {
    if (kind != nullptr) AddTextOrEmptyElement(name, kind->mValue);
}
