#include "XMLBootstrappingInfo.h"

#include <iterator>

#include "BootstrappingInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLBootstrappingInfo";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLBootstrappingInfoDecoder, "BootstrappingInfoUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(BootstrappingInfoMarshaller, AddBootstrappingInfoElementToXml, ix_bootstrappinginfo)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.entersFirst = true;
    info.noRoot = {3, kSchemaCode, __LINE__, "<XML Module>: BootstrappingInfoMarshaller pObj is NULL"};
    IX_OLD_MARSHALL_TEXTS(info, "BootstrappingInfoMarshaller", "mBootstrappingInfoXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kUnknownElement = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};
constexpr XmlLogText kAddRoot = {2, kSchemaCode, __LINE__, "<XML Module>: AddBootstrappingInfoElementToXml"};
constexpr XmlLogText kAddBtid = {2, kSchemaCode, __LINE__, "<XML Module>: AddBtidElementToXml"};
constexpr XmlLogText kAddLifetime = {2, kSchemaCode, __LINE__, "<XML Module>: AddLifetimeElementToXml"};
constexpr XmlLogText kNoBtid = {1, kSchemaCode, __LINE__, "<XML Module>: BootstrappingInfoElement btid not present"};
constexpr XmlLogText kNoLifetime = {1, kSchemaCode, __LINE__,
                                    "<XML Module>: BootstrappingInfoElement lifetime not present"};

constexpr XmlField kFields[] = {
    {XmlFieldKind::Text, IX_STR_BTID, XmlTextMember(&ix_bootstrappinginfo::mBtid)},
    {XmlFieldKind::Text, IX_STR_LIFETIME, XmlTextMember(&ix_bootstrappinginfo::mLifetime)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_bootstrappinginfo::mAnyElementList), 0, nullptr, "any"},
};
constexpr XmlFieldTable kTable = {nullptr, kFields, std::size(kFields)};

}  // namespace

ix_bootstrappinginfo::~ix_bootstrappinginfo() { XmlFields::Release(this, kTable); }

const XmlFieldTable* ix_bootstrappinginfo::FieldTable() const { return &kTable; }

int ix_bootstrappinginfo::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_BTID)) return child == nullptr ? setBtidValue(text) : 0;
    if (ixEndNameIs(name, IX_STR_LIFETIME)) return child == nullptr ? setLifetimeValue(text) : 0;
    if (ixNameIs(name, IX_STR_BTID) || ixNameIs(name, IX_STR_LIFETIME)) return 1;
    if (child != nullptr) return addAnyElement(child);
    ixLog(kSourceFile, kUnknownElement, name, text);
    return 1;
}

int ix_bootstrappinginfo::addAnyElement(XMLElement* element) {
    return ixAppend(mAnyElementList, element, kSourceFile, __LINE__);
}

XMLElement* BootstrappingInfoDataBinder::CreateRootElement() { return IX_NEW(ix_bootstrappinginfo); }

BootstrappingInfoMarshaller::BootstrappingInfoMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int BootstrappingInfoMarshaller::AddBootstrappingInfoElementToXml(ix_bootstrappinginfo* element) {
    ixLog(kSourceFile, kAddRoot);
    if (element == nullptr) return 0;
    StartElementOpen(IX_STR_BOOTSTRAPPINGINFO);
    AddAttribute(IX_STR_XMLNS, ix_xml_common_array_definition::getStringName(IX_STR_URI_3GPP_GBA), Attribute::Closing);
    if (element->mBtid != nullptr) {
        AddBtidElementToXml(element->mBtid);
    } else {
        ixLog(kSourceFile, kNoBtid);
    }
    if (element->mLifetime != nullptr) {
        AddLifetimeElementToXml(element->mLifetime);
    } else {
        ixLog(kSourceFile, kNoLifetime);
    }
    EndElement(IX_STR_BOOTSTRAPPINGINFO);
    return 1;
}

int BootstrappingInfoMarshaller::AddBtidElementToXml(const char* btid) {
    ixLog(kSourceFile, kAddBtid);
    AddTextElement(IX_STR_BTID, btid);
    return 1;
}

int BootstrappingInfoMarshaller::AddLifetimeElementToXml(const char* lifetime) {
    ixLog(kSourceFile, kAddLifetime);
    AddTextElement(IX_STR_LIFETIME, lifetime);
    return 1;
}

IX_OLD_FAMILY(BootstrappingInfoContext, BootstrappingInfoMarshaller, BootstrappingInfoUnMarshaller,
          BootstrappingInfoDataBinder);
