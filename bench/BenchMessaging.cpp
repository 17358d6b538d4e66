// Small documents of messages, and the configuration of a device.
#include "BenchDocuments.h"
#include "BenchFamilies.h"

namespace messaging {

struct Status {
    bool delivered = false;
    bool failed = false;
    bool displayed = false;
    bool processed = false;
    bool stored = false;
    bool forbidden = false;
    bool error = false;
    Pairs others;
};
constexpr RecordField kStatusFields[] = {
    RecordOthers<&Status::others>(),
    RecordText<&Status::delivered>("delivered"),
    RecordText<&Status::failed>("failed"),
    RecordText<&Status::displayed>("displayed"),
    RecordText<&Status::processed>("processed"),
    RecordText<&Status::stored>("stored"),
    RecordText<&Status::forbidden>("forbidden"),
    RecordText<&Status::error>("error"),
};
constexpr RecordType kStatusType(kStatusFields);

struct Notification {
    std::optional<Status> status;
};
constexpr RecordField kNotificationFields[] = {RecordChild<&Notification::status>("status", kStatusType)};
constexpr RecordType kNotificationType(kNotificationFields);

struct Imdn {
    Pairs others;
    std::string messageId;
    std::string datetime;
    std::string recipientUri;
    std::string originalRecipientUri;
    std::string subject;
    std::optional<Notification> delivery;
    std::optional<Notification> display;
    std::optional<Notification> processing;
};
constexpr RecordField kImdnFields[] = {
    RecordConstant("xmlns", "urn:ietf:params:xml:ns:imdn"),
    RecordOthers<&Imdn::others>(),
    RecordText<&Imdn::messageId>("message-id"),
    RecordText<&Imdn::datetime>("datetime"),
    RecordText<&Imdn::recipientUri>("recipient-uri"),
    RecordText<&Imdn::originalRecipientUri>("original-recipient-uri"),
    RecordText<&Imdn::subject>("subject"),
    RecordChild<&Imdn::delivery>("delivery-notification", kNotificationType),
    RecordChild<&Imdn::display>("display-notification", kNotificationType),
    RecordChild<&Imdn::processing>("processing-notification", kNotificationType),
};
constexpr RecordType kImdnType(kImdnFields);

struct IsComposing {
    std::string state;
    std::string lastactive;
    std::string contenttype;
    unsigned refresh = 0;
};
constexpr RecordField kIsComposingFields[] = {
    RecordConstant("xmlns", "urn:ietf:params:xml:ns:im-iscomposing"),
    RecordText<&IsComposing::state>("state"),
    RecordText<&IsComposing::lastactive>("lastactive"),
    RecordText<&IsComposing::contenttype>("contenttype"),
    RecordText<&IsComposing::refresh>("refresh"),
};
constexpr RecordType kIsComposingType(kIsComposingFields);

struct Parm {
    std::string name;
    std::string value;
};
constexpr RecordField kParmFields[] = {
    RecordAttribute<&Parm::name>("name"),
    RecordAttribute<&Parm::value>("value"),
};
constexpr RecordType kParmType(kParmFields);

struct Characteristic {
    std::string type;
    std::vector<Parm> parms;
    std::vector<Characteristic> characteristics;
};
extern const RecordType kCharacteristicType;
constexpr RecordField kCharacteristicFields[] = {
    RecordAttribute<&Characteristic::type>("type"),
    RecordChild<&Characteristic::parms>("parm", kParmType),
    RecordChild<&Characteristic::characteristics>("characteristic", kCharacteristicType),
};
constexpr RecordType kCharacteristicType(kCharacteristicFields);

struct Provisioning {
    std::string version;
    std::vector<Characteristic> characteristics;
};
constexpr RecordField kProvisioningFields[] = {
    RecordAttribute<&Provisioning::version>("version"),
    RecordChild<&Provisioning::characteristics>("characteristic", kCharacteristicType),
};
constexpr RecordType kProvisioningType(kProvisioningFields);

constexpr BenchFamily kImdn = MakeFamily<Imdn>(IX_XML_SCHEMA_IMDN, {"imdn", kImdnType, true});
constexpr BenchFamily kIsComposing =
    MakeFamily<IsComposing>(IX_XML_SCHEMA_IS_COMPOSING, {"isComposing", kIsComposingType, true});
constexpr BenchFamily kProvisioning =
    MakeFamily<Provisioning>(IX_XML_SCHEMA_WAP_PROVISIONING_DOC, {"wap-provisioningdoc", kProvisioningType, false});

std::string MakeImdn(std::size_t /*size*/) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<imdn xmlns="urn:ietf:params:xml:ns:imdn">
	<message-id>b81f-7Qz2c9</message-id>
	<datetime>2024-03-05T08:41:07.250+01:00</datetime>
	<recipient-uri>tel:+15550100</recipient-uri>
	<original-recipient-uri>sip:+15550199@ims.example.org;user=phone</original-recipient-uri>
	<delivery-notification>
		<status>
			<delivered/>
		</status>
	</delivery-notification>
</imdn>
)";
}

std::string MakeIsComposing(std::size_t /*size*/) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<isComposing xmlns="urn:ietf:params:xml:ns:im-iscomposing">
  <state>active</state>
  <contenttype>text/plain</contenttype>
  <refresh>90</refresh>
</isComposing>
)";
}

/// The settings of an operator's applications.
std::string MakeProvisioning(std::size_t size) {
    return GrownDocument("<?xml version=\"1.0\"?>\n<wap-provisioningdoc version=\"1.1\">\n",
                         R"(  <characteristic type="NAPDEF">
    <parm name="NAPID" value="nap-#"/>
    <parm name="BEARER" value="GSM-GPRS"/>
    <parm name="NAP-ADDRESS" value="ims#.example.net"/>
    <parm name="INTERNET"/>
    <characteristic type="NAPAUTHINFO">
      <parm name="AUTHTYPE" value="PAP"/>
      <parm name="AUTHNAME" value="subscriber"/>
      <parm name="AUTHSECRET" value="s3cr3t$"/>
    </characteristic>
  </characteristic>
  <characteristic type="APPLICATION">
    <parm name="APPID" value="ap#"/>
    <parm name="NAME" value="IMS Settings"/>
    <parm name="home_network_domain_name" value="ims.example.org"/>
    <parm name="q-value" value="0.8"/>
    <parm name="timer_t1" value="2000"/>
    <characteristic type="public_user_identity_list">
      <parm name="public_user_identity" value="sip:+1555010#@ims.example.org;user=phone"/>
      <parm name="public_user_identity" value="tel:+1555010#"/>
    </characteristic>
    <characteristic type="lbo_p-cscf_address">
      <parm name="address" value="[2001:db8::17]:5060"/>
      <parm name="addresstype" value="IPv6"/>
    </characteristic>
    <characteristic type="messaging">
      <parm name="chatauth" value="1"/>
      <parm name="welcome" value="&quot;Hi&quot; &amp; welcome"/>
      <characteristic type="filetransfer">
        <parm name="fthttpcsuri" value="https://ft.example.org/upload?a=#&amp;b=2"/>
        <parm name="ftmax1to1" value="102400"/>
      </characteristic>
    </characteristic>
  </characteristic>
)",
                         "</wap-provisioningdoc>\n", size);
}

}  // namespace messaging

void AddMessagingDocuments() {
    AddDocument("imdn", messaging::kImdn, messaging::MakeImdn);
    AddDocument("is-composing", messaging::kIsComposing, messaging::MakeIsComposing);
    AddDocument("provisioning-28k", messaging::kProvisioning, messaging::MakeProvisioning, 28 << 10,
                BenchDirections::Decode);
    AddGrowth("provisioning", messaging::kProvisioning, messaging::MakeProvisioning);
}
