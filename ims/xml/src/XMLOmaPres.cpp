#include "XMLOmaPres.h"

namespace {

using namespace XmlRow;

constexpr char kStateTexts[][100] = {"active", "terminated"};
constexpr XmlEnumeration kStates = {kStateTexts[0], sizeof kStateTexts[0], ix_ns_oma_pres_stateType::kNotSet};

constexpr XmlField kServiceDescriptionFields[] = {
    Element<&ix_ns_oma_pres_service_description::mServiceId>(IX_STR_SERVICE_ID).Mandatory(),
    Element<&ix_ns_oma_pres_service_description::mVersion>(IX_STR_VERSION).Mandatory(),
    Element<&ix_ns_oma_pres_service_description::mDescription>(IX_STR_DESCRIPTION),
};

constexpr XmlField kBasicFields[] = {
    Element<&ix_ns_oma_pres_basicType::mBasic>(IX_STR_BASIC, kPresenceBasics),
};

constexpr XmlField kStateFields[] = {
    OwnText<&ix_ns_oma_pres_stateType::mState>(kStates),
};

constexpr XmlAnswers LoggedAnswers() {
    XmlAnswers answers;
    answers.startsAreUnknown = true;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    answers.unknownObject = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}
constexpr XmlAnswers kLogged = LoggedAnswers();

constexpr XmlAnswers IgnoringAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}
constexpr XmlAnswers kIgnoring = IgnoringAnswers();

}  // namespace

constexpr XmlClass ix_ns_oma_pres_service_description::kClass = ixClass<ix_ns_oma_pres_service_description>(
    "ix_ns_oma_pres_service_description", "ServiceDescription", kSource, kServiceDescriptionFields, kLogged);
constexpr XmlClass ix_ns_oma_pres_basicType::kClass =
    ixClass<ix_ns_oma_pres_basicType>("ix_ns_oma_pres_basicType", "BasicType", kSource, kBasicFields, kLogged);
constexpr XmlClass ix_ns_oma_pres_willingness::kClass =
    ixDerived(ixClass<ix_ns_oma_pres_willingness>("ix_ns_oma_pres_willingness", "Willingness", kSource, kLogged),
              ix_ns_oma_pres_basicType::kClass);
constexpr XmlClass ix_ns_oma_pres_session_participation::kClass =
    ixDerived(ixClass<ix_ns_oma_pres_session_participation>("ix_ns_oma_pres_session_participation",
                                                            "SessionParticipation", kSource, kLogged),
              ix_ns_oma_pres_basicType::kClass);
constexpr XmlClass ix_ns_oma_pres_overriding_willingness::kClass =
    ixDerived(ixClass<ix_ns_oma_pres_overriding_willingness>("ix_ns_oma_pres_overriding_willingness",
                                                             "OverridingWillingness", kSource, kLogged),
              ix_ns_oma_pres_basicType::kClass);
constexpr XmlClass ix_ns_oma_pres_stateType::kClass =
    ixClass<ix_ns_oma_pres_stateType>("ix_ns_oma_pres_stateType", "StateType", kSource, kStateFields, kIgnoring);
constexpr XmlClass ix_ns_oma_pres_registration_state::kClass =
    ixDerived(ixClass<ix_ns_oma_pres_registration_state>("ix_ns_oma_pres_registration_state", "RegistrationState",
                                                         kSource, kIgnoring)
                  .Of(kXmlNameRegistrationState),
              ix_ns_oma_pres_stateType::kClass);
// Required: the text is taken at the end tag of `barring`, and the end tag of `barring-state` is ignored.
constexpr XmlClass ix_ns_oma_pres_barring_state::kClass =
    ixDerived(ixClass<ix_ns_oma_pres_barring_state>("ix_ns_oma_pres_barring_state", "BarringState", kSource, kIgnoring)
                  .Of(kXmlNameBarring),
              ix_ns_oma_pres_stateType::kClass);
