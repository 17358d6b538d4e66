#include "XMLMediaControl.h"

#include "MediaControl.h"

namespace {

using namespace XmlRow;

constexpr XmlField kToEncoderFields[] = {
    Child<&ix_to_encoder::mPictureFastUpdate>(IX_STR_PICTURE_FAST_UPDATE),
};

constexpr XmlField kVcPrimitiveFields[] = {
    Child<&ix_vc_primitive::mToEncoder>(IX_STR_TO_ENCODER).Mandatory(),
};

constexpr XmlField kMediaControlFields[] = {
    Child<&ix_media_control::mVcPrimitive>(IX_STR_VC_PRIMITIVE),
};

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLMediaControlDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in MediaControlUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&MediaControlMarshaller::AddMediaControlElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("MediaControlMarshaller", "mMediaControlXml"));

}  // namespace

constexpr XmlClass ix_to_encoder::kClass =
    ixClass<ix_to_encoder>("ix_to_encoder", "ToEncoder", kSource, kToEncoderFields, ixTracing({}, {}));
constexpr XmlClass ix_vc_primitive::kClass =
    ixClass<ix_vc_primitive>("ix_vc_primitive", "VcPrimitive", kSource, kVcPrimitiveFields, ixIgnoring())
        .Also("stream_id");
constexpr XmlClass ix_media_control::kClass =
    ixClass<ix_media_control>("ix_media_control", "MediaControl", kSource, kMediaControlFields, ixIgnoring())
        .Also("general_error");

int ix_to_encoder::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    // Required: any other element behind the request cancels it. Nobody else has it, so it is freed.
    if (!ixNameIs(name, IX_STR_PICTURE_FAST_UPDATE)) return setPictureFastUpdateValue(nullptr);
    return XmlDescribedElement::ProcessUnMarshall(name, text, child);
}

XMLElement* MediaControlDataBinder::CreateRootElement() { return ixNew<ix_media_control>(kSource); }
ix_vc_primitive* MediaControlDataBinder::CreateVcPrimitiveElement() { return ixNew<ix_vc_primitive>(kSource); }
ix_to_encoder* MediaControlDataBinder::CreateToEncoderElement() { return ixNew<ix_to_encoder>(kSource); }
ix_empty_element_type* MediaControlDataBinder::CreatePictureFastUpdateElement() {
    return ixCreateEmptyElement(ixString(IX_STR_PICTURE_FAST_UPDATE), kSource);
}

MediaControlUnMarshaller::MediaControlUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

MediaControlMarshaller::MediaControlMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

MediaControlContext::MediaControlContext()
    : XmlFamilyContext(ixFamily<MediaControlMarshaller, MediaControlUnMarshaller, MediaControlDataBinder>(kSource)) {}

int MediaControlMarshaller::AddMediaControlElementToXml(ix_media_control* element) {
    if (!Enter(element, {2, "<XML Module>: AddMediaControlElementToXml"})) return 0;
    StartElement(IX_STR_MEDIA_CONTROL);
    if (element->mVcPrimitive != nullptr && !AddVcPrimitiveElementToXml(element->mVcPrimitive)) {
        return ReleaseAndFail({2, "<XML Module>: AddVcPrimitiveElementToXml XML Failed!"});
    }
    EndElement(IX_STR_MEDIA_CONTROL);
    return 1;
}

int MediaControlMarshaller::AddVcPrimitiveElementToXml(ix_vc_primitive* primitive) {
    if (!Enter(primitive, {2, "<XML Module>: AddVcPrimitiveElementToXml"})) return 0;
    StartElement(IX_STR_VC_PRIMITIVE);
    if (primitive->mToEncoder != nullptr && !AddToEncoderElementToXml(primitive->mToEncoder)) {
        return ReleaseAndFail({2, "<XML Module>: AddToEncoderElementToXml XML Failed!"});
    }
    EndElement(IX_STR_VC_PRIMITIVE);
    return 1;
}

int MediaControlMarshaller::AddToEncoderElementToXml(ix_to_encoder* toEncoder) {
    if (!Enter(toEncoder, {2, "<XML Module>: AddToEncoderElementToXml"})) return 0;
    StartElement(IX_STR_TO_ENCODER);
    if (toEncoder->mPictureFastUpdate != nullptr && !AddEmptyElementToXml(toEncoder->mPictureFastUpdate)) {
        return ReleaseAndFail({2, "<XML Module>: AddEmptyElementToXml XML Failed!"});
    }
    EndElement(IX_STR_TO_ENCODER);
    return 1;
}

int MediaControlMarshaller::AddEmptyElementToXml(ix_empty_element_type* element) {
    if (!Enter(element, {2, "<XML Module>: AddEmptyElementToXml"})) {
        return Fail({3, "MediaControlMarshaller::AddEmptyElementToXml: Received empty element is NULL"});
    }
    if (element->mPresent == 0) {
        return Fail({3, "MediaControlMarshaller::AddEmptyElementToXml: Received empty present false"});
    }
    // Required: one without a name writes nothing, and is no failure.
    m_generator.ixStartElementSelfEnding(element->mName);
    return 1;
}
