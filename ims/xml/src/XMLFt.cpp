#include "XMLFt.h"

#include "Ft.h"

namespace {

using namespace XmlRow;

constexpr XmlField kDataFields[] = {
    Attribute<&ix_ns_ft_data::mUrl>(IX_STR_URL).Mandatory(),
    Attribute<&ix_ns_ft_data::mEtag>(IX_STR_ETAG),
    Attribute<&ix_ns_ft_data::mUntil>(IX_STR_UNTIL).Mandatory(),
};
constexpr XmlAnswers kDataAnswers = ixTracing({}, {2, "In ix_ns_ft_data::ProcessUnMarshallAttribute"});

constexpr XmlField kFileInfoFields[] = {
    Attribute<&ix_ns_ft_file_info::mType>(IX_STR_TYPE).Mandatory(),
    Element<&ix_ns_ft_file_info::mFileSize>(IX_STR_FILE_SIZE).Nearest().Mandatory(),
    Child<&ix_ns_ft_file_info::mData>(IX_STR_DATA).Mandatory(),
};
constexpr XmlAnswers kFileInfoAnswers = ixTracing({2, "In ix_ns_ft_file_info::ProcessUnMarshall"}, {});

constexpr XmlField kFileFields[] = {
    Children<&ix_file::mFileInfoList, ix_ns_ft_file_info>(IX_STR_FILE_INFO),
};
constexpr XmlAnswers kFileAnswers =
    ixTracing({2, "In ix_file::ProcessUnMarshall"}, {2, "In ix_file::ProcessUnMarshallAttribute"});

constexpr XmlUnMarshallerInfo kUnMarshallerInfo =
    ixUnMarshallerInfo<XMLFileDecoder>(kSource, {4, "<XML Module>: StrDup failed in FileUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&FileMarshaller::AddFileElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("FileMarshaller", "mFileXml"));

}  // namespace

constexpr XmlClass ix_ns_ft_data::kClass =
    ixClass<ix_ns_ft_data>("ix_ns_ft_data", "Data", kSource, kDataFields, kDataAnswers);
constexpr XmlClass ix_ns_ft_file_info::kClass =
    ixClass<ix_ns_ft_file_info>("ix_ns_ft_file_info", "FileInfo", kSource, kFileInfoFields, kFileInfoAnswers)
        .Also("file-name content-type file-disposition");
constexpr XmlClass ix_file::kClass = ixClass<ix_file>("ix_file", "File", kSource, kFileFields, kFileAnswers);

int ix_file::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    // Required: an object of another class is answered with 1 as well, although nobody keeps it.
    const bool isOther = child != nullptr && !ixIs<ix_ns_ft_file_info>(child);
    return XmlDescribedObject::ProcessUnMarshall(name, text, child) != 0 || isOther ? 1 : 0;
}

XMLElement* FileDataBinder::CreateRootElement() { return ixNew<ix_file>(kSource); }
ix_ns_ft_file_info* FileDataBinder::CreateFileInfoElement() { return ixNew<ix_ns_ft_file_info>(kSource); }
ix_ns_ft_data* FileDataBinder::CreateDataElement() { return ixNew<ix_ns_ft_data>(kSource); }

FileUnMarshaller::FileUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

FileMarshaller::FileMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

FileContext::FileContext() : XmlFamilyContext(ixFamily<FileMarshaller, FileUnMarshaller, FileDataBinder>(kSource)) {}

int FileMarshaller::AddFileElementToXml(ix_file* file) {
    if (!Enter(file, {2, "<XML Module>: AddFileElementToXml"})) return 0;
    StartElement(IX_STR_FILE);
    if (!AddChildren<&FileMarshaller::AddFileInfoElementToXml>(file->mFileInfoList)) {
        return ReleaseAndFail({2, "<XML Module>: FileMarshaller XML Failed at AddFileInfoElementToXml!"});
    }
    EndElement(IX_STR_FILE);
    return 1;
}

int FileMarshaller::AddFileInfoElementToXml(ix_ns_ft_file_info* info) {
    if (!Enter(info, {2, "<XML Module>: AddFileInfoElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_FILE_INFO);
    tag.Add(IX_STR_TYPE, info->mType);
    tag.Close();
    if (info->mFileSize != 0) AddDecimalElement(IX_STR_FILE_SIZE, info->mFileSize);
    if (info->mData != nullptr && !AddDataElementToXml(info->mData)) {
        return ReleaseAndFail({2, "<XML Module>: AddDataElementToXml XML Failed!"});
    }
    EndElement(IX_STR_FILE_INFO);
    return 1;
}

int FileMarshaller::AddDataElementToXml(ix_ns_ft_data* data) {
    if (!Enter(data, {2, "<XML Module>: AddDataElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_DATA);
    tag.Add(IX_STR_ETAG, data->mEtag);
    tag.Add(IX_STR_UNTIL, data->mUntil);
    if (data->mUrl == nullptr) return Fail({4, "<XML Module>: AddDataElementToXml url mandatory attribute"});
    tag.Add(IX_STR_URL, data->mUrl);
    tag.Close();
    EndElement(IX_STR_DATA);
    return 1;
}
