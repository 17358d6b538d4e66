// Messaging: disposition notifications, message composition, file transfer, media control. What no sample shows.
#include "FamilyTest.h"
#include "Ft.h"
#include "Imdn.h"
#include "IsComposing.h"
#include "MediaControl.h"
#include "XMLFt.h"
#include "XMLImdn.h"
#include "XMLIsComposing.h"
#include "XMLMediaControl.h"

namespace {

const std::string kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// Decoders answer events without names with -1, and attributes outside of the root with 0.
void ExpectNamelessEventsRefused(XmlDecoderSchema& decoder, int refusedAttribute) {
    char name[] = "name";
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, name, name), refusedAttribute);
    EXPECT_EQ(decoder.ProcessAttribute(name, nullptr, name), refusedAttribute);
    EXPECT_EQ(decoder.ProcessAttribute(name, name, name), 0);
}

class MessagingTest : public FamilyTest {};

TEST_F(MessagingTest, DecodersRefuseEventsWithoutNames) {
    XMLImdnDecoder imdn;
    XMLIsComposingDecoder composing;
    const struct {
        XmlDecoderSchema& decoder;
        std::string name;
    } logging[] = {{imdn, "XMLImdnDecoder"}, {composing, "XMLIsComposingDecoder"}};
    for (const auto& c : logging) {
        ExpectNamelessEventsRefused(c.decoder, -1);
        const std::string prefix = "<XML Module>" + c.name + " :: ";
        const std::string noMemory = c.name + " :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory";
        const Strings expected = {prefix + "ProcessElement: n_strElement is NULL",
                                  prefix + "ProcessAttribute: n_strElement is NULL",
                                  noMemory,
                                  prefix + "ProcessElement: m_strDup or m_PassName is NULL",
                                  noMemory,
                                  prefix + "ProcessAttribute: m_strDup is NULL"};
        EXPECT_EQ(RefusedEvents(c.decoder), expected);
    }
    XMLFileDecoder file;
    ExpectNamelessEventsRefused(file, -1);
    XMLMediaControlDecoder media;
    ExpectNamelessEventsRefused(media, 0);
}

TEST_F(MessagingTest, MarshallersTakeTheirOwnRootOnly) {
    ix_file file;
    ix_imdn imdn;
    EXPECT_EQ(Write(IX_XML_SCHEMA_IMDN, &file), "(null)");
    EXPECT_EQ(Write(IX_XML_SCHEMA_IS_COMPOSING, &file), "(null)");
    EXPECT_EQ(Write(IX_XML_SCHEMA_MEDIA_CONTROL, &file), "(null)");
    EXPECT_EQ(Write(IX_XML_SCHEMA_FILE, &imdn), "(null)");
    IMDNMarshaller writer;
    EXPECT_EQ(writer.Marshall(nullptr), nullptr);
    EXPECT_EQ(writer.AddIMDNElementToXml(nullptr), 0);
    EXPECT_EQ(writer.AddDeliverNotificationElementToXml(nullptr), 0);
    EXPECT_EQ(FileMarshaller().AddFileElementToXml(nullptr), 0);
    EXPECT_EQ(FileMarshaller().AddDataElementToXml(nullptr), 0);
    EXPECT_EQ(MediaControlMarshaller().AddMediaControlElementToXml(nullptr), 0);
}

class ImdnTest : public FamilyTest {
  protected:
    static std::string Document(const std::string& inside, const std::string& attributes = "") {
        return kDeclaration + "<imdn  xmlns=\"urn:ietf:params:xml:ns:imdn\"" + attributes + ">" + inside + "</imdn>";
    }
};

TEST_F(ImdnTest, WritesTheFirstValueThatTheNotificationMayHave) {
    const std::string all = "<error/><forbidden/><stored/><processed/><displayed/><failed/><delivered/>";
    const struct {
        std::string notification;
        std::string status;
        std::string written;  ///< "": none
    } cases[] = {
        {"delivery", all, "delivered"},
        {"delivery", "<error/><forbidden/><failed/>", "failed"},
        {"delivery", "<error/><forbidden/>", "forbidden"},
        {"delivery", "<error/>", "error"},
        {"delivery", "<displayed/><processed/><stored/>", ""},
        {"display", all, "displayed"},
        {"display", "<error/><forbidden/>", "forbidden"},
        {"display", "<failed/><error/>", "error"},
        {"display", "<delivered/><failed/><processed/><stored/>", ""},
        {"processing", all, "processed"},
        {"processing", "<error/><forbidden/><stored/>", "stored"},
        {"processing", "<error/><forbidden/>", "forbidden"},
        {"processing", "<delivered/><error/>", "error"},
        {"processing", "<delivered/><failed/><displayed/>", ""},
        {"processing", "", ""},
    };
    for (const auto& c : cases) {
        const std::string name = c.notification + "-notification";
        const std::string writtenName = c.notification == "processing" ? "proessing-notification" : name;
        const std::string text = "<imdn><" + name + "><status>" + c.status + "</status></" + name + "></imdn>";
        const std::string inside = c.written.empty() ? ""
                                                     : "\n<" + writtenName + ">\n<status>\n<" + c.written +
                                                           "/></status></" + writtenName + ">";
        EXPECT_EQ(Convert(IX_XML_SCHEMA_IMDN, text), Document(inside)) << text;
    }
}

TEST_F(ImdnTest, WritesOneNotificationOrSaysThatItFailed) {
    const std::string delivery = "<delivery-notification/>";
    const std::string display = "<display-notification><status><processed/></status></display-notification>";
    const std::string processing = "<processing-notification/>";
    const struct {
        std::string notifications;
        std::string writer;
        std::string failed;
    } cases[] = {
        {processing + display + delivery, "AddDeliverNotificationElementToXml", "Delivery Notification"},
        {processing + display, "AddDisplayNotificationElementToXml", "Display Notification"},
        {processing, "AddProcessingNotificationElementToXml", "Processing Notification"},
    };
    for (const auto& c : cases) {
        const OwnedElement root(Decode(IX_XML_SCHEMA_IMDN, "<imdn><subject>s</subject>" + c.notifications + "</imdn>"));
        const std::string text = Document("\n<subject>s</subject>");
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_IMDN, root.get()), text);
        const Strings expected = {"3 <XML Module>: IMDNMarshaller :: Marshall", "2 <XML Module>: AddIMDNElementToXml",
                                  "2 <XML Module>: " + c.writer,
                                  "3 <XML Module>: AddIMDNElementToXml, failed to add " + c.failed + ".",
                                  "2 <XML Module>: Marshall XML " + text};
        EXPECT_EQ(LevelsAndTexts(Log()), expected);
    }
}

TEST_F(ImdnTest, AStartTagIsClosedWhateverItsAttributeListHolds) {
    IMDNDataBinder binder;
    const OwnedElement root(binder.CreateRootElement());
    auto* const imdn = root.as<ix_imdn>();
    auto* const display = binder.CreateDisplayNotification();
    auto* const status = binder.CreateStatus();
    imdn->setDisplayNotificationValue(display);
    display->setStatusValue(status);
    status->setDisplayedValue(binder.CreateDisplayedElement());
    imdn->setAnyAttributeListValue(ixNew<IxSingleElementList>("test"));
    status->setAnyAttributeListValue(ixNew<IxSingleElementList>("test"));
    const std::string rest = "\n<displayed/></status></display-notification>";
    EXPECT_EQ(Write(IX_XML_SCHEMA_IMDN, root.get()), Document("\n<display-notification>\n<status>" + rest));
    // Entries that cannot be written, the last one among them.
    imdn->addAnyAttribute(ixCreatePair("a", "b", "test", 1));
    imdn->addAnyAttribute(ixCreatePair(nullptr, "b", "test", 1));
    EXPECT_EQ(status->addAnyAttribute(nullptr), 0);
    status->mAnyAttributeList->Add(nullptr);
    EXPECT_EQ(Write(IX_XML_SCHEMA_IMDN, root.get()),
              Document("\n<display-notification>\n<status>" + rest, "  a=\"b\""));
}

TEST_F(ImdnTest, ABuiltTreeIsTheDecodedOne) {
    IMDNDataBinder binder;
    const OwnedElement root(binder.CreateRootElement());
    auto* const imdn = root.as<ix_imdn>();
    auto* const delivery = binder.CreateDeliverNotification();
    auto* const display = binder.CreateDisplayNotification();
    auto* const processing = binder.CreateProcesssingNotification();
    imdn->setDeliveryNotificationValue(delivery);
    imdn->setDisplayNotificationValue(display);
    imdn->setProcessingNotificationValue(processing);
    for (ix_notificationType* const notification :
         std::initializer_list<ix_notificationType*>{delivery, display, processing}) {
        ix_status* const status = binder.CreateStatus();
        notification->setStatusValue(status);
        status->setDeliveredValue(binder.CreateDeliveredElement());
        status->setFailedValue(binder.CreateFailedElement());
        status->setDisplayedValue(binder.CreateDisplayedElement());
        status->setProcessedValue(binder.CreateProcessedElement());
        status->setStoredValue(binder.CreateStoredElement());
        status->setForbiddenValue(binder.CreateForbiddenElement());
        status->setErrorValue(binder.CreateErrorElement());
    }
    std::string text = "<imdn>";
    for (const char* const name : {"delivery-notification", "display-notification", "processing-notification"}) {
        text += "<" + std::string(name) +
                "><status><delivered/><failed/><displayed/><processed/><stored/><forbidden/><error/></status></" +
                name + ">";
    }
    const OwnedElement decoded(Decode(IX_XML_SCHEMA_IMDN, text + "</imdn>"));
    EXPECT_TRUE(XmlFields::Equal(root.get(), decoded.get())) << TreeOf(decoded.get());
}

TEST_F(ImdnTest, LogsWhatItHasNoPlaceFor) {
    ClearLog();
    const OwnedElement root(
        Decode(IX_XML_SCHEMA_IMDN,
               "<imdn xmlns=\"x\"><subject xmlns=\"z\">s</subject><a:note>n</a:note><proessing-notification/><status "
               "xmlns=\"y\"/></imdn>"));
    const Strings expected = {"2 Cannot accommodate the element note with value (null)",
                              "2 Cannot accommodate the element /note with value n",
                              "2 Cannot accommodate the element proessing-notification with value (null)",
                              "2 Cannot accommodate the element /proessing-notification with value "};
    EXPECT_EQ(LevelsAndTexts(LogOf("XMLImdn")), expected);
    // Only the root's own namespace is left out.
    EXPECT_EQ(Pairs(root.as<ix_imdn>()->mAnyAttributeList), Strings{"xmlns=z"});
    EXPECT_EQ(TreeOf(root.get()).at("/any/0/attributes/0/name"_json_pointer), "xmlns");
}

TEST_F(ImdnTest, HooksTakeTheirOwnClassesOnly) {
    ix_imdn imdn;
    ix_delivery_notification delivery;
    ix_status status;
    ix_failed failed;
    for (const char* const name : {"delivery-notification", "display-notification", "processing-notification"}) {
        EXPECT_EQ(Offer(imdn, name, nullptr, &failed), 0) << name;
        EXPECT_EQ(Offer(imdn, name, nullptr, nullptr), 0) << name;
    }
    EXPECT_EQ(Offer(delivery, "status", nullptr, &failed), 0);
    EXPECT_EQ(Offer(delivery, "message-id", nullptr, nullptr), 1);
    EXPECT_EQ(Offer(status, "note", nullptr, nullptr), 1);
    EXPECT_EQ(OfferAttribute(imdn, "a", "v"), 1);
    EXPECT_EQ(OfferAttribute(status, "a", "v"), 1);
    EXPECT_EQ(imdn.mAnyAttributeList, nullptr);
    // An element of another kind is kept.
    EXPECT_EQ(Offer(imdn, "proessing-notification", nullptr, ixNew<ix_processing_notification>("test")), 1);
    EXPECT_EQ(Offer(status, "delivered", nullptr, ixNew<ix_string>("test")), 1);
    EXPECT_EQ(Offer(status, "delivered", nullptr, ixNew<ix_stored>("test")), 1);
    EXPECT_EQ(status.mDelivered, nullptr);
    EXPECT_NE(status.mStored, nullptr);
    EXPECT_EQ(imdn.mAnyElementList->GetCount(), 1);
    EXPECT_EQ(status.mAnyElementList->GetCount(), 1);
}

TEST_F(ImdnTest, ANotificationIsWrittenUnderItsOwnNamesOnly) {
    IMDNMarshaller writer;
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_DISPLAY_NOTIFICATION, IX_STR_STORED, nullptr), 1);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_PROESSING_NOTIFICATION, IX_STR_ERROR, nullptr), 1);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_STATUS, IX_STR_ERROR, nullptr), 0);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_DELIVERY_NOTIFICATION, IX_STR_SUBJECT, nullptr), 0);
    EXPECT_EQ(writer.AddNotificationXML(IX_STR_DELIVERY_NOTIFICATION, IX_STR_IX_NULL, nullptr), 0);
}

class IsComposingTest : public FamilyTest {};

TEST_F(IsComposingTest, AttributesAreOfferedAsElements) {
    ClearLog();
    EXPECT_EQ(Field(IX_XML_SCHEMA_IS_COMPOSING,
                    "<isComposing xmlns=\"u\" state=\"no\" xsi:schemaLocation=\"a&amp;b\" ><state x=\"1\">idle</state>"
                    "<more>m</more></isComposing>",
                    "/state"),
              "idle");
    const Strings expected = {"2 Cannot accommodate the element xmlns with value u",
                              "2 Cannot accommodate the element xsi:schemaLocation with value a&b",
                              "2 Cannot accommodate the element x with value 1",
                              "2 Cannot accommodate the element more with value (null)",
                              "2 Cannot accommodate the element /more with value m"};
    EXPECT_EQ(LevelsAndTexts(LogOf("XMLIsComposing")), expected);
}

TEST_F(IsComposingTest, ReadsTheLeadingDigitsOfRefresh) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {{"12abc", "12"},
                 {"abc", "(absent)"},
                 {"", "(absent)"},
                 {"-5", "(absent)"},
                 {" 7", "7"},
                 {"0", "(absent)"},
                 {"2147483648", "2147483648"},
                 {"4294967296", "4294967295"}};
    for (const auto& c : cases) {
        EXPECT_EQ(Field(IX_XML_SCHEMA_IS_COMPOSING,
                        "<isComposing><refresh>" + std::string(c.text) + "</refresh></isComposing>", "/refresh"),
                  c.value)
            << c.text;
    }
}

// An earlier text is overwritten without being freed.
TEST_F(IsComposingTest, ARepeatedTextLeavesTheEarlierOneBehind) {
    EXPECT_EQ(Field(IX_XML_SCHEMA_IS_COMPOSING, "<isComposing><state>idle</state><state>active</state></isComposing>",
                    "/state"),
              "active");
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
    ExpectLeftBehind(0);
    ix_isComposing root;
    EXPECT_EQ(root.setStateValue("a"), 1);
    ixDplHostFailAllocation(1);
    EXPECT_EQ(root.setStateValue("b"), 0);
    EXPECT_STREQ(root.mState, "a");
    char* const earlier = root.mState;
    EXPECT_EQ(root.setStateValue(nullptr), 1);
    EXPECT_EQ(root.mState, nullptr);
    FreeElement(earlier);
}

TEST_F(IsComposingTest, SaysWhatIsNotPresent) {
    ix_isComposing root;
    ClearLog();
    EXPECT_EQ(Write(IX_XML_SCHEMA_IS_COMPOSING, &root), "(null)");
    const Strings failed = {"<XML Module>: IsComposingMarshaller :: Marshall",
                            "<XML Module>: AddIsComposingElementToXml",
                            "<XML Module>: IsComposingMarshaller XML Failed!"};
    EXPECT_EQ(Texts(), failed);
    ASSERT_EQ(root.setStateValue("idle"), 1);
    ClearLog();
    const std::string text =
        kDeclaration +
        "<isComposing  xmlns=\"urn:ietf:params:xml:ns:im-iscomposing\"  "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"  "
        "xsi:schemaLocation=\"urn:ietf:params:xml:ns:im-composing  iscomposing.xsd\">\n<state>idle</state>"
        "</isComposing>";
    EXPECT_EQ(Write(IX_XML_SCHEMA_IS_COMPOSING, &root), text);
    const Strings expected = {
        "3 <XML Module>: IsComposingMarshaller :: Marshall",
        "2 <XML Module>: AddIsComposingElementToXml",
        "2 <XML Module>: AddStateElementToXml",
        "1 <XML Module>: IsComposingElement lastactive not present",
        "1 <XML Module>: IsComposingElement Content-type not present",
        "1 <XML Module>: IsComposingElement Refresh not present",
        "2 <XML Module>: IsComposingMarshaller XML " + text,
    };
    EXPECT_EQ(LevelsAndTexts(Log()), expected);
}

TEST_F(IsComposingTest, KeepsElementsOfOtherSchemas) {
    ix_isComposing root;
    ix_string known;
    EXPECT_EQ(Offer(root, "state", nullptr, &known), 0);
    EXPECT_EQ(Offer(root, "/state", nullptr, nullptr), 1);
    EXPECT_EQ(root.mState, nullptr);
    EXPECT_EQ(root.mAnyElementList, nullptr);
    EXPECT_EQ(Offer(root, "other", nullptr, ixNew<ix_string>("test")), 1);
    ASSERT_NE(root.mAnyElementList, nullptr);
    EXPECT_EQ(root.mAnyElementList->GetCount(), 1);
}

TEST_F(IsComposingTest, TheFixedDocument) {
    const std::string expected =
        kDeclaration +
        "<isComposing  xmlns=\"urn:ietf:params:xml:ns:im-iscomposing\"  "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"  "
        "xsi:schemaLocation=\"urn:ietf:params:xml:ns:im-composing  iscomposing.xsd\">\n<state>active</state>\n"
        "<lastactive>2002-05-30T09:30:10-06:00</lastactive>\n<contenttype>audio</contenttype>\n"
        "<refresh>9</refresh></isComposing>";
    bool reached = true;
    for (unsigned long failing = 1; reached; ++failing) {
        ixDplHostFailAllocation(failing);
        char* const text = TestIsComposingMarshall();
        reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        EXPECT_EQ(text != nullptr ? text : "(null)", reached ? "(null)" : expected) << failing;
        FreeElement(text);
    }
}

class FileTransferTest : public FamilyTest {};

TEST_F(FileTransferTest, OneMissingUrlFailsTheDocument) {
    // A name with a blank behind it is another name.
    const OwnedElement root(Decode(IX_XML_SCHEMA_FILE,
                                   "<file><file-info><data url=\"u\"/></file-info><file-info type=\"t\"><file-size>3"
                                   "</file-size><data url = \"u\" etag=\"e\"/></file-info><file-info/></file>"));
    ClearLog();
    EXPECT_EQ(Write(IX_XML_SCHEMA_FILE, root.get()), "(null)");
    const Strings expected = {
        "3 <XML Module>: FileMarshaller :: Marshall",
        "2 <XML Module>: AddFileElementToXml",
        "2 <XML Module>: AddFileInfoElementToXml",
        "2 <XML Module>: AddDataElementToXml",
        "2 <XML Module>: AddFileInfoElementToXml",
        "2 <XML Module>: AddDataElementToXml",
        "4 <XML Module>: AddDataElementToXml url mandatory attribute",
        "2 <XML Module>: AddDataElementToXml XML Failed!",
        "2 <XML Module>: FileMarshaller XML Failed at AddFileInfoElementToXml!",
        "2 <XML Module>: FileMarshaller XML Failed!",
    };
    EXPECT_EQ(LevelsAndTexts(Log()), expected);
}

// A list of a caller's own may hold another element, or none.
TEST_F(FileTransferTest, AnEntryOfAnotherClassFailsTheDocument) {
    for (XMLElement* const entry :
         {static_cast<XMLElement*>(ixNew<ix_ns_ft_data>("test")), static_cast<XMLElement*>(nullptr)}) {
        ix_file file;
        auto* const list = ixNew<IxSingleElementList>("test");
        ASSERT_EQ(list->Add(entry), 1);
        EXPECT_EQ(file.setFileInfoListValue(list), 1);
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_FILE, &file), "(null)");
        const Strings expected = {
            "3 <XML Module>: FileMarshaller :: Marshall",
            "2 <XML Module>: AddFileElementToXml",
            "2 <XML Module>: AddFileInfoElementToXml",
            "2 <XML Module>: FileMarshaller XML Failed at AddFileInfoElementToXml!",
            "2 <XML Module>: FileMarshaller XML Failed!",
        };
        EXPECT_EQ(LevelsAndTexts(Log()), expected);
    }
}

TEST_F(FileTransferTest, OnlyTheFirstOfTwoRootsInARowIsRead) {
    EXPECT_EQ(Convert(IX_XML_SCHEMA_FILE,
                      "<file><file-info type=\"thumbnail\"/></file><file><file-info type=\"file\"/></file>"),
              kDeclaration + "<file>\n<file-info  type=\"thumbnail\"></file-info></file>");
    EXPECT_EQ(Convert(IX_XML_SCHEMA_FILE, "<file/>"), kDeclaration + "<file></file>");
}

TEST_F(FileTransferTest, LogsEveryOffer) {
    ClearLog();
    const OwnedElement root(Decode(
        IX_XML_SCHEMA_FILE,
        "<file a=\"b\"><file-info type=\"t\"><file-size>1</file-size><data url=\"u\" a=\"b\"/></file-info></file>"));
    const Strings expected = {
        "2 In ix_file::ProcessUnMarshallAttribute",      "2 In ix_file::ProcessUnMarshall",
        "2 In ix_ns_ft_file_info::ProcessUnMarshall",    "2 In ix_ns_ft_file_info::ProcessUnMarshall",
        "2 In ix_ns_ft_file_info::ProcessUnMarshall",    "2 In ix_ns_ft_data::ProcessUnMarshallAttribute",
        "2 In ix_ns_ft_data::ProcessUnMarshallAttribute"};
    EXPECT_EQ(LevelsAndTexts(LogOf("XMLFt")), expected);
}

TEST_F(FileTransferTest, HooksAnswerAsTheyMust) {
    ix_file file;
    ix_ns_ft_file_info info;
    ix_ns_ft_data data;
    ix_AttributeValuePair pair;
    ix_string other;
    NamelessElement nameless;
    ExpectAnswers({
        {file, "file-info", nullptr, 0},
        {file, "file-info", &other, 1},
        {file, "data", &data, 1},
        {info, "data", &other, 0},
        {info, "data", &nameless, 1},
        {info, "data", nullptr, 0},
        {info, "file-info", &info, 1},
        {info, "/file-size", &other, 0},
        {info, "file-size", nullptr, 1},
    });
    EXPECT_EQ(file.mFileInfoList, nullptr);
    for (const char* const name : {"url", "etag", "until"})
        EXPECT_EQ(OfferAttribute(data, name, "v", &pair), 0) << name;
    EXPECT_EQ(OfferAttribute(info, "type", "v", &pair), 0);
    EXPECT_EQ(OfferAttribute(data, "type", "v"), 1);
    EXPECT_EQ(TreeOf(&data).size(), 1U);
    EXPECT_EQ(TreeOf(&info).size(), 1U);
    char url[] = "url";
    EXPECT_EQ(data.ProcessUnMarshallAttribute(url, url, nullptr), 1);
    EXPECT_EQ(data.ProcessUnMarshallAttribute(url, nullptr, nullptr), 1);
    EXPECT_STREQ(data.mUrl, "url");
}

class MediaControlTest : public FamilyTest {};

TEST_F(MediaControlTest, AnUnknownElementBehindTheRequestCancelsIt) {
    const struct {
        const char* text;
        const char* requested;
    } cases[] = {
        {"<picture_fast_update/>", "true"},
        {"<picture_fast_update><a/></picture_fast_update>", "(absent)"},
        {"<picture_fast_update/><a/>", "(absent)"},
        {"<picture_fast_update/><to_encoder><picture_fast_update/></to_encoder>", "(absent)"},
        {"<a/><picture_fast_update/>", "true"},
        {"<picture_fast_update/><a/><x:picture_fast_update/>", "true"},
        {"<picture_fast_update/></to_encoder><a/><to_encoder>", "(absent)"},
        {"<picture_fast_update a=\"b\"/>text", "true"},
        {"", "(absent)"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Field(IX_XML_SCHEMA_MEDIA_CONTROL,
                        "<media_control><vc_primitive><to_encoder>" + std::string(c.text) +
                            "</to_encoder></vc_primitive></media_control>",
                        "/vc_primitive/to_encoder/picture_fast_update"),
                  c.requested)
            << c.text;
    }
}

TEST_F(MediaControlTest, ARequestThatIsNotPresentFailsTheDocument) {
    MediaControlDataBinder binder;
    const OwnedElement root(binder.CreateRootElement());
    EXPECT_EQ(Write(IX_XML_SCHEMA_MEDIA_CONTROL, root.get()), kDeclaration + "<media_control></media_control>");
    ix_vc_primitive* const primitive = binder.CreateVcPrimitiveElement();
    root.as<ix_media_control>()->setVcPrimitiveValue(primitive);
    ix_to_encoder* const toEncoder = binder.CreateToEncoderElement();
    primitive->setToEncoderValue(toEncoder);
    ix_empty_element_type* const request = binder.CreatePictureFastUpdateElement();
    toEncoder->setPictureFastUpdateValue(request);
    const OwnedElement decoded(Decode(IX_XML_SCHEMA_MEDIA_CONTROL, Sample("media-control/typical")));
    EXPECT_TRUE(XmlFields::Equal(root.get(), decoded.get()));

    request->setPresentValue(0);
    ClearLog();
    EXPECT_EQ(Write(IX_XML_SCHEMA_MEDIA_CONTROL, root.get()), "(null)");
    const Strings expected = {
        "3 <XML Module>: MediaControlMarshaller :: Marshall",
        "2 <XML Module>: AddMediaControlElementToXml",
        "2 <XML Module>: AddVcPrimitiveElementToXml",
        "2 <XML Module>: AddToEncoderElementToXml",
        "2 <XML Module>: AddEmptyElementToXml",
        "3 MediaControlMarshaller::AddEmptyElementToXml: Received empty present false",
        "2 <XML Module>: AddEmptyElementToXml XML Failed!",
        "2 <XML Module>: AddToEncoderElementToXml XML Failed!",
        "2 <XML Module>: AddVcPrimitiveElementToXml XML Failed!",
        "2 <XML Module>: MediaControlMarshaller XML Failed!",
    };
    EXPECT_EQ(LevelsAndTexts(Log()), expected);
    request->setPresentValue(1);
    request->setNameValue(nullptr);
    // Required: one without a name writes nothing.
    EXPECT_EQ(
        Write(IX_XML_SCHEMA_MEDIA_CONTROL, root.get()),
        kDeclaration + "<media_control>\n<vc_primitive>\n<to_encoder></to_encoder></vc_primitive></media_control>");
    EXPECT_EQ(MediaControlMarshaller().AddEmptyElementToXml(nullptr), 0);
    EXPECT_EQ(Log().back().text, "MediaControlMarshaller::AddEmptyElementToXml: Received empty element is NULL");
}

TEST_F(MediaControlTest, HooksAnswerAsTheyMust) {
    ix_media_control root;
    ix_vc_primitive primitive;
    ix_to_encoder toEncoder;
    ix_string other;
    NamelessElement nameless;
    ExpectAnswers({
        {root, "vc_primitive", &other, 0},
        {root, "stream_id", nullptr, 1},
        {primitive, "to_encoder", &primitive, 0},
        {primitive, "/stream_id", nullptr, 1},
        {toEncoder, "picture_fast_update", nullptr, 0},
        {toEncoder, "picture_fast_update", &other, 0},
        {toEncoder, "picture_fast_update", &nameless, 1},
        {toEncoder, "camera", nullptr, 1},
    });
    EXPECT_EQ(toEncoder.mPictureFastUpdate, nullptr);
}

}  // namespace
