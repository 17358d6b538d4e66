#include "ConferenceInfo.h"

#include "XMLConferenceInfo.h"

namespace {

using namespace XmlContainer;

// A parent that does not know an element refuses it.
constexpr XmlContainerRow kContainers[] = {
    Root<ix_conference_type>(IX_STR_CONFERENCE_INFO).EndsItsOwn(),
    Child<ix_conference_description_type>(IX_STR_CONFERENCE_DESCRIPTION),
    Child<ix_uris_type>(IX_STR_CONF_URIS),
    Child<ix_uris_type>(IX_STR_SERVICE_URIS),
    Child<ix_conference_media_type>(IX_STR_AVAILABLE_MEDIA),
    Child<ix_host_type>(IX_STR_HOST_INFO),
    Child<ix_uris_type>(IX_STR_URIS),
    Child<ix_conference_state_type>(IX_STR_CONFERENCE_STATE),
    Child<ix_users_type>(IX_STR_USERS),
    Child<ix_user_type>(IX_STR_USER),
    Child<ix_uris_type>(IX_STR_ASSOCIATED_AORS),
    Child<ix_user_roles_type>(IX_STR_ROLES),
    Child<ix_endpoint_type>(IX_STR_ENDPOINT),
    Child<ix_execution_type>(IX_STR_REFERRED),
    Child<ix_execution_type>(IX_STR_JOINING_INFO),
    Child<ix_execution_type>(IX_STR_DISCONNECTION_INFO),
    Child<ix_media_type>(IX_STR_MEDIA),
    Child<ix_call_type>(IX_STR_CALL_INFO),
    Child<ix_sip_dialog_id_type>(IX_STR_SIP),
    Child<ix_uris_type>(IX_STR_SIDEBARS_BY_REF),
    Child<ix_sidebars_by_val_type>(IX_STR_SIDEBARS_BY_VAL),
    Child<ix_execution_type>(IX_STR_MODIFIED),
    Child<ix_uri_type>(IX_STR_ENTRY).Inside(ix_uris_type::kClass),
    Child<ix_conference_medium_type>(IX_STR_ENTRY).Inside(ix_conference_media_type::kClass),
    Child<ix_conference_type>(IX_STR_ENTRY).Inside(ix_sidebars_by_val_type::kClass),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLConferenceInfoDecoder");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLConferenceInfoDecoder");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLConferenceInfoDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLConferenceInfoDecoder::XMLConferenceInfoDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLConferenceInfoDecoder::EndElement(const XmlTag& tag, char* text) {
    // An entry of roles is a text.
    if (tag.Ends(IX_STR_ENTRY) && ixIs<ix_user_roles_type>(Top())) return OtherElement(tag, text);
    return XmlFamilyDecoder::EndElement(tag, text);
}
