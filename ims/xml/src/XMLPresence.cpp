#include "XMLPresence.h"

#include <iterator>

#include "Presence.h"

using PresenceNameSpace::ix_status;

namespace {

const char kSourceFile[] = "ims/xml/src/XMLPresence";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_OLD_UNMARSHALLER_INFO(XMLPresenceDecoder, "PresenceUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(PresenceMarshaller, AddPresenceElementToXml, ix_presence)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "PresenceMarshaller", "mPresenceXml");
    // Required: the text is announced as that of another marshaller.
    info.written = {2, kSchemaCode, __LINE__, "<XML Module>: IsComposingMarshaller XML %s"};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kRefused = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};
// Required: the event number is that of the tokenizer.
constexpr XmlLogText kWithoutEntity = {3, kDecoderCode, __LINE__,
                                       "PresenceMarshaller :: AddPresenceElementToXml: Entity is mandatory attribute"};
constexpr XmlLogText kTupleFailed = {2, kSchemaCode, __LINE__,
                                     "<XML Module>: PresenceMarshaller XML Failed at AddTupleElementToXml!"};
constexpr XmlLogText kStatusFailed = {2, kSchemaCode, __LINE__,
                                      "<XML Module>: PresenceMarshaller XML Failed at AddStatusElementToXml!"};
constexpr XmlLogText kServiceDescriptionFailed = {
    2, kSchemaCode, __LINE__, "<XML Module>: PresenceMarshaller XML Failed at AddServiceDescriptionElementToXml!"};
constexpr XmlLogText kServcapsFailed = {2, kSchemaCode, __LINE__,
                                        "<XML Module>: PresenceMarshaller XML Failed at AddServcapsElementToXml!"};
constexpr XmlLogText kContactFailed = {2, kSchemaCode, __LINE__,
                                       "<XML Module>: PresenceMarshaller XML Failed at AddContactElementToXml!"};
constexpr XmlLogText kNoteFailed = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: PresenceMarshaller XML Failed at AddNoteElementToXml!"};
constexpr XmlLogText kDuplexFailed = {2, kSchemaCode, __LINE__,
                                      "<XML Module>: PresenceMarshaller XML Failed at AddDuplexElementToXml!"};
constexpr XmlLogText kDuplexTypesFailed = {
    2, kSchemaCode, __LINE__, "<XML Module>: PresenceMarshaller XML Failed at AddDuplexTypesElementToXml!"};

constexpr XmlField kNoteFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_note::mText), 0, nullptr, "text"},
};
constexpr XmlFieldTable kNoteTable = {nullptr, kNoteFields, std::size(kNoteFields)};

constexpr XmlField kContactFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_contact::mValue), 0, nullptr, "text"},
    {XmlFieldKind::Text, IX_STR_PRIORITY, XmlTextMember(&ix_contact::mPriority)},
};
constexpr XmlFieldTable kContactTable = {nullptr, kContactFields, std::size(kContactFields)};

constexpr XmlField kStatusFields[] = {
    {XmlFieldKind::Enumeration, IX_STR_BASIC, XmlIntMember(&ix_status::mBasic), ix_status::kNotSet, &kPresenceBasics},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_status::mAnyElementList), 0, nullptr, "any"},
};
constexpr XmlFieldTable kStatusTable = {nullptr, kStatusFields, std::size(kStatusFields)};

constexpr XmlField kTupleFields[] = {
    {XmlFieldKind::Child, IX_STR_STATUS, IX_CHILD_MEMBER(ix_tuple, mStatus)},
    {XmlFieldKind::Child, IX_STR_CONTACT, IX_CHILD_MEMBER(ix_tuple, mContact)},
    {XmlFieldKind::Text, IX_STR_TIMESTAMP, XmlTextMember(&ix_tuple::mTimestamp)},
    {XmlFieldKind::ChildList, IX_STR_NOTE, XmlListMember(&ix_tuple::mNoteList)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_tuple::mAnyElementList), 0, nullptr, "any"},
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_tuple::mId)},
};
constexpr XmlFieldTable kTupleTable = {nullptr, kTupleFields, std::size(kTupleFields)};

constexpr XmlField kPresenceFields[] = {
    {XmlFieldKind::ChildList, IX_STR_TUPLE, XmlListMember(&ix_presence::mTupleList)},
    {XmlFieldKind::ChildList, IX_STR_NOTE, XmlListMember(&ix_presence::mNoteList)},
    {XmlFieldKind::Text, IX_STR_ENTITY, XmlTextMember(&ix_presence::mEntity)},
};
constexpr XmlFieldTable kPresenceTable = {nullptr, kPresenceFields, std::size(kPresenceFields)};

}  // namespace

ix_note::~ix_note() { XmlFields::Release(this, kNoteTable); }

const XmlFieldTable* ix_note::FieldTable() const { return &kNoteTable; }

int ix_note::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_NOTE)) return setTextValue(text);
    return child == nullptr ? 1 : 0;
}

ix_contact::~ix_contact() { XmlFields::Release(this, kContactTable); }

const XmlFieldTable* ix_contact::FieldTable() const { return &kContactTable; }

int ix_contact::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_CONTACT)) return setValueValue(text);
    return child == nullptr ? 1 : 0;
}

int ix_contact::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    return ixNameIs(attribute, IX_STR_PRIORITY) ? setPriorityValue(value) : 1;
}

ix_status::~ix_status() { XmlFields::Release(this, kStatusTable); }

const XmlFieldTable* ix_status::FieldTable() const { return &kStatusTable; }

int ix_status::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (child != nullptr) return addAnyElement(child);
    if (ixEndNameIs(name, IX_STR_BASIC)) return setBasicValue(kPresenceBasics.IndexOfPrefix(text));
    ixLog(kSourceFile, kRefused, name, text);
    return 1;
}

int ix_status::addAnyElement(XMLElement* element) { return ixAppend(mAnyElementList, element, kSourceFile, __LINE__); }

ix_tuple::~ix_tuple() { XmlFields::Release(this, kTupleTable); }

const XmlFieldTable* ix_tuple::FieldTable() const { return &kTupleTable; }

int ix_tuple::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_STATUS)) return ixTakeChild(mStatus, child);
    if (ixNameIs(name, IX_STR_CONTACT)) return ixTakeChild(mContact, child);
    if (ixNameIs(name, IX_STR_NOTE)) {
        return ixTakeInto<ix_note>(mNoteList, child, kSourceFile, __LINE__);
    }
    if (child != nullptr) return addAnyElement(child);
    if (ixNameIs(name, IX_STR_TIMESTAMP)) return 1;
    if (ixEndNameIs(name, IX_STR_TIMESTAMP)) return setTimestampValue(text);
    ixLog(kSourceFile, kRefused, name, text);
    return 1;
}

int ix_tuple::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    return ixNameIs(attribute, IX_STR_ID) ? setIdValue(value) : 1;
}

int ix_tuple::addNote(ix_note* note) { return ixAppend(mNoteList, note, kSourceFile, __LINE__); }

int ix_tuple::addAnyElement(XMLElement* element) { return ixAppend(mAnyElementList, element, kSourceFile, __LINE__); }

ix_presence::~ix_presence() { XmlFields::Release(this, kPresenceTable); }

const XmlFieldTable* ix_presence::FieldTable() const { return &kPresenceTable; }

int ix_presence::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_TUPLE)) {
        return ixTakeInto<ix_tuple>(mTupleList, child, kSourceFile, __LINE__);
    }
    if (ixNameIs(name, IX_STR_NOTE)) {
        return ixTakeInto<ix_note>(mNoteList, child, kSourceFile, __LINE__);
    }
    if (child != nullptr) return 0;
    ixLog(kSourceFile, kRefused, name, text);
    return 1;
}

int ix_presence::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    return ixNameIs(attribute, IX_STR_ENTITY) ? setEntityValue(value) : 1;
}

int ix_presence::addTuple(ix_tuple* tuple) { return ixAppend(mTupleList, tuple, kSourceFile, __LINE__); }

int ix_presence::addNote(ix_note* note) { return ixAppend(mNoteList, note, kSourceFile, __LINE__); }

XMLElement* PresenceDataBinder::CreateRootElement() { return IX_NEW(ix_presence); }

ix_tuple* PresenceDataBinder::CreateTupleElement() { return IX_NEW(ix_tuple); }

ix_status* PresenceDataBinder::CreateStatusElement() { return IX_NEW(ix_status); }

ix_contact* PresenceDataBinder::CreateContactElement() { return IX_NEW(ix_contact); }

ix_note* PresenceDataBinder::CreateNoteElement() { return IX_NEW(ix_note); }

ix_ns_oma_pres_service_description* PresenceDataBinder::CreateServiceDescriptionElement() {
    return IX_NEW(ix_ns_oma_pres_service_description);
}

ix_ns_caps_servcaps* PresenceDataBinder::CreateServcapsElement() { return IX_NEW(ix_ns_caps_servcaps); }

ix_ns_caps_duplextype* PresenceDataBinder::CreateDuplexElement() { return IX_NEW(ix_ns_caps_duplextype); }

ix_ns_caps_duplextypes* PresenceDataBinder::CreateDuplexTypesElement() { return IX_NEW(ix_ns_caps_duplextypes); }

ix_string* PresenceDataBinder::CreateStringElement() { return IX_NEW(ix_string); }

PresenceMarshaller::PresenceMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int PresenceMarshaller::AddPresenceElementToXml(ix_presence* presence) {
    if (presence == nullptr) return 0;
    StartElementOpen(IX_STR_PRESENCE);
    AddAttribute(IX_STR_XMLNS, ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_PIDF),
                 Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_OP,
                         ix_xml_common_array_definition::getStringName(IX_STR_URN_OMA_XML_PRS_PIDF_OMA_PRES),
                         Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_CAPS,
                         ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_PIDF_CAPS),
                         Attribute::Open);
    if (presence->mEntity == nullptr) {
        ixLog(kSourceFile, kWithoutEntity);
        return 0;
    }
    AddAttribute(IX_STR_ENTITY, presence->mEntity, Attribute::Closing);
    if (AddChildList(presence->mTupleList, IX_OLD_WRITER(PresenceMarshaller, AddTupleElementToXml, ix_tuple)) == 0) {
        return ReleaseAndFail(kTupleFailed);
    }
    if (AddChildList(presence->mNoteList, IX_OLD_WRITER(PresenceMarshaller, AddNoteElementToXml, ix_note)) == 0) {
        return ReleaseAndFail(kNoteFailed);
    }
    EndElement(IX_STR_PRESENCE);
    return 1;
}

int PresenceMarshaller::AddTupleElementToXml(ix_tuple* tuple) {
    if (tuple == nullptr) return 0;
    StartElementOpen(IX_STR_TUPLE);
    if (tuple->mId == nullptr) return 0;
    AddAttribute(IX_STR_ID, tuple->mId, Attribute::Closing);
    if (tuple->mStatus != nullptr && AddStatusElementToXml(tuple->mStatus) == 0) {
        return ReleaseAndFail(kStatusFailed);
    }
    if (AddChildList(tuple->mAnyElementList, IX_OLD_WRITER(PresenceMarshaller, AddAnyElementToXml, XMLElement)) == 0) {
        return 0;
    }
    if (tuple->mContact != nullptr && AddContactElementToXml(tuple->mContact) == 0) {
        return ReleaseAndFail(kContactFailed);
    }
    if (tuple->mTimestamp != nullptr) {
        // Required: the start tag is opened for attributes that never come, so it reads `<timestamp >`.
        StartElementOpen(IX_STR_TIMESTAMP);
        m_generator.ixXmlSetData(tuple->mTimestamp);
        EndElement(IX_STR_TIMESTAMP);
    }
    if (AddChildList(tuple->mNoteList, IX_OLD_WRITER(PresenceMarshaller, AddNoteElementToXml, ix_note)) == 0) {
        return ReleaseAndFail(kNoteFailed);
    }
    EndElement(IX_STR_TUPLE);
    return 1;
}

/// One of a tuple's other children; those of a class without a writer are passed over.
int PresenceMarshaller::AddAnyElementToXml(XMLElement* element) {
    if (ixIs<ix_ns_oma_pres_service_description>(element)) {
        const int result = AddServiceDescriptionElementToXml(static_cast<ix_ns_oma_pres_service_description*>(element));
        return result != 0 ? 1 : ReleaseAndFail(kServiceDescriptionFailed);
    }
    if (ixIs<ix_ns_caps_servcaps>(element)) {
        const int result = AddServcapsElementToXml(static_cast<ix_ns_caps_servcaps*>(element));
        return result != 0 ? 1 : ReleaseAndFail(kServcapsFailed);
    }
    return 1;
}

int PresenceMarshaller::AddStatusElementToXml(ix_status* element) {
    if (element == nullptr) return 0;
    StartElement(IX_STR_STATUS);
    AddTextElement(IX_STR_BASIC, kPresenceBasics.TextOf(element->mBasic));
    EndElement(IX_STR_STATUS);
    return 1;
}

int PresenceMarshaller::AddContactElementToXml(ix_contact* element) {
    if (element == nullptr) return 0;
    if (element->mPriority != nullptr) {
        StartElementOpen(IX_STR_CONTACT);
        AddAttribute(IX_STR_PRIORITY, element->mPriority, Attribute::Closing);
    } else {
        StartElement(IX_STR_CONTACT);
    }
    if (element->mValue != nullptr) m_generator.ixXmlSetData(element->mValue);
    EndElement(IX_STR_CONTACT);
    return 1;
}

int PresenceMarshaller::AddNoteElementToXml(ix_note* element) {
    if (element == nullptr) return 0;
    AddTextOrEmptyElement(IX_STR_NOTE, element->mText);
    return 1;
}

int PresenceMarshaller::AddServiceDescriptionElementToXml(ix_ns_oma_pres_service_description* element) {
    if (element == nullptr || SetFixedElementPrefix(IX_STR_OP) == 0) return 0;
    StartElement(IX_STR_SERVICE_DESCRIPTION);
    AddTextElement(IX_STR_SERVICE_ID, element->mServiceId);
    AddTextElement(IX_STR_VERSION, element->mVersion);
    AddTextElement(IX_STR_DESCRIPTION, element->mDescription);
    EndElement(IX_STR_SERVICE_DESCRIPTION);
    ClearElementPrefix();
    return 1;
}

int PresenceMarshaller::AddServcapsElementToXml(ix_ns_caps_servcaps* element) {
    if (element == nullptr || SetFixedElementPrefix(IX_STR_CAPS) == 0) return 0;
    StartElement(IX_STR_SERVCAPS);
    AddFlag(IX_STR_AUDIO, element->mAudio);
    if (element->mDuplex != nullptr) {
        if (AddDuplexElementToXml(element->mDuplex) == 0) return ReleaseAndFail(kDuplexFailed);
        if (SetFixedElementPrefix(IX_STR_CAPS) == 0) return 0;
    }
    AddFlag(IX_STR_VIDEO, element->mVideo);
    EndElement(IX_STR_SERVCAPS);
    ClearElementPrefix();
    return 1;
}

int PresenceMarshaller::AddDuplexElementToXml(ix_ns_caps_duplextype* element) {
    if (element == nullptr || SetFixedElementPrefix(IX_STR_CAPS) == 0) return 0;
    StartElement(IX_STR_DUPLEX);
    if (AddSupport(IX_STR_SUPPORTED, element->mSupported) == 0) return 0;
    if (AddSupport(IX_STR_NOTSUPPORTED, element->mNotsupported) == 0) return 0;
    EndElement(IX_STR_DUPLEX);
    ClearElementPrefix();
    return 1;
}

int PresenceMarshaller::AddDuplexTypesElementToXml(ix_ns_caps_duplextypes* element) {
    if (element == nullptr || SetFixedElementPrefix(IX_STR_CAPS) == 0) return 0;
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
    if (AddDuplexTypesElementToXml(element) == 0) return ReleaseAndFail(kDuplexTypesFailed);
    if (SetFixedElementPrefix(IX_STR_CAPS) == 0) return 0;
    EndElement(name);
    return 1;
}

void PresenceMarshaller::AddFlag(e_XmlStrRef name, int flag) {
    if (flag != 0 && flag != 1) return;
    AddTextElement(name, ix_xml_common_array_definition::getStringName(flag == 1 ? IX_STR_TRUE : IX_STR_FALSE));
}

void PresenceMarshaller::AddKind(e_XmlStrRef name, const ix_string* kind) {
    if (kind != nullptr) AddTextOrEmptyElement(name, kind->mValue);
}

IX_OLD_FAMILY(PresenceContext, PresenceMarshaller, PresenceUnMarshaller, PresenceDataBinder);
