#include "XMLCommunicationBarring.h"

#include <iterator>

#include "CommunicationBarring.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCommunicationBarring";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLCommunicationBarringDecoder, "CommunicationBarringUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(Communication_barringMarshaller, AddIncoming_communication_barringElementToXml,
                  ix_incoming_communication_barring),
     {2, kSchemaCode, __LINE__, "<XML Module>: Incoming_communication_barringMarshaller XML Failed!"}},
    {IX_OLD_WRITER_OF(Communication_barringMarshaller, AddOutgoing_communication_barringElementToXml,
                  ix_outgoing_communication_barring),
     {2, kSchemaCode, __LINE__, "<XML Module>: outgoing_communication_barringMarshaller XML Failed!"}},
    IX_RULE_WRITER_ROWS,
    {IX_OLD_WRITER_OF(XmlRuleMarshaller, AddExceptElementToXml, ix_ns_common_policy_exceptType)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixServiceMarshallerInfo(kSourceFile, kWriters);
    info.deletesFirst = true;
    IX_SERVICE_MARSHALL_TEXTS(info, "Communication_barringMarshaller", "mCbXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

// Required: unlike other entry lines, that of the actions names the marshaller and no module.
constexpr XmlRuleWriterTexts kRuleTexts =
    IX_RULE_WRITER_TEXTS("Communication_barringMarshaller", "Communication_barringMarshaller: AddActionsElementToXml");

constexpr XmlLogText kAddIncoming = {2, kSchemaCode, __LINE__,
                                     "<XML Module>: AddIncoming_communication_barringElementToXml"};
// Required: a small "o".
constexpr XmlLogText kAddOutgoing = {2, kSchemaCode, __LINE__,
                                     "<XML Module>: Addoutgoing_communication_barringElementToXml"};
constexpr XmlLogText kSetType = {4, kSchemaCode, __LINE__,
                                 "<XML Module>: in CommunicationBarringDataBinder::setCBType  %d"};
constexpr XmlLogText kInvalidType = {4, kSchemaCode, __LINE__, "<XML Module>: CB Type is invalid "};

constexpr XmlField kAllowFields[] = {
    {XmlFieldKind::Flag, IX_STR_IX_NULL, XmlIntMember(&ix_allow_action_type::mAllow), kXmlAlwaysSet, nullptr, "text"},
};
constexpr XmlFieldTable kAllowTable = {nullptr, kAllowFields, std::size(kAllowFields)};

}  // namespace

ix_allow_action_type::~ix_allow_action_type() { XmlFields::Release(this, kAllowTable); }

const XmlFieldTable* ix_allow_action_type::FieldTable() const { return &kAllowTable; }

int ix_allow_action_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (!ixEndNameIs(name, IX_STR_ALLOW)) return 1;
    return child == nullptr ? setAllowValue(ixNameIs(text, IX_STR_TRUE) ? 1 : 0) : 0;
}

const char* ix_ns_communication_barringType::SourceFile() const { return kSourceFile; }

int CommunicationBarringDataBinder::setCBType(XML_COMMUNICATION_BARRING_TYPE type) {
    ixLog(kSourceFile, kSetType, static_cast<int>(type));
    if (type != XML_CB_INCOMING && type != XML_CB_OUTGOING) {
        ixLog(kSourceFile, kInvalidType);
        return 0;
    }
    m_type = type;
    return 1;
}

XMLElement* CommunicationBarringDataBinder::CreateRootElement() {
    if (m_type == XML_CB_INCOMING) return IX_NEW(ix_incoming_communication_barring);
    if (m_type == XML_CB_OUTGOING) return IX_NEW(ix_outgoing_communication_barring);
    return nullptr;
}

ix_allow_action_type* CommunicationBarringDataBinder::CreateAllowTypeElement() { return IX_NEW(ix_allow_action_type); }

const char* CommunicationBarringDataBinder::SourceFile() const { return kSourceFile; }

Communication_barringMarshaller::Communication_barringMarshaller() : XmlRuleMarshaller(kMarshallerInfo, kRuleTexts) {}

int Communication_barringMarshaller::AddIncoming_communication_barringElementToXml(
    ix_incoming_communication_barring* element) {
    ixLog(kSourceFile, kAddIncoming);
    if (element == nullptr) return 0;
    AddRuleService(IX_STR_INCOMING_COMMUNICATION_BARRING, *element);
    return 1;
}

int Communication_barringMarshaller::AddOutgoing_communication_barringElementToXml(
    ix_outgoing_communication_barring* element) {
    ixLog(kSourceFile, kAddOutgoing);
    if (element == nullptr) return 0;
    AddRuleService(IX_STR_OUTGOING_COMMUNICATION_BARRING, *element);
    return 1;
}

void Communication_barringMarshaller::AddAction(XMLElement* action) {
    // Required: a target is written without its address and flags.
    if (ixIs<ix_ns_xcap_forward_to_type>(action)) AddServiceText(IX_STR_FORWARD_TO, nullptr);
    if (ixIs<ix_allow_action_type>(action)) {
        const bool allow = static_cast<const ix_allow_action_type*>(action)->mAllow != 0;
        AddServiceText(IX_STR_ALLOW, ix_xml_common_array_definition::getStringName(allow ? IX_STR_TRUE : IX_STR_FALSE));
    }
}

IX_OLD_FAMILY(CommunicationBarringContext, Communication_barringMarshaller, CommunicationBarringUnMarshaller,
          CommunicationBarringDataBinder);
