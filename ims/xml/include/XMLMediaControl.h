/// @file
/// Media control (RFC 5168): asks the sender of a video stream for a full picture.
///
/// - Root element: `media_control`, with `vc_primitive`, with `to_encoder`, with the empty element
///   `picture_fast_update`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed, but `picture_fast_update` is written back with the prefix it came with.
/// - Read and written. Attributes and other elements (`stream_id`, `general_error`) are lost; an unknown element behind
///   `picture_fast_update`, inside `to_encoder`, cancels it.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_MEDIA_CONTROL_H
#define IX_XML_MEDIA_CONTROL_H

#include "XmlFamily.h"

/// The element `to_encoder`: what the sender's encoder is to do.
class IX_XML_EXPORT ix_to_encoder : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_to_encoder() : XmlDescribedElement(kClass) {}
    ~ix_to_encoder() override { ixRelease(*this, kClass); }
    /// As the rows say; anything else clears the request.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over the request in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setPictureFastUpdateValue(ix_empty_element_type* request) { return ixSetChild(mPictureFastUpdate, request); }

    ix_empty_element_type* mPictureFastUpdate = nullptr;  ///< Owned; NULL: not set. Its name is what is written.
};

/// The element `vc_primitive`.
class IX_XML_EXPORT ix_vc_primitive : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_vc_primitive() : XmlDescribedElement(kClass) {}
    ~ix_vc_primitive() override { ixRelease(*this, kClass); }

    /// Takes over the element in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setToEncoderValue(ix_to_encoder* toEncoder) { return ixSetChild(mToEncoder, toEncoder); }

    ix_to_encoder* mToEncoder = nullptr;  ///< Owned; NULL: not set.
};

/// The element `media_control`.
class IX_XML_EXPORT ix_media_control : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_MEDIA_CONTROL, class MediaControlDataBinder>;

    ix_media_control() : XmlDescribedObject(kClass) {}
    ~ix_media_control() override { ixRelease(*this, kClass); }

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

class IX_XML_EXPORT MediaControlUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    MediaControlUnMarshaller();
};

/// Writes the XML declaration and the document. An element without its child is written empty; a request that is not
/// present fails the whole document, and one without a name writes nothing.
class IX_XML_EXPORT MediaControlMarshaller : public XmlFamilyMarshaller {
  public:
    MediaControlMarshaller();

    /// @name Each gives up the document when what is below it fails. @return 1, or 0.
    /// @{
    int AddMediaControlElementToXml(ix_media_control* element);
    int AddVcPrimitiveElementToXml(ix_vc_primitive* primitive);
    int AddToEncoderElementToXml(ix_to_encoder* toEncoder);
    /// @}
    /// @return 1, or 0 for NULL, and for an element that is not present.
    int AddEmptyElementToXml(ix_empty_element_type* element);
};

class IX_XML_EXPORT MediaControlContext : public XmlFamilyContext {
  public:
    MediaControlContext();
};

#endif
