// Calls every setter and every operation that appends: once, twice, with a value and then NULL, and with each
// allocation failing. tests/expected/setters.txt has a line for each, in the order of the table below: the fields that
// it changed, the answers that are not 1, and blocks that were left behind.
#include <type_traits>

#include "Classes.h"
#include "Scenario.h"
#include "XMLBootstrappingInfo.h"
#include "XMLCWIndication.h"
#include "XMLCallWaitingIndication.h"
#include "XMLCaps.h"
#include "XMLCommunicationBarring.h"
#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLConferenceInfo.h"
#include "XMLFt.h"
#include "XMLImdn.h"
#include "XMLIsComposing.h"
#include "XMLMediaControl.h"
#include "XMLOmaPres.h"
#include "XMLPresence.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLRlmi.h"
#include "XMLRlsServices.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XMLSimservs.h"
#include "XMLVolteConfigInfo.h"
#include "XMLXcapDirectory.h"
#include "XMLXcapError.h"

namespace {

/// The class whose objects stand for those of an abstract one.
template <class Element>
struct Concrete {
    using Type = Element;
};
template <>
struct Concrete<ix_characteristicDocType> : Concrete<ix_volte_config_info> {};
template <>
struct Concrete<ix_conference_containerType> : Concrete<ix_host_type> {};
template <>
struct Concrete<ix_conference_statefulType> : Concrete<ix_users_type> {};
template <>
struct Concrete<ix_gruuType> : Concrete<ix_pub_gruu> {};
template <>
struct Concrete<ix_notificationType> : Concrete<ix_delivery_notification> {};
template <>
struct Concrete<ix_imsBodyType> : Concrete<ix_3gpp_ims> {};
template <>
struct Concrete<ix_ns_oma_pres_basicType> : Concrete<ix_ns_oma_pres_willingness> {};
template <>
struct Concrete<ix_ns_oma_pres_stateType> : Concrete<ix_ns_oma_pres_barring_state> {};
template <>
struct Concrete<ix_listMemberType> : Concrete<ix_entryType> {};
template <>
struct Concrete<ix_ns_xcap_ruleServiceType> : Concrete<ix_incoming_communication_barring> {};
template <>
struct Concrete<ix_ns_xcap_simservType> : Concrete<ix_communication_waiting> {};
template <>
struct Concrete<ix_phraseType> : Concrete<ix_not_xml_frag> {};

template <class Argument>
Argument Make() {
    if constexpr (std::is_same_v<Argument, const char*>) {
        return "abc";
    } else if constexpr (std::is_same_v<Argument, XMLElement*>) {
        return ixNew<ix_string>("tests");
    } else if constexpr (std::is_pointer_v<Argument>) {
        return ixNew<std::remove_pointer_t<Argument>>("tests");
    } else {
        return static_cast<Argument>(1);
    }
}

template <class Argument>
void Drop(Argument argument) {
    if constexpr (std::is_convertible_v<Argument, XMLElement*>) {
        XMLFactory::DeleteElement(argument);
    } else if constexpr (std::is_pointer_v<Argument> && !std::is_same_v<Argument, const char*>) {
        ixDelete(argument);
    }
}

/// What an operation makes of a new element when it gets so many values, and then, to clear it, none. Empty: no
/// allocation failed.
template <class Element, class Argument>
std::string Outcome(int (Element::*operation)(Argument), int values, bool isCleared, unsigned long failing = 0) {
    auto* const element = ixNew<typename Concrete<Element>::Type>("tests");
    const Json before = StateOf(*element);
    std::string refusals;
    bool reached = true;
    for (int i = 0; i < values + (isCleared ? 1 : 0); ++i) {
        const Argument argument = i < values ? Make<Argument>() : Argument{};
        ixDplHostFailAllocation(failing);
        const int answer = (element->*operation)(argument);
        reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        if (answer == 0 && i < values) Drop(argument);
        if (answer != 1) refusals += ' ' + std::to_string(answer);
    }
    const std::string changes = Changes(before, StateOf(*element));
    XMLFactory::DeleteElement(element);
    const std::size_t left = ixDplHostLedger().liveHeapBlocks;
    ixDplHostReleaseHeap();
    return reached ? changes + refusals + (left != 0 ? " left " + std::to_string(left) : "") : "";
}

template <class Element, class Argument>
std::string Line(int (Element::*operation)(Argument)) {
    std::string line = typename Concrete<Element>::Type().ClassName();
    line += Outcome(operation, 1, false) + "; twice" + Outcome(operation, 2, false);
    if (std::is_pointer_v<Argument>) line += "; cleared" + Outcome(operation, 1, true);
    for (unsigned long failing = 1;; ++failing) {
        const std::string outcome = Outcome(operation, 1, false, failing);
        if (outcome.empty()) return line;
        line += "; without memory" + outcome;
    }
}

template <class... Operations>
void Add(Strings& lines, Operations... operations) {
    (lines.push_back(Line(operations)), ...);
}

class SettersTest : public XmlTest {};

TEST_F(SettersTest, StoreAndAppend) {
    Strings lines;
    Add(lines, &ix_bootstrappinginfo::setBtidValue, &ix_bootstrappinginfo::setLifetimeValue,
        &ix_bootstrappinginfo::setAnyElementListValue, &ix_bootstrappinginfo::addAnyElement,
        &ix_alternative_service::setActionValue, &ix_alternative_service::setTypeValue,
        &ix_alternative_service::setReasonValue, &ix_ims_3gpp::setAlternativeServiceValue,
        &ix_ims_3gpp::setServiceInfoValue, &ix_ns_call_waiting_indication_action::setCallWaitingIndicationValue,
        &ix_ns_call_waiting_indication_alternative_service::setActionValue, &ix_3gpp_ims::setAlternativeServiceValue,
        &ix_ns_caps_duplextypes::setFullValue, &ix_ns_caps_duplextypes::setHalfValue,
        &ix_ns_caps_duplextypes::setReceiveOnlyValue, &ix_ns_caps_duplextypes::setSendOnlyValue,
        &ix_ns_caps_duplextypes::setAnyElementListValue, &ix_ns_caps_duplextypes::addAnyElement,
        &ix_ns_caps_duplextype::setSupportedValue, &ix_ns_caps_duplextype::setNotsupportedValue,
        &ix_ns_caps_servcaps::setAudioValue, &ix_ns_caps_servcaps::setVideoValue, &ix_ns_caps_servcaps::setDuplexValue,
        &ix_parm::setParmName);
    Add(lines, &ix_parm::setParmValue, &ix_characteristic::setTypeValue, &ix_characteristic::setParmList,
        &ix_characteristic::addParm, &ix_characteristic::setCharacteristicList, &ix_characteristic::addCharacteristic,
        &ix_characteristicDocType::setVersionValue, &ix_characteristicDocType::setCharacteristicList,
        &ix_characteristicDocType::addCharacteristic, &ix_string::setValueValue, &ix_empty_element_type::setNameValue,
        &ix_empty_element_type::setPresentValue, &ix_ns_common_policy_extensibleType::addElement,
        &ix_ns_common_policy_extensibleType::setElementValue, &ix_ns_common_policy_exceptType::setDomainValue,
        &ix_ns_common_policy_exceptType::setIdValue, &ix_ns_common_policy_oneType::setIdValue,
        &ix_ns_common_policy_oneType::addExtension, &ix_ns_common_policy_oneType::setExtensionValue,
        &ix_ns_common_policy_manyType::addExcept, &ix_ns_common_policy_manyType::setExceptValue,
        &ix_ns_common_policy_manyType::setDomainValue, &ix_ns_common_policy_manyType::addExtension,
        &ix_ns_common_policy_manyType::setExtensionValue);
    Add(lines, &ix_ns_common_policy_identityType::addOne, &ix_ns_common_policy_identityType::addMany,
        &ix_ns_common_policy_identityType::addExtension, &ix_ns_common_policy_identityType::setOneValue,
        &ix_ns_common_policy_identityType::setManyValue, &ix_ns_common_policy_identityType::setExtensionValue,
        &ix_ns_common_policy_sphereType::setValueValue, &ix_ns_common_policy_validityType::addFrom,
        &ix_ns_common_policy_validityType::addUntil, &ix_ns_common_policy_validityType::setFromValue,
        &ix_ns_common_policy_validityType::setUntilValue, &ix_ns_common_policy_conditionsType::addIdentity,
        &ix_ns_common_policy_conditionsType::addSphere, &ix_ns_common_policy_conditionsType::addValidity,
        &ix_ns_common_policy_conditionsType::addOtherCondition, &ix_ns_common_policy_conditionsType::setIdentityValue,
        &ix_ns_common_policy_conditionsType::setSphereValue, &ix_ns_common_policy_conditionsType::setValidityValue,
        &ix_ns_common_policy_conditionsType::setOtherConditionsValue, &ix_ns_common_policy_ruleType::setIdValue,
        &ix_ns_common_policy_ruleType::setConditionsValue, &ix_ns_common_policy_ruleType::setActionsValue,
        &ix_ns_common_policy_ruleType::setTransformationsValue, &ix_ns_common_policy_ruleset::addRule);
    Add(lines, &ix_ns_common_policy_ruleset::setRuleValue, &ix_allow_action_type::setAllowValue,
        &ix_NoReplyTimer::setNoReplyTimerValue, &ix_communication_diversion::setNoReplyTimerValue,
        &ix_conference_containerType::setExtraAttributeListValue, &ix_conference_containerType::addExtraAttribute,
        &ix_conference_statefulType::setStateValue, &ix_execution_type::setWhenValue,
        &ix_execution_type::setReasonValue, &ix_execution_type::setByValue, &ix_uri_type::setUriValue,
        &ix_uri_type::setDisplayTextValue, &ix_uri_type::setPurposeValue, &ix_uri_type::setModifiedValue,
        &ix_uris_type::setEntryListValue, &ix_uris_type::addEntry, &ix_conference_medium_type::setLabelValue,
        &ix_conference_medium_type::setDisplayTextValue, &ix_conference_medium_type::setTypeValue,
        &ix_conference_medium_type::setStatusValue, &ix_conference_media_type::setEntryListValue,
        &ix_conference_media_type::addEntry, &ix_conference_description_type::setDisplayTextValue,
        &ix_conference_description_type::setSubjectValue);
    Add(lines, &ix_conference_description_type::setFreeTextValue, &ix_conference_description_type::setKeywordsValue,
        &ix_conference_description_type::addKeyword, &ix_conference_description_type::setConfUrisValue,
        &ix_conference_description_type::setServiceUrisValue, &ix_conference_description_type::setMaximumUserCountValue,
        &ix_conference_description_type::setAvailableMediaValue, &ix_host_type::setDisplayTextValue,
        &ix_host_type::setWebPageValue, &ix_host_type::setUrisValue, &ix_conference_state_type::setUserCountValue,
        &ix_conference_state_type::setActiveValue, &ix_conference_state_type::setLockedValue,
        &ix_user_roles_type::setEntryListValue, &ix_user_roles_type::addEntry,
        &ix_sip_dialog_id_type::setDisplayTextValue, &ix_sip_dialog_id_type::setCallIdValue,
        &ix_sip_dialog_id_type::setFromTagValue, &ix_sip_dialog_id_type::setToTagValue, &ix_call_type::setSipValue,
        &ix_media_type::setIdValue, &ix_media_type::setDisplayTextValue, &ix_media_type::setTypeValue,
        &ix_media_type::setLabelValue);
    Add(lines, &ix_media_type::setSrcIdValue, &ix_media_type::setStatusValue, &ix_endpoint_type::setEntityValue,
        &ix_endpoint_type::setDisplayTextValue, &ix_endpoint_type::setReferredValue, &ix_endpoint_type::setStatusValue,
        &ix_endpoint_type::setJoiningMethodValue, &ix_endpoint_type::setJoiningInfoValue,
        &ix_endpoint_type::setDisconnectionMethodValue, &ix_endpoint_type::setDisconnectionInfoValue,
        &ix_endpoint_type::setMediaListValue, &ix_endpoint_type::addMedia, &ix_endpoint_type::setCallInfoValue,
        &ix_user_type::setEntityValue, &ix_user_type::setDisplayTextValue, &ix_user_type::setAssociatedAorsValue,
        &ix_user_type::setRolesValue, &ix_user_type::setLanguagesValue, &ix_user_type::addLanguage,
        &ix_user_type::setCascadedFocusValue, &ix_user_type::setEndpointListValue, &ix_user_type::addEndpoint,
        &ix_users_type::setUserListValue, &ix_users_type::addUser);
    Add(lines, &ix_sidebars_by_val_type::setEntryListValue, &ix_sidebars_by_val_type::addEntry,
        &ix_conference_type::setEntityValue, &ix_conference_type::setVersionValue,
        &ix_conference_type::setConferenceDescriptionValue, &ix_conference_type::setHostInfoValue,
        &ix_conference_type::setConferenceStateValue, &ix_conference_type::setUsersValue,
        &ix_conference_type::setSidebarsByRefValue, &ix_conference_type::setSidebarsByValValue,
        &ix_ns_ft_data::setUrlValue, &ix_ns_ft_data::setEtagValue, &ix_ns_ft_data::setUntilValue,
        &ix_ns_ft_file_info::setTypeValue, &ix_ns_ft_file_info::setFileSizeValue, &ix_ns_ft_file_info::setDataValue,
        &ix_file::setFileInfoListValue, &ix_file::addFileInfo, &ix_gruuType::setUriValue,
        &ix_temp_gruu::setFirstCseqValue, &ix_status::setDeliveredValue, &ix_status::setFailedValue,
        &ix_status::setDisplayedValue, &ix_status::setProcessedValue);
    Add(lines, &ix_status::setStoredValue, &ix_status::setForbiddenValue, &ix_status::setErrorValue,
        &ix_status::setAnyElementListValue, &ix_status::setAnyAttributeListValue, &ix_status::addAnyElement,
        &ix_status::addAnyAttribute, &ix_notificationType::setStatusValue, &ix_imdn::setMessageIdValue,
        &ix_imdn::setDatetimeValue, &ix_imdn::setRecipientUriValue, &ix_imdn::setOriginalRecipientUriValue,
        &ix_imdn::setSubjectValue, &ix_imdn::setDeliveryNotificationValue, &ix_imdn::setDisplayNotificationValue,
        &ix_imdn::setProcessingNotificationValue, &ix_imdn::setAnyElementListValue, &ix_imdn::setAnyAttributeListValue,
        &ix_imdn::addAnyElement, &ix_imdn::addAnyAttribute, &ix_imsBodyType::setVersionValue,
        &ix_isComposing::setStateValue, &ix_isComposing::setLastactiveValue, &ix_isComposing::setContenttypeValue);
    Add(lines, &ix_isComposing::setRefreshValue, &ix_isComposing::setAnyElementListValue,
        &ix_isComposing::addAnyElement, &ix_to_encoder::setPictureFastUpdateValue, &ix_vc_primitive::setToEncoderValue,
        &ix_media_control::setVcPrimitiveValue, &ix_ns_oma_pres_service_description::setServiceIdValue,
        &ix_ns_oma_pres_service_description::setVersionValue, &ix_ns_oma_pres_service_description::setDescriptionValue,
        &ix_ns_oma_pres_basicType::setBasicValue, &ix_ns_oma_pres_stateType::setStateValue, &ix_note::setTextValue,
        &ix_contact::setValueValue, &ix_contact::setPriorityValue, &PresenceNameSpace::ix_status::setBasicValue,
        &PresenceNameSpace::ix_status::setAnyElementListValue, &PresenceNameSpace::ix_status::addAnyElement,
        &ix_tuple::setStatusValue, &ix_tuple::setContactValue, &ix_tuple::setTimestampValue, &ix_tuple::setIdValue,
        &ix_tuple::setNoteListValue, &ix_tuple::setAnyElementListValue, &ix_tuple::addNote);
    Add(lines, &ix_tuple::addAnyElement, &ix_presence::setTupleListValue, &ix_presence::setNoteListValue,
        &ix_presence::setEntityValue, &ix_presence::addTuple, &ix_presence::addNote,
        &ix_ns_rcs_terms_info_term::setTitleValue, &ix_ns_rcs_terms_info_term::setUrlValue,
        &ix_rcs_terms_info::setVersionValue, &ix_rcs_terms_info::setTermsVersionValue,
        &ix_rcs_terms_info::setTermsValue, &ix_rcs_terms_info::addTerm, &ix_unknown_param::setValueValue,
        &ix_unknown_param::setNameValue, &ix_ns_reginfo_contact::setUriValue,
        &ix_ns_reginfo_contact::setDisplayNameValue, &ix_ns_reginfo_contact::setIdValue,
        &ix_ns_reginfo_contact::setQValue, &ix_ns_reginfo_contact::setCallidValue,
        &ix_ns_reginfo_contact::setStateValue, &ix_ns_reginfo_contact::setEventValue,
        &ix_ns_reginfo_contact::setDurationRegisteredValue, &ix_ns_reginfo_contact::setExpiresValue,
        &ix_ns_reginfo_contact::setRetryAfterValue);
    Add(lines, &ix_ns_reginfo_contact::setCseqValue, &ix_ns_reginfo_contact::setUnknownParamListValue,
        &ix_ns_reginfo_contact::setAnyElementListValue, &ix_ns_reginfo_contact::addUnknownParam,
        &ix_ns_reginfo_contact::addAnyElement, &ix_registration::setAorValue, &ix_registration::setIdValue,
        &ix_registration::setStateValue, &ix_registration::setContactListValue,
        &ix_registration::setAnyElementListValue, &ix_registration::addContact, &ix_registration::addAnyElement,
        &ix_reginfo::setStateValue, &ix_reginfo::setVersionValue, &ix_reginfo::setRegistrationListValue,
        &ix_reginfo::setAnyElementListValue, &ix_reginfo::addRegistration, &ix_reginfo::addAnyElement,
        &ix_listMemberType::setAnyAttributeValue, &ix_listMemberType::addAnyAttribute,
        &ix_listMemberType::setDisplayNameValue, &ix_entryType::setUriValue, &ix_entry_refType::setRefValue,
        &ix_externalType::setAnchorValue);
    Add(lines, &ix_listType::setNameValue, &ix_listType::setChildrenValue, &ix_listType::addChild,
        &ix_listType::setAnyElementListValue, &ix_listType::addAnyElement, &ix_resource_lists::setListListValue,
        &ix_resource_lists::addList, &ix_instance::setAnyAttributeValue, &ix_instance::addAnyAttribute,
        &ix_instance::setReasonValue, &ix_instance::setCidValue, &ix_instance::setIdValue, &ix_instance::setStateValue,
        &ix_resource::setAnyAttributeValue, &ix_resource::addAnyAttribute, &ix_resource::setUriValue,
        &ix_resource::setNameListValue, &ix_resource::addName, &ix_resource::setInstanceListValue,
        &ix_resource::addInstance, &ix_list::setNameListValue, &ix_list::addName, &ix_list::setResourceListValue,
        &ix_list::addResource);
    Add(lines, &ix_list::setUriValue, &ix_list::setVersionValue, &ix_list::setFullStateValue, &ix_list::setCidValue,
        &ix_list::setAnyAttributeValue, &ix_list::addAnyAttribute,
        &ix_ns_rls_services_packagesType::setPackageListValue, &ix_ns_rls_services_packagesType::addPackage,
        &ix_ns_rls_services_serviceType::setResourceListValue, &ix_ns_rls_services_serviceType::setListValue,
        &ix_ns_rls_services_serviceType::setAnyAttributeValue, &ix_ns_rls_services_serviceType::addAnyAttribute,
        &ix_ns_rls_services_serviceType::setPackagesValue, &ix_ns_rls_services_serviceType::setUriValue,
        &ix_rls_services::setServiceListValue, &ix_rls_services::addService,
        &ix_schema_namespace_retrieval::setNameSpaceInfo, &ix_schema_namespace_retrieval::addNameSpaceInfo,
        &ix_Simservs::addService, &ix_Simservs::setServiceValue, &ix_ns_xcap_media_type::setMediaValue,
        &ix_presence_status_activity_type::setPresenceStatusValue, &ix_external_list::setExternalListValue,
        &ix_ns_xcap_forward_to_type::setTargetValue);
    Add(lines, &ix_ns_xcap_forward_to_type::setNotifyCallerValue,
        &ix_ns_xcap_forward_to_type::setRevealIdentityToCallerValue,
        &ix_ns_xcap_forward_to_type::setRevealServedUserIdentityToCallerValue,
        &ix_ns_xcap_forward_to_type::setNotifyServedUserValue,
        &ix_ns_xcap_forward_to_type::setNotifyServedUserOnOutboundCallValue,
        &ix_ns_xcap_forward_to_type::setRevealIdentityToTargetValue, &ix_ns_xcap_ruleServiceType::setRulesetValue,
        &ix_ns_xcap_simservType::setActiveValue, &ix_ns_xcap_simservType::setExtensionListValue,
        &ix_ns_xcap_simservType::addExtension, &ix_xcap_directory::setFolderListValue, &ix_xcap_directory::addFolder,
        &ix_folder::setEntryListValue, &ix_folder::addEntry, &ix_folder::setErrorCodeValue, &ix_folder::setAuidValue,
        &ix_entry::setUriValue, &ix_entry::setEtagValue, &ix_entry::setLastModifiedValue, &ix_entry::setSizeValue,
        &ix_entry::setExtensionListValue, &ix_entry::addExtension, &ix_phraseType::setPhraseValue,
        &ix_xcap_error::setErrorValue);
    Add(lines, &ix_no_parent::setAncestorValue, &ix_uniqueness_failure::setExistsListValue,
        &ix_uniqueness_failure::addExists, &ix_exists::setFieldValue, &ix_exists::setAltValueListValue,
        &ix_exists::addAltValue);
    ExpectFile(PROJECT_DIR "/tests/expected/setters.txt", InLines(lines));
}

}  // namespace
