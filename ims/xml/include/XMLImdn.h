/// @file
/// Instant message disposition notification (RFC 5438): says whether a message was delivered, displayed or processed.
///
/// - Root element: `imdn`, with `message-id`, `datetime`, `recipient-uri`, `original-recipient-uri`, `subject` and a
///   notification (`delivery-notification`, `display-notification`, `processing-notification`), whose `status` holds
///   one empty element.
/// - Namespace: urn:ietf:params:xml:ns:imdn, written as the default namespace, not expected.
/// - Prefixes: removed.
/// - Read and written. Of several notifications the first in the order above is written, and a processing notification
///   under a name that is not read back. Attributes of the root and of `status`, and of the texts and values inside
///   them, are written back on these two, which makes a namespace declared on a text a second declaration of the root;
///   those of notifications are lost. Elements of other schemas are lost, those of the root with a log line.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_IMDN_H
#define IX_XML_IMDN_H

#include <initializer_list>

#include "XmlFamily.h"

/// The element `delivered`: the message reached the recipient's device.
class IX_XML_EXPORT ix_delivered : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_delivered() : ix_empty_element_type(kClass) {}
};

/// The element `failed`: the message could not be delivered.
class IX_XML_EXPORT ix_failed : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_failed() : ix_empty_element_type(kClass) {}
};

/// The element `displayed`: the message was shown to the recipient.
class IX_XML_EXPORT ix_displayed : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_displayed() : ix_empty_element_type(kClass) {}
};

/// The element `processed`: an intermediary has processed the message.
class IX_XML_EXPORT ix_processed : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_processed() : ix_empty_element_type(kClass) {}
};

/// The element `stored`: an intermediary keeps the message for later delivery.
class IX_XML_EXPORT ix_stored : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_stored() : ix_empty_element_type(kClass) {}
};

/// The element `forbidden`: the recipient does not want to say.
class IX_XML_EXPORT ix_forbidden : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_forbidden() : ix_empty_element_type(kClass) {}
};

/// The element `error`: what became of the message is not known.
class IX_XML_EXPORT ix_error : public ix_empty_element_type {
  public:
    static const XmlClass kClass;

    ix_error() : ix_empty_element_type(kClass) {}
};

/// The element `status` of a notification. At most one of the seven values is expected to be set.
///
/// The status of a presence tuple (XMLPresence.h) has the same class name, and is another class to `ixIs` and `ixAs`.
class IX_XML_EXPORT ix_status : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_status() : XmlDescribedElement(kClass) {}
    ~ix_status() override { ixRelease(*this, kClass); }
    /// As the rows say, the class of an object deciding in place of its name.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// @name Each takes over the element in place of an earlier one, which is deleted; NULL: none. @return 1.
    /// @{
    int setDeliveredValue(ix_delivered* value) { return ixSetChild(mDelivered, value); }
    int setFailedValue(ix_failed* value) { return ixSetChild(mFailed, value); }
    int setDisplayedValue(ix_displayed* value) { return ixSetChild(mDisplayed, value); }
    int setProcessedValue(ix_processed* value) { return ixSetChild(mProcessed, value); }
    int setStoredValue(ix_stored* value) { return ixSetChild(mStored, value); }
    int setForbiddenValue(ix_forbidden* value) { return ixSetChild(mForbidden, value); }
    int setErrorValue(ix_error* value) { return ixSetChild(mError, value); }
    /// @}

    /// @name Each takes over a list in place of an earlier one, which is deleted; NULL: none. @return 1.
    /// @{
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    int setAnyAttributeListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttributeList, list); }
    /// @}

    /// @name Each appends an entry, which then belongs to the element. @return 1, or 0 for NULL or without memory, when
    /// it stays with the caller.
    /// @{
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttributeList, pair); }
    /// @}

    ix_delivered* mDelivered = nullptr;  ///< Owned, as are the other six; NULL: not set.
    ix_failed* mFailed = nullptr;
    ix_displayed* mDisplayed = nullptr;
    ix_processed* mProcessed = nullptr;
    ix_stored* mStored = nullptr;
    ix_forbidden* mForbidden = nullptr;
    ix_error* mError = nullptr;
    IxSingleElementList* mAnyElementList = nullptr;    ///< Owned elements of other classes, not written; NULL: none.
    IxSingleElementList* mAnyAttributeList = nullptr;  ///< Owned `ix_AttributeValuePair`s, written back; NULL: none.
};

/// What the three kinds of notification share: a status. Other children are ignored.
class IX_XML_EXPORT ix_notificationType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ~ix_notificationType() override { ixRelease(*this, kClass); }

    /// Takes over the status in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setStatusValue(ix_status* status) { return ixSetChild(mStatus, status); }

    ix_status* mStatus = nullptr;  ///< Owned; NULL: not set, and the notification cannot be written.

  protected:
    explicit ix_notificationType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// The element `delivery-notification`, whose status is delivered, failed, forbidden or error.
class IX_XML_EXPORT ix_delivery_notification : public ix_notificationType {
  public:
    static const XmlClass kClass;

    ix_delivery_notification() : ix_notificationType(kClass) {}
};

/// The element `display-notification`, whose status is displayed, forbidden or error.
class IX_XML_EXPORT ix_display_notification : public ix_notificationType {
  public:
    static const XmlClass kClass;

    ix_display_notification() : ix_notificationType(kClass) {}
};

/// The element `processing-notification`, whose status is processed, stored, forbidden or error.
class IX_XML_EXPORT ix_processing_notification : public ix_notificationType {
  public:
    static const XmlClass kClass;

    ix_processing_notification() : ix_notificationType(kClass) {}
};

/// The element `imdn`.
class IX_XML_EXPORT ix_imdn : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_IMDN, class IMDNDataBinder>;

    ix_imdn() : XmlDescribedObject(kClass) {}
    ~ix_imdn() override { ixRelease(*this, kClass); }
    /// As the rows say, every pair being kept.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// @name Each copies the text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setMessageIdValue(const char* id) { return ixSetText(mMessageId, id); }
    int setDatetimeValue(const char* datetime) { return ixSetText(mDatetime, datetime); }
    int setRecipientUriValue(const char* uri) { return ixSetText(mRecipientUri, uri); }
    int setOriginalRecipientUriValue(const char* uri) { return ixSetText(mOriginalRecipientUri, uri); }
    int setSubjectValue(const char* subject) { return ixSetText(mSubject, subject); }
    /// @}

    /// @name Each takes over the notification in place of an earlier one, which is deleted; NULL: none. @return 1.
    /// @{
    int setDeliveryNotificationValue(ix_delivery_notification* notification) {
        return ixSetChild(mDeliveryNotification, notification);
    }
    int setDisplayNotificationValue(ix_display_notification* notification) {
        return ixSetChild(mDisplayNotification, notification);
    }
    int setProcessingNotificationValue(ix_processing_notification* notification) {
        return ixSetChild(mProcessingNotification, notification);
    }
    /// @}

    /// @name Each takes over a list in place of an earlier one, which is deleted; NULL: none. @return 1.
    /// @{
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    int setAnyAttributeListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttributeList, list); }
    /// @}

    /// @name Each appends an entry, which then belongs to the element. @return 1, or 0 for NULL or without memory, when
    /// it stays with the caller.
    /// @{
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttributeList, pair); }
    /// @}

    /// @name Texts. Owned; NULL: not set.
    /// @{
    char* mMessageId = nullptr;             ///< The message that the notification is about.
    char* mDatetime = nullptr;              ///< When it was sent (RFC 3339); unchecked.
    char* mRecipientUri = nullptr;          ///< Who it was sent to.
    char* mOriginalRecipientUri = nullptr;  ///< Who its sender had meant.
    char* mSubject = nullptr;
    /// @}

    /// @name Notifications. Owned; NULL: not set. The first that is set is written.
    /// @{
    ix_delivery_notification* mDeliveryNotification = nullptr;
    ix_display_notification* mDisplayNotification = nullptr;
    ix_processing_notification* mProcessingNotification = nullptr;
    /// @}

    IxSingleElementList* mAnyElementList = nullptr;    ///< Owned elements of other classes, not written; NULL: none.
    IxSingleElementList* mAnyAttributeList = nullptr;  ///< Owned `ix_AttributeValuePair`s: all attributes but `xmlns`,
                                                       ///< written back; NULL: none.
};

/// Creates the elements of the schema; each creator yields NULL without memory.
class IX_XML_EXPORT IMDNDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_imdn`.
    XMLElement* CreateRootElement() override;
    ix_delivery_notification* CreateDeliverNotification();
    ix_display_notification* CreateDisplayNotification();
    /// Required: the name has three s.
    ix_processing_notification* CreateProcesssingNotification();
    ix_status* CreateStatus();
    ix_delivered* CreateDeliveredElement();
    ix_failed* CreateFailedElement();
    ix_displayed* CreateDisplayedElement();
    ix_processed* CreateProcessedElement();
    ix_stored* CreateStoredElement();
    ix_forbidden* CreateForbiddenElement();
    ix_error* CreateErrorElement();
};

class IX_XML_EXPORT IMDNUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    IMDNUnMarshaller();
};

/// Writes the XML declaration and the document. Only the first notification that is set is written; one that cannot be
/// written is left out with a log line.
class IX_XML_EXPORT IMDNMarshaller : public XmlFamilyMarshaller {
  public:
    IMDNMarshaller();

    /// @return 1, whatever becomes of the notification; 0 for NULL.
    int AddIMDNElementToXml(ix_imdn* imdn);
    /// @name Each writes the first status value that is set, of those that its notification may have. @return 1, or 0
    /// when there is none.
    /// @{
    int AddDeliverNotificationElementToXml(ix_delivery_notification* notification);
    int AddDisplayNotificationElementToXml(ix_display_notification* notification);
    int AddProcessingNotificationElementToXml(ix_processing_notification* notification);
    /// @}
    /// Writes a notification with its status, which carries the pairs of `statusAttributes` (NULL: none).
    /// @return 1, or 0 when `notification` is none of the three or `statusValue` none of the seven names.
    int AddNotificationXML(e_XmlStrRef notification, e_XmlStrRef statusValue, IxSingleElementList* statusAttributes);

  private:
    int AddNotification(e_XmlStrRef name, const ix_status* status, std::initializer_list<e_XmlStrRef> values);
};

class IX_XML_EXPORT IMDNContext : public XmlFamilyContext {
  public:
    IMDNContext();
};

#endif
