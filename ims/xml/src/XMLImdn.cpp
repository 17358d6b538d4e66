#include "XMLImdn.h"

#include "Imdn.h"
#include "XmlFields.h"

namespace {

using namespace XmlRow;

constexpr XmlField kStatusFields[] = {
    Attributes<&ix_status::mAnyAttributeList>(),     Child<&ix_status::mDelivered>(IX_STR_DELIVERED),
    Child<&ix_status::mFailed>(IX_STR_FAILED),       Child<&ix_status::mDisplayed>(IX_STR_DISPLAYED),
    Child<&ix_status::mProcessed>(IX_STR_PROCESSED), Child<&ix_status::mStored>(IX_STR_STORED),
    Child<&ix_status::mForbidden>(IX_STR_FORBIDDEN), Child<&ix_status::mError>(IX_STR_ERROR),
    Others<&ix_status::mAnyElementList>(),
};

constexpr XmlField kNotificationFields[] = {
    Child<&ix_notificationType::mStatus>(IX_STR_STATUS).Mandatory(),
};

/// An element where nobody expects it is not refused, so that what is in it stays out of the tree, too.
constexpr XmlAnswers NotificationAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}

constexpr XmlField kImdnFields[] = {
    // The marshaller writes the namespace itself.
    Dropped(IX_STR_XMLNS),
    Attributes<&ix_imdn::mAnyAttributeList>(),
    Element<&ix_imdn::mMessageId>(IX_STR_MESSAGE_ID).Mandatory(),
    Element<&ix_imdn::mDatetime>(IX_STR_DATETIME).Mandatory(),
    Element<&ix_imdn::mRecipientUri>(IX_STR_RECIPIENT_URI),
    Element<&ix_imdn::mOriginalRecipientUri>(IX_STR_ORIGINAL_RECIPIENT_URI),
    Element<&ix_imdn::mSubject>(IX_STR_SUBJECT),
    Child<&ix_imdn::mDeliveryNotification>(IX_STR_DELIVERY_NOTIFICATION),
    Child<&ix_imdn::mDisplayNotification>(IX_STR_DISPLAY_NOTIFICATION),
    Child<&ix_imdn::mProcessingNotification>(kXmlNameProcessingNotification),
    Others<&ix_imdn::mAnyElementList>(),
};

constexpr XmlAnswers ImdnAnswers() {
    XmlAnswers answers;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}

/// The row of a status value; NULL for any other name.
const XmlField* StatusValue(e_XmlStrRef name) {
    for (const XmlField& row : kStatusFields) {
        if (row.role == XmlRole::Child && row.name == name) return &row;
    }
    return nullptr;
}

/// One of the seven values of a status.
template <class Value>
constexpr XmlClass ValueClass(const char* name, const char* type) {
    return ixDerived(ixClass<Value>(name, type, kSource), ix_empty_element_type::kClass);
}

template <class Notification>
constexpr XmlClass NotificationClass(const char* name, const char* type) {
    return ixDerived(ixClass<Notification>(name, type, kSource, NotificationAnswers()), ix_notificationType::kClass);
}

constexpr XmlUnMarshallerInfo kUnMarshallerInfo =
    ixUnMarshallerInfo<XMLImdnDecoder>(kSource, {4, "<XML Module>: StrDup failed in IMDNUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&IMDNMarshaller::AddIMDNElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters,
                     {{3, "<XML Module>: IMDNMarshaller :: Marshall"},
                      {3, "<XML Module>: IMDNMarshaller :: Marshall: Deleting mIMDNXml"},
                      {2, "<XML Module>: Marshall XML %s"},
                      {2, "<XML Module>: Marshall XML Failed!"}});

}  // namespace

constexpr XmlClass ix_delivered::kClass = ValueClass<ix_delivered>("ix_delivered", "Delivered");
constexpr XmlClass ix_failed::kClass = ValueClass<ix_failed>("ix_failed", "Failed");
constexpr XmlClass ix_displayed::kClass = ValueClass<ix_displayed>("ix_displayed", "Displayed");
constexpr XmlClass ix_processed::kClass = ValueClass<ix_processed>("ix_processed", "Processed");
constexpr XmlClass ix_stored::kClass = ValueClass<ix_stored>("ix_stored", "Stored");
constexpr XmlClass ix_forbidden::kClass = ValueClass<ix_forbidden>("ix_forbidden", "Forbidden");
constexpr XmlClass ix_error::kClass = ValueClass<ix_error>("ix_error", "Error");
constexpr XmlClass ix_status::kClass = ixClass<ix_status>("ix_status", "Status", kSource, kStatusFields);
constexpr XmlClass ix_notificationType::kClass = ixClass<ix_notificationType>(
    "ix_notificationType", "NotificationType", kSource, kNotificationFields, NotificationAnswers());
constexpr XmlClass ix_delivery_notification::kClass =
    NotificationClass<ix_delivery_notification>("ix_delivery_notification", "DeliveryNotification");
constexpr XmlClass ix_display_notification::kClass =
    NotificationClass<ix_display_notification>("ix_display_notification", "DisplayNotification");
constexpr XmlClass ix_processing_notification::kClass =
    NotificationClass<ix_processing_notification>("ix_processing_notification", "ProcessingNotification");
constexpr XmlClass ix_imdn::kClass = ixClass<ix_imdn>("ix_imdn", "Imdn", kSource, kImdnFields, ImdnAnswers());

int ix_status::ProcessUnMarshall(char* /*name*/, char* text, XMLElement* child) {
    // Required: the class of an object says which value it is, whatever name it comes under.
    XmlTag tag(nullptr);
    for (const XmlField& row : kStatusFields) {
        if (row.role == XmlRole::Child && ixIsClass(child, *row.description)) tag.name = row.name;
    }
    return XmlHooks::Offer(*this, kClass, tag, text, child) != XmlAnswer::Refused ? 1 : 0;
}

int ix_imdn::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    // Required: only the root's own namespace is left out, which comes without a pair. That of a text inside the root
    // is kept like any other attribute.
    return XmlDescribedObject::ProcessUnMarshallAttribute(pair != nullptr ? nullptr : attribute, value, pair);
}

XMLElement* IMDNDataBinder::CreateRootElement() { return ixNew<ix_imdn>(kSource); }
ix_delivery_notification* IMDNDataBinder::CreateDeliverNotification() {
    return ixNew<ix_delivery_notification>(kSource);
}
ix_display_notification* IMDNDataBinder::CreateDisplayNotification() { return ixNew<ix_display_notification>(kSource); }
ix_processing_notification* IMDNDataBinder::CreateProcesssingNotification() {
    return ixNew<ix_processing_notification>(kSource);
}
ix_status* IMDNDataBinder::CreateStatus() { return ixNew<ix_status>(kSource); }
ix_delivered* IMDNDataBinder::CreateDeliveredElement() { return ixNew<ix_delivered>(kSource); }
ix_failed* IMDNDataBinder::CreateFailedElement() { return ixNew<ix_failed>(kSource); }
ix_displayed* IMDNDataBinder::CreateDisplayedElement() { return ixNew<ix_displayed>(kSource); }
ix_processed* IMDNDataBinder::CreateProcessedElement() { return ixNew<ix_processed>(kSource); }
ix_stored* IMDNDataBinder::CreateStoredElement() { return ixNew<ix_stored>(kSource); }
ix_forbidden* IMDNDataBinder::CreateForbiddenElement() { return ixNew<ix_forbidden>(kSource); }
ix_error* IMDNDataBinder::CreateErrorElement() { return ixNew<ix_error>(kSource); }

IMDNUnMarshaller::IMDNUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

IMDNMarshaller::IMDNMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

IMDNContext::IMDNContext() : XmlFamilyContext(ixFamily<IMDNMarshaller, IMDNUnMarshaller, IMDNDataBinder>(kSource)) {}

int IMDNMarshaller::AddIMDNElementToXml(ix_imdn* imdn) {
    if (!Enter(imdn, {2, "<XML Module>: AddIMDNElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_IMDN);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_IMDN);
    tag.AddAll(imdn->mAnyAttributeList);
    tag.Close();
    AddTextElement(IX_STR_MESSAGE_ID, imdn->mMessageId);
    AddTextElement(IX_STR_DATETIME, imdn->mDatetime);
    AddTextElement(IX_STR_RECIPIENT_URI, imdn->mRecipientUri);
    AddTextElement(IX_STR_ORIGINAL_RECIPIENT_URI, imdn->mOriginalRecipientUri);
    AddTextElement(IX_STR_SUBJECT, imdn->mSubject);
    if (imdn->mDeliveryNotification != nullptr) {
        if (!AddDeliverNotificationElementToXml(imdn->mDeliveryNotification)) {
            Log({3, "<XML Module>: AddIMDNElementToXml, failed to add Delivery Notification."});
        }
    } else if (imdn->mDisplayNotification != nullptr) {
        if (!AddDisplayNotificationElementToXml(imdn->mDisplayNotification)) {
            Log({3, "<XML Module>: AddIMDNElementToXml, failed to add Display Notification."});
        }
    } else if (imdn->mProcessingNotification != nullptr) {
        if (!AddProcessingNotificationElementToXml(imdn->mProcessingNotification)) {
            Log({3, "<XML Module>: AddIMDNElementToXml, failed to add Processing Notification."});
        }
    }
    EndElement(IX_STR_IMDN);
    return 1;
}

int IMDNMarshaller::AddDeliverNotificationElementToXml(ix_delivery_notification* notification) {
    if (!Enter(notification, {2, "<XML Module>: AddDeliverNotificationElementToXml"})) return 0;
    return AddNotification(IX_STR_DELIVERY_NOTIFICATION, notification->mStatus,
                           {IX_STR_DELIVERED, IX_STR_FAILED, IX_STR_FORBIDDEN, IX_STR_ERROR});
}

int IMDNMarshaller::AddDisplayNotificationElementToXml(ix_display_notification* notification) {
    if (!Enter(notification, {2, "<XML Module>: AddDisplayNotificationElementToXml"})) return 0;
    return AddNotification(IX_STR_DISPLAY_NOTIFICATION, notification->mStatus,
                           {IX_STR_DISPLAYED, IX_STR_FORBIDDEN, IX_STR_ERROR});
}

int IMDNMarshaller::AddProcessingNotificationElementToXml(ix_processing_notification* notification) {
    if (!Enter(notification, {2, "<XML Module>: AddProcessingNotificationElementToXml"})) return 0;
    // Required: the name lacks a letter, so that a written processing notification is not read back as one.
    return AddNotification(IX_STR_PROESSING_NOTIFICATION, notification->mStatus,
                           {IX_STR_PROCESSED, IX_STR_STORED, IX_STR_FORBIDDEN, IX_STR_ERROR});
}

/// Writes the first of `values` that the status has. @return 1, or 0 when there is none.
int IMDNMarshaller::AddNotification(e_XmlStrRef name, const ix_status* status,
                                    std::initializer_list<e_XmlStrRef> values) {
    if (status == nullptr) return 0;
    for (const e_XmlStrRef value : values) {
        if (XmlFields::IsSet(*status, *StatusValue(value))) {
            return AddNotificationXML(name, value, status->mAnyAttributeList);
        }
    }
    return 0;
}

int IMDNMarshaller::AddNotificationXML(e_XmlStrRef notification, e_XmlStrRef statusValue,
                                       IxSingleElementList* statusAttributes) {
    Log({2, "<XML Module>: AddNotificationXML"});
    const bool isNotification = notification == IX_STR_DELIVERY_NOTIFICATION ||
                                notification == IX_STR_DISPLAY_NOTIFICATION ||
                                notification == IX_STR_PROESSING_NOTIFICATION;
    if (!isNotification || StatusValue(statusValue) == nullptr) return 0;
    StartElement(notification);
    XmlStartTag tag(*this, IX_STR_STATUS);
    tag.AddAll(statusAttributes);
    tag.Close();
    XmlStartTag(*this, statusValue).SelfClose();
    EndElement(IX_STR_STATUS);
    EndElement(notification);
    return 1;
}
