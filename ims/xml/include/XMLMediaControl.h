/// @file
/// Media control (RFC 5168): asks the sender of a video stream for a full picture.
///
/// - Root element: `media_control`, with `vc_primitive`, with `to_encoder`, with the empty element
///   `picture_fast_update`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed, but `picture_fast_update` is written back with the prefix it came with.
/// - Read and written. Attributes and other elements (`stream_id`, `general_error`) are lost; an unknown element behind
///   `picture_fast_update`, inside `to_encoder`, cancels it.
#ifndef IX_XML_MEDIA_CONTROL_H
#define IX_XML_MEDIA_CONTROL_H

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The element `to_encoder`: what the sender's encoder is to do.
class IX_XML_EXPORT ix_to_encoder : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_to_encoder";

    ~ix_to_encoder() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "ToEncoder"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over the request in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setPictureFastUpdateValue(ix_empty_element_type* request) { return ixSetChild(mPictureFastUpdate, request); }

    ix_empty_element_type* mPictureFastUpdate = nullptr;  ///< Owned; NULL: not set. Its name is what is written.
};

/// The element `vc_primitive`.
class IX_XML_EXPORT ix_vc_primitive : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_vc_primitive";

    ~ix_vc_primitive() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "VcPrimitive"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over the element in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setToEncoderValue(ix_to_encoder* toEncoder) { return ixSetChild(mToEncoder, toEncoder); }

    ix_to_encoder* mToEncoder = nullptr;  ///< Owned; NULL: not set.
};

/// The element `media_control`.
class IX_XML_EXPORT ix_media_control : public XMLObject {
  public:
    static constexpr char kClassName[] = "ix_media_control";

    ~ix_media_control() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLObject"; }
    const char* TypeName() const override { return "MediaControl"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over the element in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setVcPrimitiveValue(ix_vc_primitive* primitive) { return ixSetChild(mVcPrimitive, primitive); }

    ix_vc_primitive* mVcPrimitive = nullptr;  ///< Owned; NULL: not set.
};

/// Creates the elements of the schema; each creator yields NULL without memory.
class IX_XML_EXPORT MediaControlDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_media_control`.
    XMLElement* CreateRootElement() override;
    ix_vc_primitive* CreateVcPrimitiveElement();
    ix_to_encoder* CreateToEncoderElement();
    /// A new `ix_empty_element_type`, present, with the name of the element.
    ix_empty_element_type* CreatePictureFastUpdateElement();
};

class IX_XML_EXPORT MediaControlUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes the XML declaration and the document. An element without its child is written empty; a request that is not
/// present fails the whole document.
class IX_XML_EXPORT MediaControlMarshaller : public XmlOldFamilyMarshaller {
  public:
    MediaControlMarshaller();

    /// @name Each gives up the document when what is below it fails. @return 1, or 0.
    /// @{
    int AddMediaControlElementToXml(ix_media_control* element);
    int AddVcPrimitiveElementToXml(ix_vc_primitive* primitive);
    int AddToEncoderElementToXml(ix_to_encoder* toEncoder);
    /// @}
    /// @return 1, or 0 for NULL, and for an element that is not present or has no name.
    int AddEmptyElementToXml(ix_empty_element_type* element);
};

class IX_XML_EXPORT MediaControlContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
