#include "XMLMediaControl.h"

#include <iterator>

#include "MediaControl.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLMediaControl";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLMediaControlDecoder, "MediaControlUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(MediaControlMarshaller, AddMediaControlElementToXml, ix_media_control)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "MediaControlMarshaller", "mMediaControlXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddMediaControl = {2, kSchemaCode, __LINE__, "<XML Module>: AddMediaControlElementToXml"};
constexpr XmlLogText kAddVcPrimitive = {2, kSchemaCode, __LINE__, "<XML Module>: AddVcPrimitiveElementToXml"};
constexpr XmlLogText kAddToEncoder = {2, kSchemaCode, __LINE__, "<XML Module>: AddToEncoderElementToXml"};
constexpr XmlLogText kAddEmpty = {2, kSchemaCode, __LINE__, "<XML Module>: AddEmptyElementToXml"};
constexpr XmlLogText kVcPrimitiveFailed = {2, kSchemaCode, __LINE__,
                                           "<XML Module>: AddVcPrimitiveElementToXml XML Failed!"};
constexpr XmlLogText kToEncoderFailed = {2, kSchemaCode, __LINE__,
                                         "<XML Module>: AddToEncoderElementToXml XML Failed!"};
constexpr XmlLogText kEmptyFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddEmptyElementToXml XML Failed!"};
constexpr XmlLogText kNoEmpty = {3, kSchemaCode, __LINE__,
                                 "MediaControlMarshaller::AddEmptyElementToXml: Received empty element is NULL"};
constexpr XmlLogText kEmptyNotPresent = {3, kSchemaCode, __LINE__,
                                         "MediaControlMarshaller::AddEmptyElementToXml: Received empty present false"};

constexpr XmlField kToEncoderFields[] = {
    {XmlFieldKind::Presence, IX_STR_PICTURE_FAST_UPDATE, IX_CHILD_MEMBER(ix_to_encoder, mPictureFastUpdate)},
};
constexpr XmlFieldTable kToEncoderTable = {nullptr, kToEncoderFields, std::size(kToEncoderFields)};

constexpr XmlField kVcPrimitiveFields[] = {
    {XmlFieldKind::Child, IX_STR_TO_ENCODER, IX_CHILD_MEMBER(ix_vc_primitive, mToEncoder)},
};
constexpr XmlFieldTable kVcPrimitiveTable = {nullptr, kVcPrimitiveFields, std::size(kVcPrimitiveFields)};

constexpr XmlField kMediaControlFields[] = {
    {XmlFieldKind::Child, IX_STR_VC_PRIMITIVE, IX_CHILD_MEMBER(ix_media_control, mVcPrimitive)},
};
constexpr XmlFieldTable kMediaControlTable = {nullptr, kMediaControlFields, std::size(kMediaControlFields)};

}  // namespace

ix_to_encoder::~ix_to_encoder() { XmlFields::Release(this, kToEncoderTable); }

const XmlFieldTable* ix_to_encoder::FieldTable() const { return &kToEncoderTable; }

int ix_to_encoder::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    // Required: any other element behind the request cancels it. Nobody else has it, so it is freed.
    if (!ixNameIs(name, IX_STR_PICTURE_FAST_UPDATE)) return setPictureFastUpdateValue(nullptr);
    if (ixIsNameless(child)) return 1;
    return ixTakeChild(mPictureFastUpdate, child);
}

ix_vc_primitive::~ix_vc_primitive() { XmlFields::Release(this, kVcPrimitiveTable); }

const XmlFieldTable* ix_vc_primitive::FieldTable() const { return &kVcPrimitiveTable; }

int ix_vc_primitive::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    return ixNameIs(name, IX_STR_TO_ENCODER) ? ixTakeChild(mToEncoder, child) : 1;
}

ix_media_control::~ix_media_control() { XmlFields::Release(this, kMediaControlTable); }

const XmlFieldTable* ix_media_control::FieldTable() const { return &kMediaControlTable; }

int ix_media_control::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    return ixNameIs(name, IX_STR_VC_PRIMITIVE) ? ixTakeChild(mVcPrimitive, child) : 1;
}

XMLElement* MediaControlDataBinder::CreateRootElement() { return IX_NEW(ix_media_control); }

ix_vc_primitive* MediaControlDataBinder::CreateVcPrimitiveElement() { return IX_NEW(ix_vc_primitive); }

ix_to_encoder* MediaControlDataBinder::CreateToEncoderElement() { return IX_NEW(ix_to_encoder); }

ix_empty_element_type* MediaControlDataBinder::CreatePictureFastUpdateElement() {
    return ixCreateEmptyElement(ix_xml_common_array_definition::getStringName(IX_STR_PICTURE_FAST_UPDATE), kSourceFile,
                                __LINE__);
}

MediaControlMarshaller::MediaControlMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int MediaControlMarshaller::AddMediaControlElementToXml(ix_media_control* element) {
    ixLog(kSourceFile, kAddMediaControl);
    if (element == nullptr) return 0;
    StartElement(IX_STR_MEDIA_CONTROL);
    if (element->mVcPrimitive != nullptr && AddVcPrimitiveElementToXml(element->mVcPrimitive) == 0) {
        return ReleaseAndFail(kVcPrimitiveFailed);
    }
    EndElement(IX_STR_MEDIA_CONTROL);
    return 1;
}

int MediaControlMarshaller::AddVcPrimitiveElementToXml(ix_vc_primitive* primitive) {
    ixLog(kSourceFile, kAddVcPrimitive);
    if (primitive == nullptr) return 0;
    StartElement(IX_STR_VC_PRIMITIVE);
    if (primitive->mToEncoder != nullptr && AddToEncoderElementToXml(primitive->mToEncoder) == 0) {
        return ReleaseAndFail(kToEncoderFailed);
    }
    EndElement(IX_STR_VC_PRIMITIVE);
    return 1;
}

int MediaControlMarshaller::AddToEncoderElementToXml(ix_to_encoder* toEncoder) {
    ixLog(kSourceFile, kAddToEncoder);
    if (toEncoder == nullptr) return 0;
    StartElement(IX_STR_TO_ENCODER);
    if (toEncoder->mPictureFastUpdate != nullptr && AddEmptyElementToXml(toEncoder->mPictureFastUpdate) == 0) {
        return ReleaseAndFail(kEmptyFailed);
    }
    EndElement(IX_STR_TO_ENCODER);
    return 1;
}

int MediaControlMarshaller::AddEmptyElementToXml(ix_empty_element_type* element) {
    ixLog(kSourceFile, kAddEmpty);
    if (element == nullptr) {
        ixLog(kSourceFile, kNoEmpty);
        return 0;
    }
    if (element->mPresent == 0) {
        ixLog(kSourceFile, kEmptyNotPresent);
        return 0;
    }
    if (element->mName == nullptr) return 0;
    m_generator.ixStartElementSelfEnding(element->mName);
    return 1;
}

IX_OLD_FAMILY(MediaControlContext, MediaControlMarshaller, MediaControlUnMarshaller, MediaControlDataBinder);
