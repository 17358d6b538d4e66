// The two forms of the IM CN subsystem XML body: what the samples do not show.
#include "CWIndication.h"
#include "CallWaitingIndication.h"
#include "FamilyTest.h"
#include "XMLCWIndication.h"
#include "XMLCallWaitingIndication.h"

namespace {

constexpr eXMLSchemaID kCallWaiting = IX_XML_SCHEMA_CALL_WAITING_INDICATION;
constexpr eXMLSchemaID kCw = IX_XML_SCHEMA_CW_INDICATION;

class ImsBodyTest : public FamilyTest {
  protected:
    /// The lines of `file` while `text` is decoded: those of the hooks, in the order of their calls.
    Strings Hooks(eXMLSchemaID id, const std::string& file, const std::string& text) {
        const OwnedElement root(Decode(id, text));
        EXPECT_NE(root.get(), nullptr) << text;
        return NewLinesOf(file);
    }
};

TEST_F(ImsBodyTest, EveryHookTracesItself) {
    const std::string root = "2 In ix_3gpp_ims::ProcessUnMarshall";
    const std::string service = "2 In ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshall";
    const std::string action = "2 In ix_ns_call_waiting_indication_action::ProcessUnMarshall";
    // Required: what follows the alternative service reaches it, and not the root. The attribute that the decoder knows
    // is that of a presence document, so it alone comes twice.
    const Strings callWaiting = {root + "Attribute",
                                 root,
                                 service,
                                 action + "Attribute",   // a
                                 action,                 // call-waiting-indication
                                 action + "Attribute",   // b
                                 action,                 // /call-waiting-indication
                                 service,                // presence
                                 service + "Attribute",  // entity
                                 service + "Attribute",  // entity, as a pair
                                 service + "Attribute",  // version
                                 service};               // /presence
    EXPECT_EQ(
        Hooks(kCallWaiting, "XMLCallWaitingIndication",
              "<3gpp-ims version=\"1\"><alternative-service><action a=\"\"><call-waiting-indication b=\"\"/></action>"
              "</alternative-service><presence entity=\"x\" version=\"1\"/></3gpp-ims>"),
        callWaiting);
    // Required: the attribute hook of the other root writes the name of the first one.
    const std::string cwRoot = "2 In ix_ims_3gpp::ProcessUnMarshall";
    const std::string cwService = "2 In ix_alternative_service::ProcessUnMarshall";
    const Strings cw = {root + "Attribute",
                        root + "Attribute",  // version, and as a pair
                        cwRoot,
                        cwService + "Attribute",  // alternative-service, version
                        cwService,
                        cwService + "Attribute",
                        cwService,  // type, a, /type
                        cwRoot,
                        cwRoot};  // service-info, /service-info
    EXPECT_EQ(
        Hooks(kCw, "XMLCWIndication",
              "<ims-3gpp version=\"2\"><alternative-service version=\"3\"><type a=\"\">t</type></alternative-service>"
              "<service-info>i</service-info></ims-3gpp>"),
        cw);
}

TEST_F(ImsBodyTest, HooksTakeTheirOwnAndIgnoreWhatTheyDoNotKnow) {
    ix_3gpp_ims root;
    ix_ns_call_waiting_indication_alternative_service service;
    ix_ns_call_waiting_indication_action action;
    ExpectTakesItsChildOnly(root, "alternative-service");
    ExpectTakesItsChildOnly(service, "action");
    ExpectTakesItsChildOnly(action, "call-waiting-indication");
    ix_ims_3gpp cwRoot;
    ix_alternative_service cwService;
    ExpectTakesItsChildOnly(cwRoot, "alternative-service");
    ExpectTakesText(cwRoot, "service-info", cwRoot.mServiceInfo);
    ExpectTakesText(cwService, "type", cwService.mType);
    ExpectTakesText(cwService, "action", cwService.mAction);
    ExpectTakesText(cwService, "reason", cwService.mReason);
}

TEST_F(ImsBodyTest, AVersionIsReadOfOneFormAndWrittenOfBoth) {
    const struct {
        const char* text;
        unsigned version;
        const char* written;
    } cases[] = {{"2", 2, " version=\"2\""},       {"0", 0, " version=\"0\""},
                 {" 12.5", 12, " version=\"12\""}, {"-1", 4294967295U, ""},
                 {"one", 0, " version=\"0\""},     {"4294967294", 4294967294U, " version=\"4294967294\""},
                 {"4294967295", 4294967295U, ""},  {"99999999999999999999", 4294967295U, ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const std::string version = " version=\"" + std::string(c.text) + "\"/>";
        const std::string written(c.written);
        EXPECT_EQ(Convert(kCw, "<ims-3gpp" + version), "<ims-3gpp" + written + "></ims-3gpp>");
        EXPECT_EQ(Convert(kCallWaiting, "<3gpp-ims" + version), "<3gpp-ims></3gpp-ims>");
        ix_3gpp_ims root;
        EXPECT_EQ(OfferAttribute(root, "version", c.text), 1);
        EXPECT_EQ(OfferAttribute(root, "version", nullptr), 1);
        EXPECT_EQ(root.mVersion, c.version);
        EXPECT_EQ(Write(kCallWaiting, &root), "<3gpp-ims" + written + "></3gpp-ims>");
    }
}

TEST_F(ImsBodyTest, ABuiltDocumentIsWrittenWholeOrNotAtAll) {
    const std::string file = "XMLCallWaitingIndication";
    const OwnedContext context(kCallWaiting);
    auto* const binder = static_cast<CallWaitingIndicationDataBinder*>(context->createBinderFactory());
    const OwnedElement root(binder->CreateRootElement());
    auto* const service = binder->CreateAlternativeServiceElement();
    auto* const action = binder->CreateActionElement();
    EXPECT_EQ(root.as<ix_3gpp_ims>()->setVersionValue(1), 1);
    EXPECT_EQ(root.as<ix_3gpp_ims>()->setAlternativeServiceValue(service), 1);
    EXPECT_EQ(service->setActionValue(action), 1);
    EXPECT_EQ(action->setCallWaitingIndicationValue(binder->CreateCallWaitingIndicationElement()), 1);
    XMLMarshaller* const marshaller = context->createMarshaller();
    const std::string text =
        "<3gpp-ims version=\"1\">\n<alternative-service>\n<action>\n<call-waiting-indication/></action>"
        "</alternative-service></3gpp-ims>";
    Strings lines = {"3 <XML Module>: CallWaitingIndicationMarshaller :: Marshall",
                     "2 <XML Module>: Add3gppImsElementToXml",
                     "2 <XML Module>: AddAlternativeServiceElementToXml",
                     "2 <XML Module>: AddActionElementToXml",
                     "2 <XML Module>: AddCallWaitingIndicationElementToXml",
                     "2 <XML Module>: CallWaitingIndicationMarshaller XML " + text};
    EXPECT_STREQ(marshaller->Marshall(root.get()), text.c_str());
    EXPECT_EQ(NewLinesOf(file), lines);

    action->mCallWaitingIndication->setPresentValue(0);
    EXPECT_EQ(marshaller->Marshall(root.get()), nullptr);
    lines.insert(lines.begin() + 1,
                 "3 <XML Module>: CallWaitingIndicationMarshaller :: Marshall: Deleting mCallWaitingIndicationXml");
    lines.pop_back();
    const Strings failures = {
        "2 <XML Module>: AddCallWaitingIndicationElementToXml XML Failed!",
        "2 <XML Module>: AddActionElementToXml XML Failed!",
        "2 <XML Module>: CallWaitingIndicationMarshaller XML Failed at AddAlternativeServiceElementToXml!",
        "2 <XML Module>: CallWaitingIndicationMarshaller XML Failed!"};
    lines.push_back(
        "3 CallWaitingIndicationMarshaller::AddCallWaitingIndicationElementToXml: Received empty present false");
    lines.insert(lines.end(), failures.begin(), failures.end());
    EXPECT_EQ(NewLinesOf(file), lines);

    // Required: one without a name writes nothing. The marshaller is as good as new afterwards.
    const char* const empty =
        "<3gpp-ims version=\"1\">\n<alternative-service>\n<action></action></alternative-service></3gpp-ims>";
    action->mCallWaitingIndication->setPresentValue(1);
    action->mCallWaitingIndication->setNameValue(nullptr);
    EXPECT_STREQ(marshaller->Marshall(root.get()), empty);
    action->setCallWaitingIndicationValue(nullptr);
    EXPECT_STREQ(marshaller->Marshall(root.get()), empty);
}

TEST_F(ImsBodyTest, TheOtherFormLogsTheSameTexts) {
    const OwnedContext context(kCw);
    auto* const binder = static_cast<CWIndicationDataBinder*>(context->createBinderFactory());
    const OwnedElement root(binder->CreateRootElement());
    auto* const service = binder->CreateAlternativeServiceElement();
    EXPECT_EQ(root.as<ix_ims_3gpp>()->setAlternativeServiceValue(service), 1);
    EXPECT_EQ(root.as<ix_ims_3gpp>()->setServiceInfoValue("<i/>"), 1);
    EXPECT_EQ(service->setTypeValue("t"), 1);
    XMLMarshaller* const marshaller = context->createMarshaller();
    const std::string text =
        "<ims-3gpp>\n<alternative-service>\n<type>t</type>\n<reason></reason>\n<action></action></"
        "alternative-service>\n"
        "<service-info><i/></service-info></ims-3gpp>";
    EXPECT_STREQ(marshaller->Marshall(root.get()), text.c_str());
    ClearLog();
    EXPECT_STREQ(marshaller->Marshall(root.get()), text.c_str());
    Strings lines = {"3 <XML Module>: CallWaitingIndicationMarshaller :: Marshall",
                     "3 <XML Module>: CallWaitingIndicationMarshaller :: Marshall: Deleting mCallWaitingIndicationXml",
                     "2 <XML Module>: AddIms3gppElementToXml", "2 <XML Module>: AddAlternativeServiceElementToXml",
                     "2 <XML Module>: CallWaitingIndicationMarshaller XML " + text};
    EXPECT_EQ(NewLinesOf("XMLCWIndication"), lines);
    ixDplHostFailAllocation(1);
    EXPECT_EQ(marshaller->Marshall(root.get()), nullptr);
    lines.back() = "2 <XML Module>: CallWaitingIndicationMarshaller XML Failed!";
    EXPECT_EQ(NewLinesOf("XMLCWIndication"), lines);
}

TEST_F(ImsBodyTest, EachFormRefusesTheOther) {
    const struct {
        eXMLSchemaID id;
        const char* file;
        const char* document;
        const char* other;
    } cases[] = {{kCallWaiting, "XMLCallWaitingIndication", "<3gpp-ims/>", "<ims-3gpp version=\"2\"/>"},
                 {kCw, "XMLCWIndication", "<ims-3gpp/>",
                  "<3gpp-ims><alternative-service><action><call-waiting-indication/></action></alternative-service>"
                  "</3gpp-ims>"}};
    for (const auto& c : cases) {
        EXPECT_EQ(Decode(c.id, c.other), nullptr);
        for (const char* const text : {"", "text", "<alternative-service/>", "<3gpp-imss/>"}) {
            EXPECT_EQ(Decode(c.id, text), nullptr) << text;
        }
        EXPECT_EQ(Write(c.id, nullptr), "(null)");
        EXPECT_EQ(NewLinesOf(c.file), Strings());
        ix_string other;
        EXPECT_EQ(Write(c.id, &other), "(null)");
        const Strings refused = {"3 <XML Module>: CallWaitingIndicationMarshaller :: Marshall",
                                 "2 <XML Module>: CallWaitingIndicationMarshaller XML Failed!"};
        EXPECT_EQ(NewLinesOf(c.file), refused);
    }
}

TEST_F(ImsBodyTest, DecodersAnswerEventsWithoutNamesAndWithoutARoot) {
    XMLCallWaitingIndicationDecoder callWaiting;
    XMLCWIndicationDecoder cw;
    char name[] = "version";
    char end[] = "/ims-3gpp";
    for (XmlDecoderSchema* const decoder : std::initializer_list<XmlDecoderSchema*>{&callWaiting, &cw}) {
        EXPECT_EQ(decoder->ProcessElement(nullptr, nullptr), -1);
        EXPECT_EQ(decoder->ProcessAttribute(nullptr, name, name), -1);
        EXPECT_EQ(decoder->ProcessAttribute(name, nullptr, name), -1);
        EXPECT_EQ(decoder->ProcessAttribute(name, name, name), 0);
        EXPECT_EQ(decoder->ProcessElement(end, nullptr), 0);
        EXPECT_EQ(decoder->GetSessionData(), nullptr);
    }
}

}  // namespace
