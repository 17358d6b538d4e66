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
///   them, are written back on these two; those of notifications are lost. Elements of other schemas are lost,
///   those of the root with a log line.
#ifndef IX_XML_IMDN_H
#define IX_XML_IMDN_H

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The element of a processing notification as it is read. Required: it is written by the fixed string, which lacks a
/// letter, so that a written processing notification is not read back as one.
inline constexpr char kProcessingNotificationElement[] = "processing-notification";

/// What the seven values of a status share: an empty element, present as soon as there is an object.
class IX_XML_EXPORT ix_statusValueType : public ix_empty_element_type {
  protected:
    ix_statusValueType() { mPresent = 1; }

  private:
    // It is no class of objects: each of the seven has a name of its own.
    static constexpr char kClassName[] = "ix_empty_element_type";
};

/// The element `delivered`: the message reached the recipient's device.
class IX_XML_EXPORT ix_delivered : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_delivered";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Delivered"; }
};

/// The element `failed`: the message could not be delivered.
class IX_XML_EXPORT ix_failed : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_failed";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Failed"; }
};

/// The element `displayed`: the message was shown to the recipient.
class IX_XML_EXPORT ix_displayed : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_displayed";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Displayed"; }
};

/// The element `processed`: an intermediary has processed the message.
class IX_XML_EXPORT ix_processed : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_processed";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Processed"; }
};

/// The element `stored`: an intermediary keeps the message for later delivery.
class IX_XML_EXPORT ix_stored : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_stored";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Stored"; }
};

/// The element `forbidden`: the recipient does not want to say.
class IX_XML_EXPORT ix_forbidden : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_forbidden";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Forbidden"; }
};

/// The element `error`: what became of the message is not known.
class IX_XML_EXPORT ix_error : public ix_statusValueType {
  public:
    static constexpr char kClassName[] = "ix_error";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "Error"; }
};

/// The element `status` of a notification. At most one of the seven values is expected to be set.
///
/// The status of a presence tuple (XMLPresence.h) has the same class name, so that `ixIs` and `ixAs` take one for the
/// other. They belong to different documents; never offer one where the other belongs.
class IX_XML_EXPORT ix_status : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_status";

    ~ix_status() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Status"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

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
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetElementList(mAnyElementList, list); }
    int setAnyAttributeListValue(IxSingleElementList* list) { return ixSetAttributeList(mAnyAttributeList, list); }
    /// @}

    /// @name Each appends an entry, which then belongs to the element. @return 1, or 0 without memory, when it stays
    /// with the caller.
    /// @{
    int addAnyElement(XMLElement* element);
    int addAnyAttribute(ix_AttributeValuePair* pair);
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
class IX_XML_EXPORT ix_notificationType : public XMLElement {
  public:
    ~ix_notificationType() override;
    const char* BaseClassName() const override { return "XMLElement"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over the status in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setStatusValue(ix_status* status) { return ixSetChild(mStatus, status); }

    ix_status* mStatus = nullptr;  ///< Owned; NULL: not set, and the notification cannot be written.
};

/// The element `delivery-notification`, whose status is delivered, failed, forbidden or error.
class IX_XML_EXPORT ix_delivery_notification : public ix_notificationType {
  public:
    static constexpr char kClassName[] = "ix_delivery_notification";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "DeliveryNotification"; }
};

/// The element `display-notification`, whose status is displayed, forbidden or error.
class IX_XML_EXPORT ix_display_notification : public ix_notificationType {
  public:
    static constexpr char kClassName[] = "ix_display_notification";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "DisplayNotification"; }
};

/// The element `processing-notification`, whose status is processed, stored, forbidden or error.
class IX_XML_EXPORT ix_processing_notification : public ix_notificationType {
  public:
    static constexpr char kClassName[] = "ix_processing_notification";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "ProcessingNotification"; }
};

/// The element `imdn`.
class IX_XML_EXPORT ix_imdn : public XMLObject {
  public:
    static constexpr char kClassName[] = "ix_imdn";

    ~ix_imdn() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLObject"; }
    const char* TypeName() const override { return "Imdn"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
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
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetElementList(mAnyElementList, list); }
    int setAnyAttributeListValue(IxSingleElementList* list) { return ixSetAttributeList(mAnyAttributeList, list); }
    /// @}

    /// @name Each appends an entry, which then belongs to the element. @return 1, or 0 without memory, when it stays
    /// with the caller.
    /// @{
    int addAnyElement(XMLElement* element);
    int addAnyAttribute(ix_AttributeValuePair* pair);
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

class IX_XML_EXPORT IMDNUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes the XML declaration and the document. Only the first notification that is set is written; one that cannot be
/// written is left out with a log line.
class IX_XML_EXPORT IMDNMarshaller : public XmlOldFamilyMarshaller {
  public:
    IMDNMarshaller();

    /// @return 1, whatever becomes of the notification; 0 for NULL.
    int AddIMDNElementToXml(ix_imdn* element);
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
    int AddNotification(e_XmlStrRef name, const ix_notificationType* notification, const e_XmlStrRef* values,
                        std::size_t count);
    void EndStartTag(const IxSingleElementList* attributes);
};

class IX_XML_EXPORT IMDNContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
