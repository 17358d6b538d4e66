#include "XMLXcapDirectory.h"

#include <iterator>

#include "XcapDirectory.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLXcapDirectory";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLXcapDirectoryDecoder, "XcapDirectoryUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(XcapDirectoryMarshaller, AddXcapDirectoryElementToXml, ix_xcap_directory)},
};

constexpr XmlOldWriter kFolderWriter = IX_OLD_WRITER(XcapDirectoryMarshaller, AddFolderElementToXml, ix_folder);
constexpr XmlOldWriter kEntryWriter = IX_OLD_WRITER(XcapDirectoryMarshaller, AddEntryElementToXml, ix_entry);

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.writesDeclaration = false;
    IX_OLD_MARSHALL_TEXTS(info, "XcapDirectoryMarshaller", "mXcapDirectoryXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddDirectory = {2, kSchemaCode, __LINE__, "<XML Module>: AddXcapDirectoryElementToXml"};
constexpr XmlLogText kAddFolder = {2, kSchemaCode, __LINE__, "<XML Module>: AddFolderElementToXml"};
constexpr XmlLogText kAddEntry = {2, kSchemaCode, __LINE__, "<XML Module>: AddEntryElementToXml"};
constexpr XmlLogText kFolderFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddFolderElementToXml XML Failed!"};
constexpr XmlLogText kEntryFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddEntryElementToXml XML Failed!"};
constexpr XmlLogText kNoAuid = {4, kSchemaCode, __LINE__,
                                "<XML Module>: AddFolderElementToXml AUID mandatory attribute"};
constexpr XmlLogText kNoUri = {4, kSchemaCode, __LINE__, "<XML Module>: AddEntryElementToXml URI mandatory attribute"};
constexpr XmlLogText kNoEtag = {4, kSchemaCode, __LINE__,
                                "<XML Module>: AddEntryElementToXml ETAG mandatory attribute"};

constexpr XmlField kDirectoryFields[] = {
    {XmlFieldKind::ChildList, IX_STR_FOLDER, XmlListMember(&ix_xcap_directory::mFolderList)},
};
constexpr XmlFieldTable kDirectoryTable = {nullptr, kDirectoryFields, std::size(kDirectoryFields)};

constexpr XmlField kFolderFields[] = {
    {XmlFieldKind::ChildList, IX_STR_ENTRY, XmlListMember(&ix_folder::mEntryList)},
    {XmlFieldKind::Text, IX_STR_ERROR_CODE, XmlTextMember(&ix_folder::mErrorCode)},
    {XmlFieldKind::Text, IX_STR_AUID, XmlTextMember(&ix_folder::mAuid)},
};
constexpr XmlFieldTable kFolderTable = {nullptr, kFolderFields, std::size(kFolderFields)};

constexpr XmlField kEntryFields[] = {
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_entry::mUri)},
    {XmlFieldKind::Text, IX_STR_ETAG, XmlTextMember(&ix_entry::mEtag)},
    {XmlFieldKind::Text, IX_STR_LAST_MODIFIED, XmlTextMember(&ix_entry::mLastModified)},
    {XmlFieldKind::Number, IX_STR_SIZE, XmlIntMember(&ix_entry::mSize)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_entry::mExtensionList), 0, nullptr, "attributes"},
};
constexpr XmlFieldTable kEntryTable = {nullptr, kEntryFields, std::size(kEntryFields)};

}  // namespace

ix_xcap_directory::~ix_xcap_directory() { XmlFields::Release(this, kDirectoryTable); }

const XmlFieldTable* ix_xcap_directory::FieldTable() const { return &kDirectoryTable; }

int ix_xcap_directory::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (!ixNameIs(name, IX_STR_FOLDER)) return 1;
    return ixTakeInto<ix_folder>(mFolderList, child, kSourceFile, __LINE__);
}

int ix_xcap_directory::addFolder(ix_folder* folder) { return ixAppend(mFolderList, folder, kSourceFile, __LINE__); }

ix_folder::~ix_folder() { XmlFields::Release(this, kFolderTable); }

const XmlFieldTable* ix_folder::FieldTable() const { return &kFolderTable; }

int ix_folder::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixNameIs(name, IX_STR_ENTRY)) {
        return ixTakeInto<ix_entry>(mEntryList, child, kSourceFile, __LINE__);
    }
    return ixEndNameIs(name, IX_STR_ERROR_CODE) ? ixTakeText(mErrorCode, text, child) : 1;
}

int ix_folder::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    // Another folder attribute is no error, nor is one that there is no memory for.
    if (ixNameIs(attribute, IX_STR_AUID)) ixTakeText(mAuid, value, pair);
    return 1;
}

int ix_folder::addEntry(ix_entry* entry) { return ixAppend(mEntryList, entry, kSourceFile, __LINE__); }

ix_entry::~ix_entry() { XmlFields::Release(this, kEntryTable); }

const XmlFieldTable* ix_entry::FieldTable() const { return &kEntryTable; }

int ix_entry::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (ixNameIs(attribute, IX_STR_URI)) return ixTakeText(mUri, value, pair);
    if (ixNameIs(attribute, IX_STR_ETAG)) return ixTakeText(mEtag, value, pair);
    if (ixNameIs(attribute, IX_STR_LAST_MODIFIED)) return ixTakeText(mLastModified, value, pair);
    if (ixNameIs(attribute, IX_STR_SIZE)) return pair == nullptr ? setSizeValue(__atoi(value)) : 0;
    ix_AttributeValuePair* const extension = ixAsPair(pair);
    return extension != nullptr ? addExtension(extension) : 1;
}

int ix_entry::setSizeValue(int size) {
    mSize = size;
    return 1;
}

int ix_entry::addExtension(ix_AttributeValuePair* pair) {
    return ixAppend(mExtensionList, pair, kSourceFile, __LINE__);
}

XMLElement* XcapDirectoryDataBinder::CreateRootElement() { return IX_NEW(ix_xcap_directory); }

ix_folder* XcapDirectoryDataBinder::CreateFolderElement() { return IX_NEW(ix_folder); }

ix_entry* XcapDirectoryDataBinder::CreateEntryElement() { return IX_NEW(ix_entry); }

XcapDirectoryMarshaller::XcapDirectoryMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int XcapDirectoryMarshaller::AddXcapDirectoryElementToXml(ix_xcap_directory* element) {
    ixLog(kSourceFile, kAddDirectory);
    if (element == nullptr) return 0;
    StartElementOpen(IX_STR_XCAP_DIRECTORY);
    AddAttribute(IX_STR_XMLNS, ix_xml_common_array_definition::getStringName(IX_STR_URN_OMA_XML_XDM_XCAP_DIRECTORY),
                 Attribute::Closing);
    if (AddChildList(element->mFolderList, kFolderWriter) == 0) return ReleaseAndFail(kFolderFailed);
    EndElement(IX_STR_XCAP_DIRECTORY);
    return 1;
}

int XcapDirectoryMarshaller::AddFolderElementToXml(ix_folder* element) {
    ixLog(kSourceFile, kAddFolder);
    if (element == nullptr) return 0;
    StartElementOpen(IX_STR_FOLDER);
    if (element->mAuid == nullptr) ixLog(kSourceFile, kNoAuid);
    AddAttribute(IX_STR_AUID, element->mAuid, Attribute::Closing);
    if (AddChildList(element->mEntryList, kEntryWriter) == 0) return ReleaseAndFail(kEntryFailed);
    AddTextElement(IX_STR_ERROR_CODE, element->mErrorCode);
    EndElement(IX_STR_FOLDER);
    return 1;
}

int XcapDirectoryMarshaller::AddEntryElementToXml(ix_entry* element) {
    ixLog(kSourceFile, kAddEntry);
    StartElementOpen(IX_STR_ENTRY);
    if (element == nullptr || element->mUri == nullptr) {
        ixLog(kSourceFile, kNoUri);
        return 0;
    }
    AddAttribute(IX_STR_URI, element->mUri, Attribute::Open);
    if (element->mLastModified != nullptr) {
        AddAttribute(IX_STR_LAST_MODIFIED, element->mLastModified, Attribute::Open);
    }
    if (element->mSize != 0) AddDecimalAttribute(IX_STR_SIZE, element->mSize, Attribute::Open);
    AddAttributeList(element->mExtensionList);
    if (element->mEtag == nullptr) {
        ixLog(kSourceFile, kNoEtag);
        return 0;
    }
    AddAttribute(IX_STR_ETAG, element->mEtag, Attribute::SelfClosing);
    return 1;
}

IX_OLD_FAMILY(XcapDirectoryContext, XcapDirectoryMarshaller, XcapDirectoryUnMarshaller, XcapDirectoryDataBinder);
