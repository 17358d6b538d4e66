#include "XMLXcapDirectory.h"

#include "XcapDirectory.h"

namespace {

using namespace XmlRow;

constexpr XmlField kEntryFields[] = {
    Attribute<&ix_entry::mUri>(IX_STR_URI).Mandatory(),
    Attribute<&ix_entry::mLastModified>(IX_STR_LAST_MODIFIED),
    Attribute<&ix_entry::mSize>(IX_STR_SIZE),
    Attributes<&ix_entry::mExtensionList>(),
    Attribute<&ix_entry::mEtag>(IX_STR_ETAG).Mandatory(),
};

constexpr XmlField kFolderFields[] = {
    Attribute<&ix_folder::mAuid>(IX_STR_AUID).Mandatory(),
    Children<&ix_folder::mEntryList, ix_entry>(IX_STR_ENTRY),
    Element<&ix_folder::mErrorCode>(IX_STR_ERROR_CODE),
};

constexpr XmlField kDirectoryFields[] = {
    Children<&ix_xcap_directory::mFolderList, ix_folder>(IX_STR_FOLDER),
};

/// Nothing is refused under another name than those of the rows, the start tag of the error code among them.
constexpr XmlAnswers Answers() {
    XmlAnswers answers;
    answers.object = 1;
    answers.startsAreUnknown = true;
    return answers;
}
constexpr XmlAnswers kAnswers = Answers();

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLXcapDirectoryDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in XcapDirectoryUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&XcapDirectoryMarshaller::AddXcapDirectoryElementToXml>(),
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info =
        ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("XcapDirectoryMarshaller", "mXcapDirectoryXml"));
    info.writesDeclaration = false;
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

}  // namespace

constexpr XmlClass ix_entry::kClass = ixClass<ix_entry>("ix_entry", "Entry", kSource, kEntryFields, kAnswers);
constexpr XmlClass ix_folder::kClass = ixClass<ix_folder>("ix_folder", "Folder", kSource, kFolderFields, kAnswers);
constexpr XmlClass ix_xcap_directory::kClass =
    ixClass<ix_xcap_directory>("ix_xcap_directory", "XcapDirectory", kSource, kDirectoryFields, kAnswers);

int ix_folder::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    // Required: no attribute of a folder is refused, whether it can be kept or not.
    XmlDescribedElement::ProcessUnMarshallAttribute(attribute, value, pair);
    return 1;
}

XMLElement* XcapDirectoryDataBinder::CreateRootElement() { return ixNew<ix_xcap_directory>(kSource); }
ix_folder* XcapDirectoryDataBinder::CreateFolderElement() { return ixNew<ix_folder>(kSource); }
ix_entry* XcapDirectoryDataBinder::CreateEntryElement() { return ixNew<ix_entry>(kSource); }

XcapDirectoryUnMarshaller::XcapDirectoryUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

XcapDirectoryMarshaller::XcapDirectoryMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

XcapDirectoryContext::XcapDirectoryContext()
    : XmlFamilyContext(ixFamily<XcapDirectoryMarshaller, XcapDirectoryUnMarshaller, XcapDirectoryDataBinder>(kSource)) {
}

int XcapDirectoryMarshaller::AddXcapDirectoryElementToXml(ix_xcap_directory* directory) {
    if (!Enter(directory, {2, "<XML Module>: AddXcapDirectoryElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_XCAP_DIRECTORY);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_OMA_XML_XDM_XCAP_DIRECTORY);
    tag.Close();
    if (!AddChildren<&XcapDirectoryMarshaller::AddFolderElementToXml>(directory->mFolderList)) {
        return ReleaseAndFail({2, "<XML Module>: AddFolderElementToXml XML Failed!"});
    }
    EndElement(IX_STR_XCAP_DIRECTORY);
    return 1;
}

int XcapDirectoryMarshaller::AddFolderElementToXml(ix_folder* folder) {
    if (!Enter(folder, {2, "<XML Module>: AddFolderElementToXml"})) return 0;
    if (folder->mAuid == nullptr) Log({4, "<XML Module>: AddFolderElementToXml AUID mandatory attribute"});
    XmlStartTag tag(*this, IX_STR_FOLDER);
    // A folder without one is written all the same, with an empty one.
    tag.Add(IX_STR_AUID, folder->mAuid != nullptr ? folder->mAuid : "");
    tag.Close();
    if (!AddChildren<&XcapDirectoryMarshaller::AddEntryElementToXml>(folder->mEntryList)) {
        return ReleaseAndFail({2, "<XML Module>: AddEntryElementToXml XML Failed!"});
    }
    AddTextElement(IX_STR_ERROR_CODE, folder->mErrorCode);
    EndElement(IX_STR_FOLDER);
    return 1;
}

int XcapDirectoryMarshaller::AddEntryElementToXml(ix_entry* entry) {
    if (!Enter(entry, {2, "<XML Module>: AddEntryElementToXml"})) return 0;
    if (entry->mUri == nullptr) return Fail({4, "<XML Module>: AddEntryElementToXml URI mandatory attribute"});
    XmlStartTag tag(*this, IX_STR_ENTRY);
    tag.Add(IX_STR_URI, entry->mUri);
    tag.Add(IX_STR_LAST_MODIFIED, entry->mLastModified);
    if (entry->mSize != 0) tag.AddDecimal(IX_STR_SIZE, entry->mSize);
    tag.AddAll(entry->mExtensionList);
    if (entry->mEtag == nullptr) return Fail({4, "<XML Module>: AddEntryElementToXml ETAG mandatory attribute"});
    tag.Add(IX_STR_ETAG, entry->mEtag);
    tag.SelfClose();
    return 1;
}
