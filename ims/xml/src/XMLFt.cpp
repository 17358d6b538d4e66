#include "XMLFt.h"

#include <iterator>

#include "Ft.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLFt";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_OLD_UNMARSHALLER_INFO(XMLFileDecoder, "FileUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(FileMarshaller, AddFileElementToXml, ix_file)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "FileMarshaller", "mFileXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kFileOffered = {2, kSchemaCode, __LINE__, "In ix_file::ProcessUnMarshall"};
constexpr XmlLogText kFileAttribute = {2, kSchemaCode, __LINE__, "In ix_file::ProcessUnMarshallAttribute"};
constexpr XmlLogText kFileInfoOffered = {2, kSchemaCode, __LINE__, "In ix_ns_ft_file_info::ProcessUnMarshall"};
constexpr XmlLogText kDataAttribute = {2, kSchemaCode, __LINE__, "In ix_ns_ft_data::ProcessUnMarshallAttribute"};
constexpr XmlLogText kAddFile = {2, kSchemaCode, __LINE__, "<XML Module>: AddFileElementToXml"};
constexpr XmlLogText kAddFileInfo = {2, kSchemaCode, __LINE__, "<XML Module>: AddFileInfoElementToXml"};
constexpr XmlLogText kAddData = {2, kSchemaCode, __LINE__, "<XML Module>: AddDataElementToXml"};
constexpr XmlLogText kFileInfoFailed = {2, kSchemaCode, __LINE__,
                                        "<XML Module>: FileMarshaller XML Failed at AddFileInfoElementToXml!"};
constexpr XmlLogText kDataFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddDataElementToXml XML Failed!"};
constexpr XmlLogText kNoUrl = {4, kSchemaCode, __LINE__, "<XML Module>: AddDataElementToXml url mandatory attribute"};

constexpr XmlField kDataFields[] = {
    {XmlFieldKind::Text, IX_STR_URL, XmlTextMember(&ix_ns_ft_data::mUrl)},
    {XmlFieldKind::Text, IX_STR_ETAG, XmlTextMember(&ix_ns_ft_data::mEtag)},
    {XmlFieldKind::Text, IX_STR_UNTIL, XmlTextMember(&ix_ns_ft_data::mUntil)},
};
constexpr XmlFieldTable kDataTable = {nullptr, kDataFields, std::size(kDataFields)};

constexpr XmlField kFileInfoFields[] = {
    {XmlFieldKind::Text, IX_STR_TYPE, XmlTextMember(&ix_ns_ft_file_info::mType)},
    {XmlFieldKind::Unsigned, IX_STR_FILE_SIZE, XmlUnsignedMember(&ix_ns_ft_file_info::mFileSize)},
    {XmlFieldKind::Child, IX_STR_DATA, IX_CHILD_MEMBER(ix_ns_ft_file_info, mData)},
};
constexpr XmlFieldTable kFileInfoTable = {nullptr, kFileInfoFields, std::size(kFileInfoFields)};

constexpr XmlField kFileFields[] = {
    {XmlFieldKind::ChildList, IX_STR_FILE_INFO, XmlListMember(&ix_file::mFileInfoList)},
};
constexpr XmlFieldTable kFileTable = {nullptr, kFileFields, std::size(kFileFields)};

}  // namespace

ix_ns_ft_data::~ix_ns_ft_data() { XmlFields::Release(this, kDataTable); }

const XmlFieldTable* ix_ns_ft_data::FieldTable() const { return &kDataTable; }

int ix_ns_ft_data::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    ixLog(kSourceFile, kDataAttribute);
    if (ixNameIs(attribute, IX_STR_URL)) return ixTakeText(mUrl, value, pair);
    if (ixNameIs(attribute, IX_STR_ETAG)) return ixTakeText(mEtag, value, pair);
    if (ixNameIs(attribute, IX_STR_UNTIL)) return ixTakeText(mUntil, value, pair);
    return 1;
}

ix_ns_ft_file_info::~ix_ns_ft_file_info() { XmlFields::Release(this, kFileInfoTable); }

const XmlFieldTable* ix_ns_ft_file_info::FieldTable() const { return &kFileInfoTable; }

int ix_ns_ft_file_info::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    ixLog(kSourceFile, kFileInfoOffered);
    if (child == nullptr) {
        return ixEndNameIs(name, IX_STR_FILE_SIZE) ? setFileSizeValue(ixToUnsigned(text)) : 1;
    }
    if (!ixNameIs(name, IX_STR_DATA) || ixIsNameless(child)) return 1;
    return ixTakeChild(mData, child);
}

int ix_ns_ft_file_info::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_TYPE) ? ixTakeText(mType, value, pair) : 1;
}

int ix_ns_ft_file_info::setFileSizeValue(unsigned int size) {
    mFileSize = size;
    return 1;
}

ix_file::~ix_file() { XmlFields::Release(this, kFileTable); }

const XmlFieldTable* ix_file::FieldTable() const { return &kFileTable; }

int ix_file::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    ixLog(kSourceFile, kFileOffered);
    if (!ixNameIs(name, IX_STR_FILE_INFO)) return 1;
    if (child == nullptr) return 0;
    // Required: an object of another class is answered with 1 as well, although nobody keeps it.
    return ixIs<ix_ns_ft_file_info>(child) ? addFileInfo(static_cast<ix_ns_ft_file_info*>(child)) : 1;
}

int ix_file::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* /*pair*/) {
    ixLog(kSourceFile, kFileAttribute);
    return 1;
}

int ix_file::addFileInfo(ix_ns_ft_file_info* info) { return ixAppend(mFileInfoList, info, kSourceFile, __LINE__); }

XMLElement* FileDataBinder::CreateRootElement() { return IX_NEW(ix_file); }

ix_ns_ft_file_info* FileDataBinder::CreateFileInfoElement() { return IX_NEW(ix_ns_ft_file_info); }

ix_ns_ft_data* FileDataBinder::CreateDataElement() { return IX_NEW(ix_ns_ft_data); }

FileMarshaller::FileMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int FileMarshaller::AddFileElementToXml(ix_file* file) {
    ixLog(kSourceFile, kAddFile);
    if (file == nullptr) return 0;
    StartElement(IX_STR_FILE);
    if (AddChildList(file->mFileInfoList, IX_OLD_WRITER(FileMarshaller, AddFileInfoElementToXml, ix_ns_ft_file_info)) ==
        0) {
        return ReleaseAndFail(kFileInfoFailed);
    }
    EndElement(IX_STR_FILE);
    return 1;
}

int FileMarshaller::AddFileInfoElementToXml(ix_ns_ft_file_info* info) {
    ixLog(kSourceFile, kAddFileInfo);
    if (info == nullptr) return 0;
    if (info->mType != nullptr) {
        StartElementOpen(IX_STR_FILE_INFO);
        AddAttribute(IX_STR_TYPE, info->mType, Attribute::Closing);
    } else {
        StartElement(IX_STR_FILE_INFO);
    }
    if (info->mFileSize != 0) AddDecimalElement(IX_STR_FILE_SIZE, info->mFileSize);
    if (info->mData != nullptr && AddDataElementToXml(info->mData) == 0) return ReleaseAndFail(kDataFailed);
    EndElement(IX_STR_FILE_INFO);
    return 1;
}

int FileMarshaller::AddDataElementToXml(ix_ns_ft_data* data) {
    ixLog(kSourceFile, kAddData);
    StartElementOpen(IX_STR_DATA);
    if (data != nullptr && data->mEtag != nullptr) AddAttribute(IX_STR_ETAG, data->mEtag, Attribute::Open);
    if (data != nullptr && data->mUntil != nullptr) AddAttribute(IX_STR_UNTIL, data->mUntil, Attribute::Open);
    if (data == nullptr || data->mUrl == nullptr) {
        ixLog(kSourceFile, kNoUrl);
        return 0;
    }
    AddAttribute(IX_STR_URL, data->mUrl, Attribute::Closing);
    EndElement(IX_STR_DATA);
    return 1;
}

IX_OLD_FAMILY(FileContext, FileMarshaller, FileUnMarshaller, FileDataBinder);
