#include "ConferenceInfo.h"

#include "XMLConferenceInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/ConferenceInfo";

constexpr XmlOldKnownName kConferenceInfo = {IX_STR_CONFERENCE_INFO};
constexpr XmlOldKnownName kEntry = {IX_STR_ENTRY};

/// A row of an element that is of the same class in every parent. A parent that does not know the element refuses it.
#define IX_ROW(name, type) \
    { {name}, XmlOldContainerRow::Child, IX_OLD_OBJECT(type) }
/// A row of an `entry`, whose class depends on its parent.
#define IX_ENTRY_ROW(parent, type) \
    { kEntry, XmlOldContainerRow::Child, IX_OLD_OBJECT(type), parent::kClassName }

constexpr XmlOldContainerRow kContainers[] = {
    {kConferenceInfo, XmlOldContainerRow::Root, IX_OLD_OBJECT(ix_conference_type)},
    IX_ROW(IX_STR_CONFERENCE_DESCRIPTION, ix_conference_description_type),
    IX_ROW(IX_STR_CONF_URIS, ix_uris_type),
    IX_ROW(IX_STR_SERVICE_URIS, ix_uris_type),
    IX_ROW(IX_STR_AVAILABLE_MEDIA, ix_conference_media_type),
    IX_ROW(IX_STR_HOST_INFO, ix_host_type),
    IX_ROW(IX_STR_URIS, ix_uris_type),
    IX_ROW(IX_STR_CONFERENCE_STATE, ix_conference_state_type),
    IX_ROW(IX_STR_USERS, ix_users_type),
    IX_ROW(IX_STR_USER, ix_user_type),
    IX_ROW(IX_STR_ASSOCIATED_AORS, ix_uris_type),
    IX_ROW(IX_STR_ROLES, ix_user_roles_type),
    IX_ROW(IX_STR_ENDPOINT, ix_endpoint_type),
    IX_ROW(IX_STR_REFERRED, ix_execution_type),
    IX_ROW(IX_STR_JOINING_INFO, ix_execution_type),
    IX_ROW(IX_STR_DISCONNECTION_INFO, ix_execution_type),
    IX_ROW(IX_STR_MEDIA, ix_media_type),
    IX_ROW(IX_STR_CALL_INFO, ix_call_type),
    IX_ROW(IX_STR_SIP, ix_sip_dialog_id_type),
    IX_ROW(IX_STR_SIDEBARS_BY_REF, ix_uris_type),
    IX_ROW(IX_STR_SIDEBARS_BY_VAL, ix_sidebars_by_val_type),
    IX_ROW(IX_STR_MODIFIED, ix_execution_type),
    IX_ENTRY_ROW(ix_uris_type, ix_uri_type),
    IX_ENTRY_ROW(ix_conference_media_type, ix_conference_medium_type),
    IX_ENTRY_ROW(ix_sidebars_by_val_type, ix_conference_type),
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kConferenceInfo, IX_STR_XMLNS, true},  // the marshaller writes its own
    {kConferenceInfo, IX_STR_ENTITY},
    {kConferenceInfo, IX_STR_STATE},
    {kConferenceInfo, IX_STR_VERSION},
    {kEntry, IX_STR_ENTITY, false, ix_conference_type::kClassName},
    {kEntry, IX_STR_STATE, false, ix_conference_type::kClassName},
    {kEntry, IX_STR_VERSION, false, ix_conference_type::kClassName},
    {kEntry, IX_STR_LABEL, false, ix_conference_medium_type::kClassName},
    {{IX_STR_CONF_URIS}, IX_STR_STATE},
    {{IX_STR_SERVICE_URIS}, IX_STR_STATE},
    {{IX_STR_URIS}, IX_STR_STATE},
    {{IX_STR_ASSOCIATED_AORS}, IX_STR_STATE},
    {{IX_STR_SIDEBARS_BY_REF}, IX_STR_STATE},
    {{IX_STR_SIDEBARS_BY_VAL}, IX_STR_STATE},
    {{IX_STR_USERS}, IX_STR_STATE},
    {{IX_STR_USER}, IX_STR_ENTITY},
    {{IX_STR_USER}, IX_STR_STATE},
    {{IX_STR_ENDPOINT}, IX_STR_ENTITY},
    {{IX_STR_ENDPOINT}, IX_STR_STATE},
    {{IX_STR_MEDIA}, IX_STR_ID},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Raw;
    IX_OLD_DECODER_NULL_TEXTS(info.texts, "XMLConferenceInfoDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLConferenceInfoDecoder::XMLConferenceInfoDecoder() : XmlOldFamilyDecoder(kInfo) {}

int XMLConferenceInfoDecoder::EndElement(char* name, char* text) {
    if (ixEndNameIs(name, IX_STR_ENTRY) && ixIs<ix_user_roles_type>(Top())) {
        return OtherElement(name, text);
    }
    return XmlOldFamilyDecoder::EndElement(name, text);
}
