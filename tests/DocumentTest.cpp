// Documents as one object, and copies of them.
#include "XmlDocument.h"

#include <typeinfo>

#include "Classes.h"
#include "XMLBootstrappingInfo.h"
#include "XMLCWIndication.h"
#include "XMLCallWaitingIndication.h"
#include "XMLConferenceInfo.h"
#include "XMLFt.h"
#include "XMLImdn.h"
#include "XMLIsComposing.h"
#include "XMLMediaControl.h"
#include "XMLPresence.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLResourceList.h"
#include "XMLRlmi.h"
#include "XMLRlsServices.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XMLSimservs.h"
#include "XMLVolteConfigInfo.h"
#include "XMLWapProvisioningDoc.h"
#include "XMLXcapDirectory.h"
#include "XMLXcapError.h"
#include "XmlTest.h"

namespace {

constexpr eXMLProfile kProfiles[] = {IX_XML_PROFILE_DEVICE, IX_XML_PROFILE_STANDARD};

std::string SamplesOf(eXMLSchemaID id) {
    return PROJECT_DIR "/samples/" + std::string(XMLFactory::SchemaInfo(id)->name);
}

/// "line:column text".
template <class Document>
std::string Described(const Document& document) {
    return std::to_string(document.Line()) + ':' + std::to_string(document.Column()) + ' ' + document.Problem();
}

class DocumentTest : public XmlTest {};

template <class Root>
class EveryDocumentTest : public XmlTest {};

using Roots = testing::Types<ix_isComposing, ix_resource_lists, ix_conference_type, ix_imdn, ix_communication_waiting,
                             ix_originating_identity_presentation, ix_terminating_identity_presentation,
                             ix_communication_diversion, ix_incoming_communication_barring,
                             ix_outgoing_communication_barring, ix_Simservs, ix_xcap_error, ix_wap_provisioning_doc,
                             ix_volte_config_info, ix_presence, ix_rls_services, ix_list, ix_xcap_directory, ix_file,
                             ix_media_control, ix_3gpp_ims, ix_ims_3gpp, ix_rcs_terms_info, ix_bootstrappinginfo,
                             ix_pub_gruu, ix_temp_gruu, ix_reginfo, ix_schema_namespace_retrieval>;
TYPED_TEST_SUITE(EveryDocumentTest, Roots, );

template <class Root>
void ExpectDocuments(eXMLProfile profile) {
    constexpr eXMLSchemaID kSchema = Root::Document::kSchema;
    XmlDocument<Root> document(profile);
    EXPECT_FALSE(document);
    if (profile == IX_XML_PROFILE_STANDARD && kSchema == IX_XML_SCHEMA_CALL_WAITING_INDICATION) {
        EXPECT_FALSE(document.Read("<a/>"));
        EXPECT_STREQ(document.Problem(), "documents of this kind have no standard profile");
        return;
    }
    const XMLObjectFactory* const factory = document.Factory();
    ASSERT_NE(factory, nullptr);
    EXPECT_EQ(typeid(*factory), typeid(typename Root::Document::Factory));
    EXPECT_TRUE(document.Create());
    EXPECT_TRUE(ixIs<Root>(document.Get()));

    const XmlOwnedContext context(XMLFactory::newInstance(kSchema, profile));
    XMLMarshaller* const writer = context->createMarshaller();
    int count = 0;
    for (const std::string& file : FilesBelow(SamplesOf(kSchema))) {
        if (!document.ReadFile(file.c_str())) continue;
        ++count;
        EXPECT_TRUE(ixIs<Root>(document.Get())) << file;
        EXPECT_STREQ(document.Problem(), "");
        const char* const text = document.Write();
        EXPECT_EQ(text == nullptr, *document.Problem() != '\0');
        if (writer != nullptr) {
            EXPECT_STREQ(text, writer->Marshall(document.Get())) << file;
        } else {
            EXPECT_STREQ(document.Problem(), "documents of this kind are only read");
        }
    }
    EXPECT_GE(count, 1);
}

// The class of the root has to name the schema and the factory that the registry has for it.
TYPED_TEST(EveryDocumentTest, IsThatOfItsSchema) {
    for (const eXMLProfile profile : kProfiles) {
        ExpectDocuments<TypeParam>(profile);
        this->ReleaseLeftovers();
    }
}

TEST_F(DocumentTest, SaysWhyThereIsNone) {
    const struct {
        eXMLProfile profile;
        const char* text;
        const char* problem;
    } rows[] = {
        {IX_XML_PROFILE_DEVICE, nullptr, "0:0 there is no text"},
        {IX_XML_PROFILE_DEVICE, "<gruu/>",
         "0:0 not complete and balanced XML, no memory, or another root than \"communication-diversion\""},
        {IX_XML_PROFILE_DEVICE, "<cp:sphere value=\"x\"/>", "0:0 another root than \"communication-diversion\""},
        {IX_XML_PROFILE_STANDARD, nullptr, "0:0 there is no text"},
        {IX_XML_PROFILE_STANDARD, "<communication-diversion>\n <b></a>",
         "2:5 line 2, column 5: not the end tag of the open element"},
        {IX_XML_PROFILE_STANDARD, "<cp:sphere value=\"x\"/>", "0:0 another root than \"communication-diversion\""},
    };
    for (const auto& row : rows) {
        XmlDocument<ix_communication_diversion> document(row.profile);
        ASSERT_TRUE(document.Create());
        EXPECT_FALSE(document.Read(row.text));
        EXPECT_FALSE(document) << "what was there before is no answer";
        EXPECT_EQ(Described(document), row.problem);
        if (row.text == nullptr) continue;
        EXPECT_FALSE(document.Read(row.text, std::strlen(row.text)));
        EXPECT_EQ(Described(document), row.problem);
        EXPECT_TRUE(document.Create());
        EXPECT_EQ(Described(document), "0:0 ") << "that was another operation";
    }
    XmlDocument<ix_reginfo> document;
    EXPECT_FALSE(document.ReadFile(PROJECT_DIR "/no/such/file"));
    EXPECT_STREQ(document.Problem(), "the file cannot be read");
    EXPECT_FALSE(document.ReadFile(nullptr));
    EXPECT_STREQ(document.Problem(), "there is no file");
    EXPECT_EQ(document.Write(), nullptr);
    EXPECT_STREQ(document.Problem(), "there is no document");
    EXPECT_FALSE(document.SetNamespaceBinder(nullptr));
    EXPECT_STREQ(document.Problem(), "the device profile takes no namespace binder for documents of this kind");
}

TEST_F(DocumentTest, SaysWhyItCannotBeWritten) {
    XmlDocument<ix_list> device;
    ASSERT_TRUE(device.Create());
    EXPECT_EQ(device.Write(), nullptr);
    EXPECT_STREQ(device.Problem(),
                 "something is missing that has to be written, is of a class that has no place there, or no memory");
    device->setUriValue(std::string(40000, 'x').c_str());
    EXPECT_EQ(device.Write(), nullptr) << "half a document is none";
    EXPECT_STREQ(device.Problem(), "the text is longer than the device profile writes");
    XmlDocument<ix_list> standard(IX_XML_PROFILE_STANDARD);
    standard.Set(device.Release());
    EXPECT_FALSE(device);
    EXPECT_NE(standard.Write(), nullptr);
    standard->setUriValue(nullptr);
    EXPECT_EQ(standard.Write(), nullptr);
    EXPECT_STREQ(standard.Problem(), "<list> has no attribute uri");
}

TEST_F(DocumentTest, HasAProblemWheneverMemoryRunsOut) {
    const std::string text = ReadFile(SamplesOf(IX_XML_SCHEMA_IMDN) + "/typical.xml");
    for (const eXMLProfile profile : kProfiles) {
        bool reached = true;
        for (unsigned long failing = 1; reached; ++failing) {
            SCOPED_TRACE(failing);
            {
                XmlDocument<ix_imdn> document(profile);
                ixDplHostFailAllocation(failing);
                const bool isRead = document.Read(text.c_str(), text.size());
                EXPECT_EQ(isRead, *document.Problem() == '\0');
                EXPECT_EQ(isRead, static_cast<bool>(document));
                const bool isMade = document.Factory() != nullptr;
                EXPECT_EQ(isMade, *document.Problem() == '\0');
                const bool isCreated = isRead || document.Create();
                EXPECT_EQ(isCreated, *document.Problem() == '\0' || !isMade);
                const bool isWritten = document.Write() != nullptr;
                EXPECT_EQ(isWritten, *document.Problem() == '\0');
                reached = ixDplHostAllocations() >= failing;
                ixDplHostStopCounting();
            }
            ReleaseLeftovers();
        }
    }
}

TEST_F(DocumentTest, MovesWithAllThatItHas) {
    XmlDocument<ix_pub_gruu> first(IX_XML_PROFILE_STANDARD);
    ASSERT_TRUE(first.Read("<pub-gruu uri=\"sip:a\"/>"));
    const std::string written = first.Write();
    const ix_pub_gruu* const root = first.Get();
    XmlDocument<ix_pub_gruu> second(std::move(first));
    EXPECT_EQ(second.Get(), root);
    EXPECT_EQ(second.Write(), written);
    XmlDocument<ix_pub_gruu> third;
    ASSERT_TRUE(third.Read("<pub-gruu uri=\"sip:b\"/>"));
    third = std::move(second);
    EXPECT_EQ(third.Get(), root);
    EXPECT_EQ(third.Write(), written) << "in the other's profile";
    // The ones that were moved can be used again.
    for (XmlDocument<ix_pub_gruu>* moved : {&first, &second}) {  // NOLINT(bugprone-use-after-move)
        EXPECT_FALSE(*moved);
        EXPECT_TRUE(moved->Read("<pub-gruu uri=\"sip:c\"/>"));
        EXPECT_NE(moved->Write(), nullptr);
    }
}

TEST_F(DocumentTest, TakesANamespaceBinderAtAnyTime) {
    constexpr char kText[] = "<s:communication-waiting xmlns:s=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"/>";
    XmlDocument<ix_schema_namespace_retrieval> declarations;
    ASSERT_TRUE(declarations.Read(kText));
    XmlDocument<ix_communication_waiting> document;
    EXPECT_FALSE(document.Read(kText));
    EXPECT_TRUE(document.SetNamespaceBinder(declarations.Get()));
    EXPECT_TRUE(document.Read(kText));
    EXPECT_TRUE(document.SetNamespaceBinder(nullptr));
    EXPECT_FALSE(document.Read(kText));
}

// --- Copies ----------------------------------------------------------------------------------------------------------

class CopyTest : public XmlTest, public testing::WithParamInterface<eXMLSchemaID> {};

INSTANTIATE_TEST_SUITE_P(Schemas, CopyTest, testing::ValuesIn(AllSchemas()), SchemaName);

/// What is written of a tree, which ends with that.
std::string Written(XMLMarshaller* writer, XmlOwned<> root) {
    const char* const text = writer != nullptr ? writer->Marshall(root.get()) : nullptr;
    return text != nullptr ? text : "";
}

void ExpectLikeCopy(XMLContext& context, const std::string& text) {
    XmlOwned<> root(context.createUnMarshaller()->UnMarshall(text.c_str()));
    if (root == nullptr) return;
    XmlOwned<> copy(XmlFields::Copy(*root));
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(XmlFields::Equal(root.get(), copy.get()));
    EXPECT_EQ(StateOf(*root), StateOf(*copy));
    XMLMarshaller* const writer = context.createMarshaller();
    const std::string written = Written(writer, std::move(root));
    EXPECT_EQ(Written(writer, std::move(copy)), written);
}

TEST_P(CopyTest, IsLikeTheOriginalAndSharesNothingWithIt) {
    for (const eXMLProfile profile : kProfiles) {
        for (const std::string& file : FilesBelow(SamplesOf(GetParam()))) {
            SCOPED_TRACE(file);
            XMLContext* const context = XMLFactory::newInstance(GetParam(), profile);
            if (context != nullptr) ExpectLikeCopy(*context, ReadFile(file));
            XMLFactory::deleteContext(context);
            ReleaseLeftovers();
        }
    }
}

void ExpectCopyOrNone(const XMLElement& root) {
    const auto before = ixDplHostLedger();
    bool reached = true;
    for (unsigned long failing = 1; reached; ++failing) {
        ixDplHostFailAllocation(failing);
        const XmlOwned<> copy(XmlFields::Copy(root));
        reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        ASSERT_EQ(copy == nullptr, reached) << failing;
        if (copy != nullptr) return;
        ASSERT_EQ(ixDplHostLedger().liveObjects, before.liveObjects) << failing;
        ASSERT_EQ(ixDplHostLedger().liveHeapBlocks, before.liveHeapBlocks) << failing;
    }
}

TEST_P(CopyTest, IsWholeOrNone) {
    const bool isDevice = GetParam() == IX_XML_SCHEMA_CALL_WAITING_INDICATION;
    const XmlOwnedContext context(
        XMLFactory::newInstance(GetParam(), isDevice ? IX_XML_PROFILE_DEVICE : IX_XML_PROFILE_STANDARD));
    XMLUnMarshaller* const reader = context->createUnMarshaller();
    int count = 0;
    for (const char* name : {"/typical.xml", "/rich.xml"}) {
        const XmlOwned<> root(reader->UnMarshall(ReadFile(SamplesOf(GetParam()) + name).c_str()));
        if (root == nullptr) continue;
        ++count;
        ExpectCopyOrNone(*root);
    }
    EXPECT_GE(count, 1);
}

TEST_F(DocumentTest, CopiesTreesOfAnyDepth) {
    LogNowhere();
    const XmlOwned<ix_listType> root(ixNew<ix_listType>("test"));
    ix_listType* last = root.get();
    constexpr int kDepth = 30000;
    for (int i = 0; i < kDepth; ++i) last = ixAddNew<ix_listType>(*last, last->mChildren);
    const XmlOwned<ix_listType> copy = ixCopy(*root);
    ASSERT_NE(copy, nullptr);
    int depth = 0;
    for (const ix_listType* at = copy.get(); ixNodesOf(at->mChildren) != nullptr; ++depth) {
        at = static_cast<const ix_listType*>(ixNodesOf(at->mChildren)->key);
    }
    EXPECT_EQ(depth, kDepth);
}

/// An application's own class: the library cannot know what it holds.
class Own : public ix_communication_waiting {
  public:
    const char* ClassName() const override { return "own"; }
};

TEST_F(DocumentTest, CopiesNothingOfAClassThatItDoesNotKnow) {
    XmlDocument<ix_Simservs> document;
    ASSERT_TRUE(document.Create());
    ASSERT_NE(ixAddNew<ix_communication_waiting>(*document, document->mServiceList), nullptr);
    EXPECT_NE(ixCopy(*document), nullptr);
    document->addService(ixNew<Own>("test"));
    EXPECT_EQ(ixCopy(*document), nullptr);
}

// What a rest keeps at the entries of a list has to be at those of the copy, also where some have gone.
TEST_F(DocumentTest, CopiesWhatARestKeepsAtEntries) {
    constexpr char kText[] =
        "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" xmlns:x=\"urn:x\" version=\"1\" state=\"full\">"
        "<x:a/><registration aor=\"1\" id=\"1\" state=\"active\"/><x:b/><x:c/>"
        "<registration aor=\"2\" id=\"2\" state=\"active\"/><x:d/>t"
        "<registration aor=\"3\" id=\"3\" state=\"active\"/><x:e/></reginfo>";
    XmlDocument<ix_reginfo> document(IX_XML_PROFILE_STANDARD);
    // Each time one entry has gone, the last time two.
    for (const int gone : {0, 1, 2, 4, 3}) {
        for (const bool isRemoved : {true, false}) {
            ASSERT_TRUE(document.Read(kText));
            document->MakeRest()->AddElement("<last xmlns=\"\"/>");
            const auto* const list = document->mRegistrationList;
            int bit = 1;
            for (auto* const entry : {list->GetKeyAtIndex(0), list->GetKeyAtIndex(1), list->GetKeyAtIndex(2)}) {
                auto* const registration = static_cast<ix_registration*>(entry);
                if ((gone & bit) != 0) {
                    if (isRemoved) {
                        XmlEdit::Remove(*document, document->mRegistrationList, registration);
                    } else {
                        document->mRegistrationList->Remove(registration);
                        ixDelete(registration);
                    }
                }
                bit *= 2;
            }
            XmlOwned<ix_reginfo> copy = ixCopy(*document);
            ASSERT_NE(copy, nullptr);
            const char* const text = document.Write();
            ASSERT_NE(text, nullptr) << document.Problem();
            const std::string written = text;
            document.Set(std::move(copy));
            EXPECT_EQ(document.Write(), written);
        }
    }
}

}  // namespace
