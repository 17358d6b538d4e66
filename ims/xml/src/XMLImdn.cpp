#include "XMLImdn.h"

#include <iterator>

#include "Imdn.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLImdn";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_OLD_UNMARSHALLER_INFO(XMLImdnDecoder, "IMDNUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(IMDNMarshaller, AddIMDNElementToXml, ix_imdn)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.entered = {3, kSchemaCode, __LINE__, "<XML Module>: IMDNMarshaller :: Marshall"};
    info.deleting = {3, kSchemaCode, __LINE__, "<XML Module>: IMDNMarshaller :: Marshall: Deleting mIMDNXml"};
    info.written = {2, kSchemaCode, __LINE__, "<XML Module>: Marshall XML %s"};
    info.failed = {2, kSchemaCode, __LINE__, "<XML Module>: Marshall XML Failed!"};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kUnknownElement = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};
constexpr XmlLogText kAddImdn = {2, kSchemaCode, __LINE__, "<XML Module>: AddIMDNElementToXml"};
constexpr XmlLogText kAddDelivery = {2, kSchemaCode, __LINE__, "<XML Module>: AddDeliverNotificationElementToXml"};
constexpr XmlLogText kAddDisplay = {2, kSchemaCode, __LINE__, "<XML Module>: AddDisplayNotificationElementToXml"};
constexpr XmlLogText kAddProcessing = {2, kSchemaCode, __LINE__, "<XML Module>: AddProcessingNotificationElementToXml"};
constexpr XmlLogText kAddNotification = {2, kSchemaCode, __LINE__, "<XML Module>: AddNotificationXML"};
constexpr XmlLogText kDeliveryFailed = {3, kSchemaCode, __LINE__,
                                        "<XML Module>: AddIMDNElementToXml, failed to add Delivery Notification."};
constexpr XmlLogText kDisplayFailed = {3, kSchemaCode, __LINE__,
                                       "<XML Module>: AddIMDNElementToXml, failed to add Display Notification."};
constexpr XmlLogText kProcessingFailed = {3, kSchemaCode, __LINE__,
                                          "<XML Module>: AddIMDNElementToXml, failed to add Processing Notification."};

constexpr XmlField kStatusFields[] = {
    {XmlFieldKind::Presence, IX_STR_DELIVERED, IX_CHILD_MEMBER(ix_status, mDelivered)},
    {XmlFieldKind::Presence, IX_STR_FAILED, IX_CHILD_MEMBER(ix_status, mFailed)},
    {XmlFieldKind::Presence, IX_STR_DISPLAYED, IX_CHILD_MEMBER(ix_status, mDisplayed)},
    {XmlFieldKind::Presence, IX_STR_PROCESSED, IX_CHILD_MEMBER(ix_status, mProcessed)},
    {XmlFieldKind::Presence, IX_STR_STORED, IX_CHILD_MEMBER(ix_status, mStored)},
    {XmlFieldKind::Presence, IX_STR_FORBIDDEN, IX_CHILD_MEMBER(ix_status, mForbidden)},
    {XmlFieldKind::Presence, IX_STR_ERROR, IX_CHILD_MEMBER(ix_status, mError)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_status::mAnyElementList), 0, nullptr, "any"},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_status::mAnyAttributeList), 0, nullptr,
     "attributes"},
};
constexpr XmlFieldTable kStatusTable = {nullptr, kStatusFields, std::size(kStatusFields)};

constexpr XmlField kNotificationFields[] = {
    {XmlFieldKind::Child, IX_STR_STATUS, IX_CHILD_MEMBER(ix_notificationType, mStatus)},
};
constexpr XmlFieldTable kNotificationTable = {nullptr, kNotificationFields, std::size(kNotificationFields)};

constexpr XmlField kImdnFields[] = {
    {XmlFieldKind::Text, IX_STR_MESSAGE_ID, XmlTextMember(&ix_imdn::mMessageId)},
    {XmlFieldKind::Text, IX_STR_DATETIME, XmlTextMember(&ix_imdn::mDatetime)},
    {XmlFieldKind::Text, IX_STR_RECIPIENT_URI, XmlTextMember(&ix_imdn::mRecipientUri)},
    {XmlFieldKind::Text, IX_STR_ORIGINAL_RECIPIENT_URI, XmlTextMember(&ix_imdn::mOriginalRecipientUri)},
    {XmlFieldKind::Text, IX_STR_SUBJECT, XmlTextMember(&ix_imdn::mSubject)},
    {XmlFieldKind::Child, IX_STR_DELIVERY_NOTIFICATION, IX_CHILD_MEMBER(ix_imdn, mDeliveryNotification)},
    {XmlFieldKind::Child, IX_STR_DISPLAY_NOTIFICATION, IX_CHILD_MEMBER(ix_imdn, mDisplayNotification)},
    {XmlFieldKind::Child, IX_STR_IX_NULL, IX_CHILD_MEMBER(ix_imdn, mProcessingNotification), 0, nullptr,
     kProcessingNotificationElement},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_imdn::mAnyElementList), 0, nullptr, "any"},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_imdn::mAnyAttributeList), 0, nullptr, "attributes"},
};
constexpr XmlFieldTable kImdnTable = {nullptr, kImdnFields, std::size(kImdnFields)};

constexpr e_XmlStrRef kTexts[] = {IX_STR_MESSAGE_ID, IX_STR_DATETIME, IX_STR_RECIPIENT_URI,
                                  IX_STR_ORIGINAL_RECIPIENT_URI, IX_STR_SUBJECT};

/// The values that each notification may have, in order of preference.
constexpr e_XmlStrRef kDeliveryValues[] = {IX_STR_DELIVERED, IX_STR_FAILED, IX_STR_FORBIDDEN, IX_STR_ERROR};
constexpr e_XmlStrRef kDisplayValues[] = {IX_STR_DISPLAYED, IX_STR_FORBIDDEN, IX_STR_ERROR};
constexpr e_XmlStrRef kProcessingValues[] = {IX_STR_PROCESSED, IX_STR_STORED, IX_STR_FORBIDDEN, IX_STR_ERROR};

/// The field of a status value; NULL for any other name.
const XmlField* FindStatusValue(e_XmlStrRef name) {
    for (const XmlField& field : kStatusFields) {
        if (field.kind == XmlFieldKind::Presence && field.name == name) return &field;
    }
    return nullptr;
}

bool IsNotification(e_XmlStrRef name) {
    return name == IX_STR_DELIVERY_NOTIFICATION || name == IX_STR_DISPLAY_NOTIFICATION ||
           name == IX_STR_PROESSING_NOTIFICATION;
}

}  // namespace

ix_status::~ix_status() { XmlFields::Release(this, kStatusTable); }

const XmlFieldTable* ix_status::FieldTable() const { return &kStatusTable; }

int ix_status::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* child) {
    if (child == nullptr) return 1;
    if (ixTakeChild(mDelivered, child) != 0) return 1;
    if (ixTakeChild(mFailed, child) != 0) return 1;
    if (ixTakeChild(mDisplayed, child) != 0) return 1;
    if (ixTakeChild(mProcessed, child) != 0) return 1;
    if (ixTakeChild(mStored, child) != 0) return 1;
    if (ixTakeChild(mForbidden, child) != 0) return 1;
    if (ixTakeChild(mError, child) != 0) return 1;
    return addAnyElement(child);
}

int ix_status::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* pair) {
    ix_AttributeValuePair* const attribute = ixAsPair(pair);
    return attribute != nullptr ? addAnyAttribute(attribute) : 1;
}

int ix_status::addAnyElement(XMLElement* element) { return ixAppend(mAnyElementList, element, kSourceFile, __LINE__); }

int ix_status::addAnyAttribute(ix_AttributeValuePair* pair) {
    return ixAppend(mAnyAttributeList, pair, kSourceFile, __LINE__);
}

ix_notificationType::~ix_notificationType() { XmlFields::Release(this, kNotificationTable); }

const XmlFieldTable* ix_notificationType::FieldTable() const { return &kNotificationTable; }

int ix_notificationType::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_STATUS)) return ixTakeChild(mStatus, child);
    return 1;
}

ix_imdn::~ix_imdn() { XmlFields::Release(this, kImdnTable); }

const XmlFieldTable* ix_imdn::FieldTable() const { return &kImdnTable; }

int ix_imdn::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_MESSAGE_ID)) return setMessageIdValue(text);
    if (ixEndNameIs(name, IX_STR_DATETIME)) return setDatetimeValue(text);
    if (ixEndNameIs(name, IX_STR_RECIPIENT_URI)) return setRecipientUriValue(text);
    if (ixEndNameIs(name, IX_STR_ORIGINAL_RECIPIENT_URI)) return setOriginalRecipientUriValue(text);
    if (ixEndNameIs(name, IX_STR_SUBJECT)) return setSubjectValue(text);
    if (ixNameIs(name, IX_STR_DELIVERY_NOTIFICATION)) return ixTakeChild(mDeliveryNotification, child);
    if (ixNameIs(name, IX_STR_DISPLAY_NOTIFICATION)) return ixTakeChild(mDisplayNotification, child);
    if (ixNameIs(name, kProcessingNotificationElement)) {
        return ixTakeChild(mProcessingNotification, child);
    }
    if (child != nullptr) return addAnyElement(child);
    // Start tags of the texts say nothing yet.
    for (const e_XmlStrRef known : kTexts) {
        if (ixNameIs(name, known)) return 1;
    }
    ixLog(kSourceFile, kUnknownElement, name, text);
    return 1;
}

int ix_imdn::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* pair) {
    ix_AttributeValuePair* const attribute = ixAsPair(pair);
    return attribute != nullptr ? addAnyAttribute(attribute) : 1;
}

int ix_imdn::addAnyElement(XMLElement* element) { return ixAppend(mAnyElementList, element, kSourceFile, __LINE__); }

int ix_imdn::addAnyAttribute(ix_AttributeValuePair* pair) {
    return ixAppend(mAnyAttributeList, pair, kSourceFile, __LINE__);
}

XMLElement* IMDNDataBinder::CreateRootElement() { return IX_NEW(ix_imdn); }

ix_delivery_notification* IMDNDataBinder::CreateDeliverNotification() { return IX_NEW(ix_delivery_notification); }

ix_display_notification* IMDNDataBinder::CreateDisplayNotification() { return IX_NEW(ix_display_notification); }

ix_processing_notification* IMDNDataBinder::CreateProcesssingNotification() {
    return IX_NEW(ix_processing_notification);
}

ix_status* IMDNDataBinder::CreateStatus() { return IX_NEW(ix_status); }

ix_delivered* IMDNDataBinder::CreateDeliveredElement() { return IX_NEW(ix_delivered); }

ix_failed* IMDNDataBinder::CreateFailedElement() { return IX_NEW(ix_failed); }

ix_displayed* IMDNDataBinder::CreateDisplayedElement() { return IX_NEW(ix_displayed); }

ix_processed* IMDNDataBinder::CreateProcessedElement() { return IX_NEW(ix_processed); }

ix_stored* IMDNDataBinder::CreateStoredElement() { return IX_NEW(ix_stored); }

ix_forbidden* IMDNDataBinder::CreateForbiddenElement() { return IX_NEW(ix_forbidden); }

ix_error* IMDNDataBinder::CreateErrorElement() { return IX_NEW(ix_error); }

IMDNMarshaller::IMDNMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int IMDNMarshaller::AddIMDNElementToXml(ix_imdn* element) {
    ixLog(kSourceFile, kAddImdn);
    if (element == nullptr) return 0;
    const IxSingleElementList* const attributes = element->mAnyAttributeList;
    StartElementOpen(IX_STR_IMDN);
    AddAttribute(IX_STR_XMLNS, ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_IMDN),
                 ixNodesOf(attributes) != nullptr ? Attribute::Open : Attribute::Closing);
    EndStartTag(attributes);
    AddTextElement(IX_STR_MESSAGE_ID, element->mMessageId);
    AddTextElement(IX_STR_DATETIME, element->mDatetime);
    AddTextElement(IX_STR_RECIPIENT_URI, element->mRecipientUri);
    AddTextElement(IX_STR_ORIGINAL_RECIPIENT_URI, element->mOriginalRecipientUri);
    AddTextElement(IX_STR_SUBJECT, element->mSubject);
    if (element->mDeliveryNotification != nullptr) {
        if (AddDeliverNotificationElementToXml(element->mDeliveryNotification) == 0) {
            ixLog(kSourceFile, kDeliveryFailed);
        }
    } else if (element->mDisplayNotification != nullptr) {
        if (AddDisplayNotificationElementToXml(element->mDisplayNotification) == 0) ixLog(kSourceFile, kDisplayFailed);
    } else if (element->mProcessingNotification != nullptr) {
        if (AddProcessingNotificationElementToXml(element->mProcessingNotification) == 0) {
            ixLog(kSourceFile, kProcessingFailed);
        }
    }
    EndElement(IX_STR_IMDN);
    return 1;
}

int IMDNMarshaller::AddDeliverNotificationElementToXml(ix_delivery_notification* notification) {
    ixLog(kSourceFile, kAddDelivery);
    return AddNotification(IX_STR_DELIVERY_NOTIFICATION, notification, kDeliveryValues, std::size(kDeliveryValues));
}

int IMDNMarshaller::AddDisplayNotificationElementToXml(ix_display_notification* notification) {
    ixLog(kSourceFile, kAddDisplay);
    return AddNotification(IX_STR_DISPLAY_NOTIFICATION, notification, kDisplayValues, std::size(kDisplayValues));
}

int IMDNMarshaller::AddProcessingNotificationElementToXml(ix_processing_notification* notification) {
    ixLog(kSourceFile, kAddProcessing);
    return AddNotification(IX_STR_PROESSING_NOTIFICATION, notification, kProcessingValues,
                           std::size(kProcessingValues));
}

/// Writes the first of `values` that the status of `notification` has. @return 1, or 0 without one.
int IMDNMarshaller::AddNotification(e_XmlStrRef name, const ix_notificationType* notification,
                                    const e_XmlStrRef* values, std::size_t count) {
    const ix_status* const status = notification != nullptr ? notification->mStatus : nullptr;
    if (status == nullptr) return 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (XmlFields::IsSet(*status, *FindStatusValue(values[i]))) {
            return AddNotificationXML(name, values[i], status->mAnyAttributeList);
        }
    }
    return 0;
}

int IMDNMarshaller::AddNotificationXML(e_XmlStrRef notification, e_XmlStrRef statusValue,
                                       IxSingleElementList* statusAttributes) {
    ixLog(kSourceFile, kAddNotification);
    if (!IsNotification(notification) || FindStatusValue(statusValue) == nullptr) return 0;
    StartElement(notification);
    if (ixNodesOf(statusAttributes) != nullptr) {
        StartElementOpen(IX_STR_STATUS);
        EndStartTag(statusAttributes);
    } else {
        StartElement(IX_STR_STATUS);
    }
    m_generator.ixStartElementSelfEnding(ix_xml_common_array_definition::getStringName(statusValue));
    EndElement(IX_STR_STATUS);
    EndElement(notification);
    return 1;
}

/// The last attribute closes the start tag. An entry without a name writes and closes nothing, so the tag is closed
/// here if it still is open.
void IMDNMarshaller::EndStartTag(const IxSingleElementList* attributes) {
    AddAttributeList(attributes, Attribute::Closing);
    m_generator.ixXmlSetData("");
}

IX_OLD_FAMILY(IMDNContext, IMDNMarshaller, IMDNUnMarshaller, IMDNDataBinder);
