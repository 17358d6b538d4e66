/// @file
/// The object model: the abstract bases of every element class, the generic classes that several schemas share, and the
/// table of fixed strings (element and attribute names, literal values, prefixes, namespace URIs).
#ifndef IX_XML_COMMON_DEF_H
#define IX_XML_COMMON_DEF_H

#include "XMLList.h"
#include "XmlPlatform.h"

class XMLAttribute;
struct XmlFieldTable;

/// One XML element as an object. A document in memory is a tree of these; a parent owns its children, its lists and its
/// texts, and deleting the root (`XMLFactory::DeleteElement`) frees the whole tree.
class IX_XML_EXPORT XMLElement : public XmlHeapObject {
  public:
    XMLElement() = default;
    virtual ~XMLElement() = default;
    XMLElement(const XMLElement&) = delete;
    XMLElement& operator=(const XMLElement&) = delete;

    /// The class's own name ("ix_string"), or the local name of the element that the class is bound to.
    virtual const char* ClassName() const = 0;
    /// "XMLElement" or "XMLObject".
    virtual const char* BaseClassName() const = 0;
    /// The name of the schema type.
    virtual const char* TypeName() const = 0;
    /// Always 0; keeps its place in the table of virtual operations.
    virtual int Reserved() const = 0;

    /// Offers content while a document is decoded: a start tag (`name`, no text), an end tag (`name` with a leading "/"
    /// and the raw text before it), or a child object that this element is to own.
    /// @return 1 handled or ignored, 0 refused; a refused child stays with the caller.
    virtual int ProcessUnMarshall(char* name, char* text, XMLElement* child);

    /// Offers an attribute while a document is decoded. `pair` is NULL for an attribute the decoder knows, else an
    /// object with both texts that this element may take over.
    /// @return 1 handled or ignored, 0 refused; a refused pair stays with the caller.
    virtual int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair);

    /// The fields of the class (XmlFields.h), or NULL when it has none to show.
    virtual const XmlFieldTable* FieldTable() const;
};

/// Base of the element classes that can stand at the root of a document, and of some others.
class IX_XML_EXPORT XMLObject : public XMLElement {
  public:
    /// 1 for the root of a document.
    virtual int IsRootElement() const = 0;
};

/// Base of attribute groups. Not an element.
class IX_XML_EXPORT XMLAttribute : public XmlHeapObject {
  public:
    XMLAttribute() = default;
    virtual ~XMLAttribute() = default;
    XMLAttribute(const XMLAttribute&) = delete;
    XMLAttribute& operator=(const XMLAttribute&) = delete;

    virtual const char* ClassName() const = 0;
    /// "XMLAttribute".
    virtual const char* BaseClassName() const = 0;
    virtual const char* TypeName() const = 0;
    /// Always 0.
    virtual int Reserved() const = 0;
};

/// An element whose content is one text.
class IX_XML_EXPORT ix_string : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_string";

    ~ix_string() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "string_class"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;

    /// Copies `value`; NULL clears the text. @return 1, or 0 without memory, the earlier text kept.
    int setValueValue(const char* value);

    char* mValue = nullptr;  ///< Owned; NULL: not set.
};

/// An element without content, whose presence is the information.
class IX_XML_EXPORT ix_empty_element_type : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_empty_element_type";

    ~ix_empty_element_type() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "empty_element"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;

    /// Copies the element's name; NULL clears it. @return 1, or 0 without memory, the earlier name kept.
    int setNameValue(const char* name);
    /// @return 1.
    int setPresentValue(int present);

    char* mName = nullptr;  ///< Owned; the name the element is written with. NULL: not set.
    int mPresent = 0;       ///< 1 present, 0 absent.
};

/// One attribute: a name and its value.
class IX_XML_EXPORT ix_AttributeValuePair : public XMLAttribute {
  public:
    static constexpr char kClassName[] = "ix_AttributeValuePair";

    ~ix_AttributeValuePair() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLAttribute"; }
    const char* TypeName() const override { return "AttributeValuePair"; }
    int Reserved() const override { return 0; }

    /// Copies the name; NULL clears it. @return 1, or 0 without memory, the earlier name kept.
    int setNameValue(const char* name);
    /// Copies the value; NULL clears it. @return 1, or 0 without memory, the earlier value kept.
    int setValueValue(const char* value);

    char* mName = nullptr;   ///< Owned; NULL: not set (the default namespace in a list of namespaces).
    char* mValue = nullptr;  ///< Owned; NULL: not set.
};

/// Index of a fixed string. The names follow the texts; the numbers are part of the interface.
enum e_XmlStrRef {
    IX_STR_IX_NULL = 0,
    IX_STR_1_0,
    IX_STR_UTF_8,
    IX_STR_XMLNS,
    IX_STR_XSI,
    IX_STR_SCHEMALOCATION,
    IX_STR_TRUE,
    IX_STR_FALSE,
    IX_STR_ACTIVE,
    IX_STR_SIMSERVS,
    IX_STR_COMMUNICATION_WAITING,
    IX_STR_ORIGINATING_IDENTITY_PRESENTATION,
    IX_STR_ORIGINATING_IDENTITY_PRESENTATION_RESTRICTION,
    IX_STR_TERMINATING_IDENTITY_PRESENTATION,
    IX_STR_TERMINATING_IDENTITY_PRESENTATION_RESTRICTION,
    IX_STR_COMMUNICATION_DIVERSION,
    IX_STR_INCOMING_COMMUNICATION_BARRING,
    IX_STR_OUTGOING_COMMUNICATION_BARRING,
    IX_STR_NOREPLYTIMER,
    IX_STR_RULESET,
    IX_STR_RULE,
    IX_STR_ID,
    IX_STR_CONDITIONS,
    IX_STR_ACTIONS,
    IX_STR_TRANSFORMATIONS,
    IX_STR_IDENTITY,
    IX_STR_ONE,
    IX_STR_MANY,
    IX_STR_EXCEPT,
    IX_STR_DOMAIN,
    IX_STR_SPHERE,
    IX_STR_VALUE,
    IX_STR_VALIDITY,
    IX_STR_FROM,
    IX_STR_UNTIL,
    IX_STR_MEDIA,
    IX_STR_PRESENCE_STATUS,
    IX_STR_EXTERNAL_LIST,
    IX_STR_BUSY,
    IX_STR_NOT_REGISTERED,
    IX_STR_ANONYMOUS,
    IX_STR_NO_ANSWER,
    IX_STR_RULE_DEACTIVATED,
    IX_STR_NOT_REACHABLE,
    IX_STR_ROAMING,
    IX_STR_INTERNATIONAL,
    IX_STR_INTERNATIONAL_EXHC,
    IX_STR_COMMUNICATION_DIVERTED,
    IX_STR_ALLOW,
    IX_STR_FORWARD_TO,
    IX_STR_TARGET,
    IX_STR_NOTIFY_CALLER,
    IX_STR_REVEAL_IDENTITY_TO_CALLER,
    IX_STR_REVEAL_SERVED_USER_IDENTITY_TO_CALLER,
    IX_STR_NOTIFY_SERVED_USER,
    IX_STR_NOTIFY_SERVED_USER_ON_OUTBOUND_CALL,
    IX_STR_REVEAL_IDENTITY_TO_TARGET,
    IX_STR_NOT_REVEAL_GRUU,
    IX_STR_RESOURCE_LISTS,
    IX_STR_LIST,
    IX_STR_NAME,
    IX_STR_DISPLAY_NAME,
    IX_STR_ALLOW_2,
    IX_STR_ENTRY,
    IX_STR_URI,
    IX_STR_ENTRY_REF,
    IX_STR_REF,
    IX_STR_EXTERNAL,
    IX_STR_ANCHOR,
    IX_STR_CONFERENCE_INFO,
    IX_STR_ENTITY,
    IX_STR_STATE,
    IX_STR_VERSION,
    IX_STR_CONFERENCE_DESCRIPTION,
    IX_STR_DISPLAY_TEXT,
    IX_STR_SUBJECT,
    IX_STR_FREE_TEXT,
    IX_STR_KEYWORDS,
    IX_STR_CONF_URIS,
    IX_STR_SERVICE_URIS,
    IX_STR_MAXIMUM_USER_COUNT,
    IX_STR_AVAILABLE_MEDIA,
    IX_STR_LABEL,
    IX_STR_TYPE,
    IX_STR_STATUS,
    IX_STR_HOST_INFO,
    IX_STR_WEB_PAGE,
    IX_STR_URIS,
    IX_STR_CONFERENCE_STATE,
    IX_STR_USER_COUNT,
    IX_STR_LOCKED,
    IX_STR_USERS,
    IX_STR_USER,
    IX_STR_ASSOCIATED_AORS,
    IX_STR_ROLES,
    IX_STR_LANGUAGES,
    IX_STR_CASCADED_FOCUS,
    IX_STR_ENDPOINT,
    IX_STR_REFERRED,
    IX_STR_JOINING_METHOD,
    IX_STR_BLANK,
    IX_STR_JOINING_INFO,
    IX_STR_DISCONNECTION_METHOD,
    IX_STR_DISCONNECTION_INFO,
    IX_STR_SRC_ID,
    IX_STR_CALL_INFO,
    IX_STR_SIP,
    IX_STR_CALL_ID,
    IX_STR_FROM_TAG,
    IX_STR_TO_TAG,
    IX_STR_WHEN,
    IX_STR_REASON,
    IX_STR_BY,
    IX_STR_PURPOSE,
    IX_STR_MODIFIED,
    IX_STR_SIDEBARS_BY_REF,
    IX_STR_SIDEBARS_BY_VAL,
    IX_STR_ISCOMPOSING,
    IX_STR_LASTACTIVE,
    IX_STR_CONTENTTYPE,
    IX_STR_REFRESH,
    IX_STR_REGINFO,
    IX_STR_REGISTRATION,
    IX_STR_UNKNOWN_PARAM,
    IX_STR_AOR,
    IX_STR_EVENT,
    IX_STR_DURATION_REGISTERED,
    IX_STR_EXPIRES,
    IX_STR_RETRY_AFTER,
    IX_STR_Q,
    IX_STR_CALLID,
    IX_STR_CSEQ,
    IX_STR_RLS_SERVICES,
    IX_STR_SERVICE,
    IX_STR_RESOURCE_LIST,
    IX_STR_PACKAGES,
    IX_STR_PACKAGE,
    IX_STR_IMDN,
    IX_STR_MESSAGE_ID,
    IX_STR_DATETIME,
    IX_STR_RECIPIENT_URI,
    IX_STR_ORIGINAL_RECIPIENT_URI,
    IX_STR_DELIVERY_NOTIFICATION,
    IX_STR_DISPLAY_NOTIFICATION,
    IX_STR_PROESSING_NOTIFICATION,
    IX_STR_DELIVERED,
    IX_STR_FAILED,
    IX_STR_DISPLAYED,
    IX_STR_PROCESSED,
    IX_STR_STORED,
    IX_STR_FORBIDDEN,
    IX_STR_ERROR,
    IX_STR_XCAP_ERROR,
    IX_STR_EXTENSION,
    IX_STR_SCHEMA_VALIDATION_ERROR,
    IX_STR_NOT_XML_FRAG,
    IX_STR_NO_PARENT,
    IX_STR_ANCESTOR,
    IX_STR_CANNOT_INSERT,
    IX_STR_NOT_XML_ATT_VALUE,
    IX_STR_UNIQUENESS_FAILURE,
    IX_STR_EXISTS,
    IX_STR_FIELD,
    IX_STR_ALT_VALUE,
    IX_STR_NOT_WELL_FORMED,
    IX_STR_CONSTRAINT_FAILURE,
    IX_STR_CANNOT_DELETE,
    IX_STR_NOT_UTF_8,
    IX_STR_PHRASE,
    IX_STR_PRESENCE,
    IX_STR_TUPLE,
    IX_STR_CONTACT,
    IX_STR_NOTE,
    IX_STR_BASIC,
    IX_STR_TIMESTAMP,
    IX_STR_PRIORITY,
    IX_STR_SERVICE_DESCRIPTION,
    IX_STR_SERVICE_ID,
    IX_STR_DESCRIPTION,
    IX_STR_SERVCAPS,
    IX_STR_AUDIO,
    IX_STR_VIDEO,
    IX_STR_DUPLEX,
    IX_STR_SUPPORTED,
    IX_STR_NOTSUPPORTED,
    IX_STR_FULL,
    IX_STR_HALF,
    IX_STR_RECEIVE_ONLY,
    IX_STR_SEND_ONLY,
    IX_STR_RESOURCE,
    IX_STR_INSTANCE,
    IX_STR_FULLSTATE,
    IX_STR_CID,
    IX_STR_XCAP_DIRECTORY,
    IX_STR_FOLDER,
    IX_STR_ERROR_CODE,
    IX_STR_AUID,
    IX_STR_ETAG,
    IX_STR_LAST_MODIFIED,
    IX_STR_SIZE,
    IX_STR_FILE,
    IX_STR_FILE_INFO,
    IX_STR_FILE_SIZE,
    IX_STR_DATA,
    IX_STR_MEDIA_CONTROL,
    IX_STR_VC_PRIMITIVE,
    IX_STR_TO_ENCODER,
    IX_STR_PICTURE_FAST_UPDATE,
    IX_STR_3GPP_IMS,
    IX_STR_IMS_3GPP,
    IX_STR_ALTERNATIVE_SERVICE,
    IX_STR_ACTION,
    IX_STR_CALL_WAITING_INDICATION,
    IX_STR_SERVICE_INFO,
    IX_STR_PUB_GRUU,
    IX_STR_TEMP_GRUU,
    IX_STR_FIRST_CSEQ,
    IX_STR_BOOTSTRAPPINGINFO,
    IX_STR_BTID,
    IX_STR_LIFETIME,
    IX_STR_RCS_TERMS_INFO,
    IX_STR_TERMSVERSION,
    IX_STR_TERM,
    IX_STR_SIMSERVS_2,
    IX_STR_TITLE,
    IX_STR_URL,
    IX_STR_URN_IETF_PARAMS_XML_NS_IM_ISCOMPOSING,
    IX_STR_URN_IETF_PARAMS_XML_NS_IM_COMPOSING_ISCOMPOSING_XSD,
    IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE,
    IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP,
    IX_STR_URN_IETF_PARAMS_XML_NS_COMMON_POLICY,
    IX_STR_CP,
    IX_STR_SS,
    IX_STR_OP,
    IX_STR_OPD,
    IX_STR_OPD11,
    IX_STR_PDM,
    IX_STR_RPID,
    IX_STR_GP,
    IX_STR_CAPS,
    IX_STR_GML,
    IX_STR_GS,
    IX_STR_URN_OMA_XML_XDM_COMMON_POLICY,
    IX_STR_OCP,
    IX_STR_RL,
    IX_STR_GR,
    IX_STR_URN_IETF_PARAMS_XML_NS_RESOURCE_LISTS,
    IX_STR_URN_IETF_PARAMS_XML_NS_XCAP_ERROR,
    IX_STR_URN_IETF_PARAMS_XML_NS_COPYCONTROL,
    IX_STR_URN_IETF_PARAMS_XML_NS_CONFERENCE_INFO,
    IX_STR_URN_IETF_PARAMS_XML_NS_IMDN,
    IX_STR_URN_IETF_PARAMS_XML_NS_PIDF,
    IX_STR_URN_OMA_XML_PRS_PIDF_OMA_PRES,
    IX_STR_URN_OMA_XML_PDE_PIDF_EXT,
    IX_STR_URN_OMA_XML_PDE_PIDF_EXT_1_1,
    IX_STR_URN_IETF_PARAMS_XML_NS_PIDF_DATA_MODEL,
    IX_STR_URN_IETF_PARAMS_XML_NS_PIDF_RPID,
    IX_STR_URN_IETF_PARAMS_XML_NS_PIDF_GEOPRIV10,
    IX_STR_URN_IETF_PARAMS_XML_NS_PIDF_CAPS,
    IX_STR_HTTP_WWW_OPENGIS_NET_GML,
    IX_STR_HTTP_WWW_OPENGIS_NET_PIDFLO_1_0,
    IX_STR_URN_IETF_PARAMS_XML_NS_RLS_SERVICES,
    IX_STR_URN_IETF_PARAMS_XML_NS_RLMI,
    IX_STR_URN_OMA_XML_XDM_XCAP_DIRECTORY,
    IX_STR_URI_3GPP_GBA,
    IX_STR_URN_IETF_PARAMS_XML_NS_REGINFO,
    IX_STR_URN_IETF_PARAMS_XML_NS_GRUUINFO,
};

/// Number of fixed strings.
constexpr int kXmlStrRefCount = IX_STR_URN_IETF_PARAMS_XML_NS_GRUUINFO + 1;

/// The table of fixed strings, usable at any time.
class IX_XML_EXPORT ix_xml_common_array_definition : public XmlHeapObject {
  public:
    /// The texts, padded with NULs.
    static const char arrXmlStrRef[kXmlStrRefCount][100];

    /// The text of an entry. No range check: pass enumerators only.
    static const char* getStringName(e_XmlStrRef entry) { return arrXmlStrRef[entry]; }

    /// Creates the marker object on the first call and returns it on every call; NULL without memory. Not guarded
    /// against first calls from two threads at once. The table does not need it.
    static ix_xml_common_array_definition* CreateArrayInstance();
    /// Deletes the marker object.
    static void ReleaseArrayInstance();

    /// The marker object, or NULL.
    static ix_xml_common_array_definition* m_pXmlStrRef;
};

/// Frees a text of the platform layer's memory; NULL is ignored. The free function of lists of plain texts.
IX_XML_EXPORT void FreeElement(void* text);

/// Ends of lists. Each deletes the entries and then the list; NULL is ignored, and so are NULL entries.
class IX_XML_EXPORT ix_xml_common_methods {
  public:
    /// The entries are `XMLElement` objects, deleted with all that is below them. Safe for trees of any depth.
    static void DeleteElementList(IxSingleElementList* list);
    /// The entries are `ix_AttributeValuePair` objects.
    static void DeleteAttributeList(IxSingleElementList* list);
    /// The entries are texts.
    static void DeleteTextList(IxSingleElementList* list);
};

#endif
