/// @file
/// The OMA presence extensions (OMA-TS-Presence_SIMPLE) of a presence document (XMLPresence.h).
///
/// - Elements: `service-description` inside a tuple; `willingness`, `session-participation`, `overriding-willingness`,
///   `registration-state` and `barring-state` as values.
/// - Namespace: urn:oma:xml:prs:pidf:oma-pres.
/// - Prefixes: removed when read; written with `op`.
/// - The service description is read and written. The value classes parse what they are offered, but no document is
///   decoded into them, and none is written from them.
#ifndef IX_XML_OMA_PRES_H
#define IX_XML_OMA_PRES_H

#include <iterator>

#include "XmlElementSupport.h"

/// The element `service-description`: which service a tuple stands for.
class IX_XML_EXPORT ix_ns_oma_pres_service_description : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_oma_pres_service_description() : XmlDescribedElement(kClass) {}
    ~ix_ns_oma_pres_service_description() override { ixRelease(*this, kClass); }

    /// Each copies its text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setServiceIdValue(const char* serviceId) { return ixSetText(mServiceId, serviceId); }
    int setVersionValue(const char* version) { return ixSetText(mVersion, version); }
    int setDescriptionValue(const char* description) { return ixSetText(mDescription, description); }

    char* mServiceId = nullptr;  ///< Element `service-id`, "org.openmobilealliance:PoC-session". Owned; NULL: not set.
    char* mVersion = nullptr;    ///< Element `version`, of the service. Owned; NULL: not set.
    char* mDescription = nullptr;  ///< Element `description`, for people. Owned; NULL: not set.
};

/// The words of an element `basic`, here and in PIDF.
inline constexpr char kPresenceBasicTexts[][100] = {"open", "closed"};
inline constexpr XmlEnumeration kPresenceBasics = {kPresenceBasicTexts[0], sizeof kPresenceBasicTexts[0],
                                                   int{std::size(kPresenceBasicTexts)}};

/// What the elements share whose content is one `basic`.
class IX_XML_EXPORT ix_ns_oma_pres_basicType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    static constexpr int kNotSet = 2;

    ~ix_ns_oma_pres_basicType() override { ixRelease(*this, kClass); }

    /// @return 1.
    int setBasicValue(int basic) { return ixSetNumber(mBasic, basic); }

    int mBasic = kNotSet;  ///< Element `basic`: 0 "open", 1 "closed", `kNotSet`. Longer words count by their beginning.

  protected:
    explicit ix_ns_oma_pres_basicType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// The element `willingness`: whether the user wants to be reached by a service.
class IX_XML_EXPORT ix_ns_oma_pres_willingness : public ix_ns_oma_pres_basicType {
  public:
    static const XmlClass kClass;

    ix_ns_oma_pres_willingness() : ix_ns_oma_pres_basicType(kClass) {}
};

/// The element `session-participation`: whether the user takes part in a session of a service.
class IX_XML_EXPORT ix_ns_oma_pres_session_participation : public ix_ns_oma_pres_basicType {
  public:
    static const XmlClass kClass;

    ix_ns_oma_pres_session_participation() : ix_ns_oma_pres_basicType(kClass) {}
};

/// The element `overriding-willingness`: whether the user wants to be reached at all.
class IX_XML_EXPORT ix_ns_oma_pres_overriding_willingness : public ix_ns_oma_pres_basicType {
  public:
    static const XmlClass kClass;

    ix_ns_oma_pres_overriding_willingness() : ix_ns_oma_pres_basicType(kClass) {}
};

/// What the elements share whose content is a state.
class IX_XML_EXPORT ix_ns_oma_pres_stateType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    static constexpr int kNotSet = 2;

    ~ix_ns_oma_pres_stateType() override { ixRelease(*this, kClass); }

    /// @return 1.
    int setStateValue(int state) { return ixSetNumber(mState, state); }

    /// The element's own text: 0 "active", 1 "terminated", `kNotSet`. Longer words count by their beginning.
    int mState = kNotSet;

  protected:
    explicit ix_ns_oma_pres_stateType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// The element `registration-state`: whether the user is registered for a service.
class IX_XML_EXPORT ix_ns_oma_pres_registration_state : public ix_ns_oma_pres_stateType {
  public:
    static const XmlClass kClass;

    ix_ns_oma_pres_registration_state() : ix_ns_oma_pres_stateType(kClass) {}
};

/// The element `barring-state`: whether the user bars incoming sessions of a service. Required: it takes its text at
/// the end tag of `barring`, not at that of its own name, which it ignores like any other.
class IX_XML_EXPORT ix_ns_oma_pres_barring_state : public ix_ns_oma_pres_stateType {
  public:
    static const XmlClass kClass;

    ix_ns_oma_pres_barring_state() : ix_ns_oma_pres_stateType(kClass) {}
};

#endif
