// Public operations that no document, tree or hook reaches.
#include <type_traits>

#include "BootstrappingInfo.h"
#include "CommunicationWaiting.h"
#include "ReginfoDecoder.h"
#include "Scenario.h"
#include "XMLBootstrappingInfo.h"
#include "XMLCWIndication.h"
#include "XMLCallWaitingIndication.h"
#include "XMLCommunicationBarring.h"
#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLConferenceInfo.h"
#include "XMLFt.h"
#include "XMLGruu.h"
#include "XMLImdn.h"
#include "XMLIsComposing.h"
#include "XMLMediaControl.h"
#include "XMLOriginatingIdentityPresentation.h"
#include "XMLPresence.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLResourceList.h"
#include "XMLRlmi.h"
#include "XMLRlsServices.h"
#include "XMLSimservs.h"
#include "XMLTerminatingIdentityPresentation.h"
#include "XMLVolteConfigInfo.h"
#include "XMLWapProvisioningDoc.h"
#include "XMLXcapDirectory.h"
#include "XMLXcapError.h"

namespace {

class OperationsTest : public XmlTest {
  protected:
    static XMLElement* Read(eXMLSchemaID id, const std::string& text) {
        const XmlOwnedContext context(XMLFactory::newInstance(id));
        return context->createUnMarshaller()->UnMarshall(text.c_str());
    }

    /// What a writer answers to no element, and logs.
    template <class Marshaller, class Element, class... Others>
    std::string AskWriter(int (Marshaller::*writer)(Element, Others...)) {
        std::conditional_t<std::is_abstract_v<Marshaller>, Communication_barringMarshaller, Marshaller> marshaller;
        ClearLog();
        std::string line = std::to_string((marshaller.*writer)(Element{}, Others{}...));
        for (const LogLine& logged : LogOfSchemas()) line += " \"" + ShownWithSource(logged) + '"';
        return line;
    }

    template <class... Writers>
    Strings AskWriters(Writers... writers) {
        return {AskWriter(writers)...};
    }
};

// tests/expected/writers.txt has their lines in this order.
TEST_F(OperationsTest, WritersStandWithoutElement) {
    const Strings lines = AskWriters(
        &BootstrappingInfoMarshaller::AddBootstrappingInfoElementToXml,
        &BootstrappingInfoMarshaller::AddBtidElementToXml, &BootstrappingInfoMarshaller::AddLifetimeElementToXml,
        &CWIndicationMarshaller::AddIms3gppElementToXml, &CWIndicationMarshaller::AddAlternativeServiceElementToXml,
        &CallWaitingIndicationMarshaller::Add3gppImsElementToXml,
        &CallWaitingIndicationMarshaller::AddAlternativeServiceElementToXml,
        &CallWaitingIndicationMarshaller::AddActionElementToXml,
        &CallWaitingIndicationMarshaller::AddCallWaitingIndicationElementToXml,
        &Communication_barringMarshaller::AddIncoming_communication_barringElementToXml,
        &Communication_barringMarshaller::AddOutgoing_communication_barringElementToXml,
        &Communication_diversionMarshaller::AddCommunication_diversionElementToXml,
        &Communication_diversionMarshaller::AddNoReplyTimerElementToXml,
        &Communication_diversionMarshaller::AddForwardToElementtoXml,
        &Communication_waitingMarshaller::AddCommunication_waitingElementToXml,
        &Conference_infoMarshall::AddConferenceInfoElementToXml,
        &Conference_infoMarshall::AddConferenceDescriptionElementToXml,
        &Conference_infoMarshall::AddHostInfoElementToXml, &Conference_infoMarshall::AddConferenceStateElementToXml,
        &Conference_infoMarshall::AddIUsersElementToXml, &Conference_infoMarshall::AddUserElementToXml,
        &Conference_infoMarshall::AddEndPointElementToXml, &Conference_infoMarshall::AddMediaElementToXml,
        &Conference_infoMarshall::AddSipElementToXml, &Conference_infoMarshall::AddExecutionTypeElementToXml,
        &Conference_infoMarshall::AddUrisTypeElementToXml, &Conference_infoMarshall::AddUriTypeElementToXml,
        &Conference_infoMarshall::AddConferenceMediaTypeElementToXml,
        &Conference_infoMarshall::AddConferenceMediumTypeElementToXml, &FileMarshaller::AddFileElementToXml,
        &FileMarshaller::AddFileInfoElementToXml, &FileMarshaller::AddDataElementToXml,
        &GruuMarshaller::AddPubGruuElementToXml, &GruuMarshaller::AddTempGruuElementToXml,
        &IMDNMarshaller::AddIMDNElementToXml, &IMDNMarshaller::AddDeliverNotificationElementToXml,
        &IMDNMarshaller::AddDisplayNotificationElementToXml, &IMDNMarshaller::AddProcessingNotificationElementToXml,
        &IMDNMarshaller::AddNotificationXML, &IsComposingMarshaller::AddIsComposingElementToXml,
        &IsComposingMarshaller::AddStateElementToXml, &IsComposingMarshaller::AddLastactiveElementToXml,
        &IsComposingMarshaller::AddContenttypeElementToXml, &IsComposingMarshaller::AddRefreshElementToXml,
        &MediaControlMarshaller::AddMediaControlElementToXml, &MediaControlMarshaller::AddVcPrimitiveElementToXml,
        &MediaControlMarshaller::AddToEncoderElementToXml, &MediaControlMarshaller::AddEmptyElementToXml,
        &OIPMarshaller::AddOIPElementToXml, &PresenceMarshaller::AddPresenceElementToXml,
        &PresenceMarshaller::AddTupleElementToXml, &PresenceMarshaller::AddStatusElementToXml,
        &PresenceMarshaller::AddContactElementToXml, &PresenceMarshaller::AddNoteElementToXml,
        &PresenceMarshaller::AddServiceDescriptionElementToXml, &PresenceMarshaller::AddServcapsElementToXml,
        &PresenceMarshaller::AddDuplexElementToXml, &PresenceMarshaller::AddDuplexTypesElementToXml,
        &RcsTermsInfoMarshaller::AddRcsTermsInfoElementToXml, &RcsTermsInfoMarshaller::AddTermElementToXml,
        &ReginfoMarshaller::AddReginfoElementToXml, &ReginfoMarshaller::AddRegistrationElementToXml,
        &ReginfoMarshaller::AddReginfoContactElementToXml, &ReginfoMarshaller::AddUnknownParamElementToXml,
        &ReginfoMarshaller::AddPubGruuElementToXml, &ReginfoMarshaller::AddTempGruuElementToXml,
        &Resource_listsMarshall::AddResource_listsElementToXml, &Resource_listsMarshall::AddListElementToXml,
        &Resource_listsMarshall::AddEntryElementToXml, &Resource_listsMarshall::AddEntryRefElementToXml,
        &Resource_listsMarshall::AddExternalElementToXml, &ListMarshaller::AddListElementToXml,
        &ListMarshaller::AddResourceElementToXml, &ListMarshaller::AddInstanceElementToXml,
        &ListMarshaller::AddNameElementToXml, &RlsServicesMarshaller::AddRlsServicesElementToXml,
        &RlsServicesMarshaller::AddServiceElementToXml, &RlsServicesMarshaller::AddPackagesElementToXml,
        &RlsServicesMarshaller::AddPackageElementToXml, &SimservsMarshaller::AddSimservsElementToXml,
        &XmlRuleMarshaller::AddRuleSetElementToXml, &XmlRuleMarshaller::AddRuleElementToXml,
        &XmlRuleMarshaller::AddConditionsElementToXml, &XmlRuleMarshaller::AddActionsElementToXml,
        &XmlRuleMarshaller::AddTransformationsElementToXml, &XmlRuleMarshaller::AddExceptElementToXml,
        &XmlRuleMarshaller::AddEmptyElementtoXml, &TIPMarshaller::AddTIPElementToXml,
        &XcapDirectoryMarshaller::AddXcapDirectoryElementToXml, &XcapDirectoryMarshaller::AddFolderElementToXml,
        &XcapDirectoryMarshaller::AddEntryElementToXml, &Xcap_ErrorMarshall::AddXcap_errorElementToXml,
        &Xcap_ErrorMarshall::AddSchema_validation_errorElementToXml, &Xcap_ErrorMarshall::AddNot_xml_fragElementToXml,
        &Xcap_ErrorMarshall::AddNo_parentElementToXml, &Xcap_ErrorMarshall::AddCannot_insertElementToXml,
        &Xcap_ErrorMarshall::AddNot_xml_att_valueElementToXml, &Xcap_ErrorMarshall::AddUniqueness_failureElementToXml,
        &Xcap_ErrorMarshall::AddExistsElementToXml, &Xcap_ErrorMarshall::AddNot_well_formedElementToXml,
        &Xcap_ErrorMarshall::AddConstraint_failureElementToXml, &Xcap_ErrorMarshall::AddCannot_deleteElementToXml,
        &Xcap_ErrorMarshall::AddNot_utf_8ElementToXml, &Xcap_ErrorMarshall::AddExtensionElementToXml);
    ExpectFile(PROJECT_DIR "/tests/expected/writers.txt", InLines(lines));
}

TEST_F(OperationsTest, ANotificationIsWrittenUnderItsOwnNamesOnly) {
    IMDNMarshaller writer;
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_DISPLAY_NOTIFICATION, IX_STR_STORED, nullptr), 1);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_PROESSING_NOTIFICATION, IX_STR_ERROR, nullptr), 1);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_STATUS, IX_STR_ERROR, nullptr), 0);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_DELIVERY_NOTIFICATION, IX_STR_SUBJECT, nullptr), 0);
}

TEST_F(OperationsTest, DocumentsThatAreOnlyReadHaveMarshallersThatWriteNothing) {
    WapProvisioningDocMarshall wap;
    VolteConfigInfoMarshall volte;
    const XmlOwned<> root(Read(IX_XML_SCHEMA_WAP_PROVISIONING_DOC, "<wap-provisioningdoc/>"));
    for (XMLMarshaller* const marshaller : {static_cast<XMLMarshaller*>(&wap), static_cast<XMLMarshaller*>(&volte)}) {
        EXPECT_EQ(marshaller->Marshall(root.get()), nullptr);
        EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    }
}

TEST_F(OperationsTest, FactoriesOfTwoRootsAreToldWhichOne) {
    CommunicationBarringDataBinder barring;
    EXPECT_EQ(barring.setCBType(XML_CB_NONE), 0);
    EXPECT_EQ(Texts(), (Strings{"<XML Module>: in CommunicationBarringDataBinder::setCBType  3",
                                "<XML Module>: CB Type is invalid "}));
    EXPECT_EQ(barring.setCBType(static_cast<XML_COMMUNICATION_BARRING_TYPE>(0)), 0);
    EXPECT_EQ(barring.setCBType(XML_CB_OUTGOING), 1);
    EXPECT_STREQ(XmlOwned<>(barring.CreateRootElement()).get()->ClassName(), "outgoing-communication-barring");
    EXPECT_EQ(barring.setCBType(XML_CB_INCOMING), 1);
    EXPECT_STREQ(XmlOwned<>(barring.CreateRootElement()).get()->ClassName(), "incoming-communication-barring");
    GruuDataBinder gruu;
    EXPECT_EQ(gruu.CreateRootElement(), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: GruuDataBinder :: Gruutype is NULL"));
    // Any leading part of a type will do.
    const struct {
        const char* type;
        const char* className;
    } rows[] = {{"pub-gruu", "ix_pub_gruu"}, {"temp-gruu", "ix_temp_gruu"}, {"", "ix_pub_gruu"}, {"p", "ix_pub_gruu"},
                {"temp", "ix_temp_gruu"},    {"temp-gruus", nullptr},       {"x", nullptr}};
    for (const auto& row : rows) {
        ASSERT_EQ(gruu.setGruutypeValue(row.type), 1);
        const XmlOwned<> root(gruu.CreateRootElement());
        EXPECT_STREQ(root.get() != nullptr ? root.get()->ClassName() : nullptr, row.className) << row.type;
    }
    EXPECT_TRUE(Logged("<XML Module>: In GruuDataBinder::CreateRootElement with m_pGruutype=temp"));
}

TEST_F(OperationsTest, PrefixesAreRemovedWithinSixteenBits) {
    // Required: the size of a name and two more is counted in 16 bits; what does not fit is cut off.
    const std::string longest(65533, 'n');
    const struct {
        std::string name;
        std::string local;
    } rows[] = {{"btid", "btid"},
                {"bsf:btid", "btid"},
                {"/bsf:btid", "/btid"},
                {"a:b:c", "b:c"},
                {"/", "/"},
                {"bsf:", ""},
                {"/bsf:", "/"},
                {":btid", "btid"},
                {"", ""},
                {longest, longest},
                {longest + "n", ""},             // room for nothing
                {longest + "nn", ""},            // ... for the NUL
                {"/:" + longest + "n", "/"},     // ... for "/", ":" comes behind it
                {"/:b:" + longest + "n", "/b"},  // ... for "/:b"
                {std::string(65540, 'p') + ":btid", "pppppppppp"}};
    XMLBootstrappingInfoDecoder decoder;
    for (const auto& row : rows) {
        ASSERT_EQ(decoder.XMLRemoveNameSpaceTag(row.name.c_str()), 1);
        EXPECT_EQ(decoder.PassName(), row.local) << row.name.size();
    }
    EXPECT_EQ(decoder.XMLRemoveNameSpaceTag(nullptr), 0);
    EXPECT_EQ(Log().back().text, "XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: n_strElement is NULL");
    // 65542 leaves room for "reginfo".
    for (const std::size_t length : {65533U, 65534U, 65535U, 65542U}) {
        const std::string name = "reginfo" + std::string(length - 7, 'x');
        const XmlOwned<> root(Read(IX_XML_SCHEMA_REGINFO, "<" + name + " version=\"5\"></" + name + ">"));
        EXPECT_EQ(root.get() != nullptr, length == 65542U) << length;
    }
}

TEST_F(OperationsTest, ObjectsAreRegisteredUnderTheirLines) {
    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING));
    context->createMarshaller();
    context->createBinderFactory();
    XMLUnMarshaller* const reader = context->createUnMarshaller();
    ixDplHostFailAllocation(0);
    const XmlOwned<> root(reader->UnMarshall("<communication-waiting a=\"b\"/>"));
    EXPECT_LE(ixDplHostAllocations(), 25U);
    ixDplHostStopCounting();
    Strings blocks;
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* to) {
            static_cast<Strings*>(to)->push_back(std::string(block.source) + ":" + std::to_string(block.line));
        },
        &blocks);
    blocks.erase(blocks.begin());  // the context
    const Strings expected = {"ims/xml/src/XMLCommunicationWaiting:331", "ims/xml/src/XMLCommunicationWaiting:389",
                              "ims/xml/src/XMLCommunicationWaiting:380", "ims/xml/src/CommunicationWaiting:314",
                              "ims/xml/src/CommunicationWaiting:372",    "ims/xml/src/XMLCommunicationWaiting:42"};
    EXPECT_EQ(blocks, expected);
}

// A sidebar that fails past the capacity must not leave the mark of the cut on what is written behind it.
TEST_F(OperationsTest, ALongSidebarThatFailsDoesNotCutTheText) {
    const XmlOwned<> root(
        Read(IX_XML_SCHEMA_CONFERENCE_INFO,
             "<conference-info entity=\"e\"><sidebars-by-val><entry entity=\"1\">"
             "<conference-description><subject>" +
                 std::string(40000, 'x') +
                 "</subject></conference-description><users><user><endpoint><media/></endpoint></user>"
                 "</users></entry><entry entity=\"2\"/></sidebars-by-val></conference-info>"));
    Conference_infoMarshall marshaller;
    const std::string text = marshaller.Marshall(root.get());
    EXPECT_NE(text.find("\n<sidebars-by-val>\n<entry  entity=\"2\"></entry></sidebars-by-val>"), std::string::npos);
    EXPECT_EQ(marshaller.IsTruncated(), 0);
}

class SimservsPiecesTest : public OperationsTest {};

TEST_F(SimservsPiecesTest, TheServiceTypeTakesWhatItsClassesIgnore) {
    // A service of an application's own.
    class Service : public ix_ns_xcap_simservType {
    } service;
    char active[] = "active";
    char no[] = "false";
    char other[] = "other";
    EXPECT_EQ(service.ProcessUnMarshall(nullptr, no, nullptr), 1);
    EXPECT_EQ(service.ProcessUnMarshall(active, other, nullptr), 1);
    EXPECT_EQ(service.mActive, 1);
    EXPECT_EQ(service.ProcessUnMarshall(active, no, nullptr), 1);
    EXPECT_EQ(service.mActive, 0);
    EXPECT_EQ(service.ProcessUnMarshall(active, no, &service), 0);
    EXPECT_EQ(service.ProcessUnMarshall(other, no, nullptr), 1);
    EXPECT_EQ(Log().back().text, "Cannot accommodate the element other with value false");
    auto* const child = ixNew<ix_string>("tests");
    EXPECT_EQ(service.ProcessUnMarshall(other, no, child), 1);
    EXPECT_EQ(service.mAnyList->GetCount(), 1);
}

TEST_F(SimservsPiecesTest, ACutLeavesOneCharacterTooManyUnlessItReachesTheEnd) {
    SimservsUnMarshaller unMarshaller;
    const struct {
        std::string text;
        int at;
        int length;
        const char* piece;
        const char* left;
    } rows[] = {{"abcdefgh", 2, 2, "cde", "abfghf"},
                {"abcdefgh", 0, 0, "a", "bcdefghh"},
                {"abcdefgh", 5, 2, "fgh", "abcde"},
                {"abcdefgh", 4, 2, "efg", "abcdhf"}};
    for (auto row : rows) {
        char* piece = nullptr;
        EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(row.text.data(), &piece, row.at, row.length), row.left);
        EXPECT_STREQ(piece, row.piece);
        __free(piece);
    }
    // What cannot be cut leaves all as it was: characters that are not there, and any without memory.
    std::string text = "abc";
    char* piece = nullptr;
    for (const auto& [at, length] : {std::pair{-1, 1}, {0, -1}, {0, 3}, {3, 0}, {4, 0}}) {
        EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(text.data(), &piece, at, length), "abc");
    }
    EXPECT_EQ(unMarshaller.replaceSubStringWithNull(nullptr, &piece, 0, 0), nullptr);
    EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(text.data(), nullptr, 0, 0), "abc");
    ixDplHostFailAllocation(1);
    EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(text.data(), &piece, 0, 1), "abc");
    EXPECT_EQ(piece, nullptr);
}

TEST_F(SimservsPiecesTest, InsertsInFrontOfTheFirstEndTag) {
    SimservsMarshaller marshaller;
    char* text = marshaller.InsertString(__strdup("<a><b></b></a>"), "<c/>");
    EXPECT_STREQ(text, "<a><b><c/></b></a>");
    EXPECT_EQ(marshaller.InsertString(text, nullptr), nullptr);
    EXPECT_EQ(Log().back().text, "SimservsMarshaller :: InsertString mSimservsXml or pString NULL ");
    ixDplHostFailAllocation(1);
    EXPECT_EQ(marshaller.InsertString(text, "<d/>"), text);
    __free(text);
    text = __strdup("<a/>");
    EXPECT_EQ(marshaller.InsertString(text, "<d/>"), nullptr);
    __free(text);
}

TEST_F(SimservsPiecesTest, SaysWhenAServiceWasCut) {
    std::string rules;
    for (int i = 0; i < 2000; ++i) rules += "<cp:rule id=\"r\"/>";
    const XmlOwned<> root(Read(IX_XML_SCHEMA_SIMSERVS, "<simservs><communication-diversion><cp:ruleset>" + rules +
                                                           "</cp:ruleset></communication-diversion></simservs>"));
    SimservsMarshaller marshaller;
    EXPECT_NE(marshaller.Marshall(root.get()), nullptr);
    EXPECT_EQ(marshaller.IsTruncated(), 1);
}

}  // namespace
