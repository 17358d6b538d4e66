/// @file
/// XCAP error (RFC 4825, section 11.2): why an XCAP server refused a change, the body of a 409 response.
///
/// - Root element: `xcap-error`, with one element for the error condition, which may carry a `phrase` for people. Two
///   conditions have details: `no-parent` an `ancestor`, `uniqueness-failure` the values that `exists` already.
/// - Namespace: urn:ietf:params:xml:ns:xcap-error. It is not expected; it is written as the default namespace.
/// - Prefixes: removed. An element `error-element` is seen through: what is in it counts as if it were not there.
/// - Read and written, with XML declaration. A phrase of the root is read and not written. The contents of `extension`,
///   and all other attributes and elements, are lost. Of several conditions the last one is kept.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_XCAP_ERROR_H
#define IX_XML_XCAP_ERROR_H

#include "XmlFamily.h"

/// What carries a phrase: the root, and every error condition but `extension`.
class IX_XML_EXPORT ix_phraseType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ~ix_phraseType() override { ixRelease(*this, kClass); }

    /// Copies `phrase`; NULL clears it. @return 1, or 0 without memory, the earlier phrase kept.
    int setPhraseValue(const char* phrase) { return ixSetText(mPhrase, phrase); }

    char* mPhrase = nullptr;  ///< Owned: the error in words for people; NULL: not set.

  protected:
    explicit ix_phraseType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// The element `xcap-error`.
class IX_XML_EXPORT ix_xcap_error : public ix_phraseType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_XCAP_ERROR, class XcapErrorDataBinder>;

    ix_xcap_error() : ix_phraseType(kClass) {}
    ~ix_xcap_error() override { ixRelease(*this, kClass); }

    /// Takes over an object of one of the classes below but `ix_exists`; an earlier one is deleted. NULL: none.
    /// @return 1.
    int setErrorValue(XMLElement* error) { return ixSetChild(mError, error); }

    XMLElement* mError = nullptr;  ///< Owned: the error condition. An object of any other class is not written. NULL:
                                   ///< not set.
};

/// The element `extension`: a condition of the server's own, of which nothing but its presence is kept.
class IX_XML_EXPORT ix_extension : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_extension() : XmlDescribedElement(kClass) {}
};

/// The element `schema-validation-error`: the document would not fit its schema.
class IX_XML_EXPORT ix_schema_validation_error : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_schema_validation_error() : ix_phraseType(kClass) {}
};

/// The element `not-xml-frag`: the body is no XML element.
class IX_XML_EXPORT ix_not_xml_frag : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_not_xml_frag() : ix_phraseType(kClass) {}
};

/// The element `no-parent`: there is nothing into which the element or document could be put.
class IX_XML_EXPORT ix_no_parent : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_no_parent() : ix_phraseType(kClass) {}
    ~ix_no_parent() override { ixRelease(*this, kClass); }

    /// Copies `ancestor`; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setAncestorValue(const char* ancestor) { return ixSetText(mAncestor, ancestor); }

    char* mAncestor = nullptr;  ///< Owned: URI of the closest ancestor that does exist; NULL: not set.
};

/// The element `cannot-insert`: the request would not be idempotent.
class IX_XML_EXPORT ix_cannot_insert : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_cannot_insert() : ix_phraseType(kClass) {}
};

/// The element `not-xml-att-value`: the body is no attribute value.
class IX_XML_EXPORT ix_not_xml_att_value : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_not_xml_att_value() : ix_phraseType(kClass) {}
};

/// The element `exists` of a uniqueness failure: one value in use.
class IX_XML_EXPORT ix_exists : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_exists() : XmlDescribedElement(kClass) {}
    ~ix_exists() override { ixRelease(*this, kClass); }

    /// Copies `field`; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setFieldValue(const char* field) { return ixSetText(mField, field); }
    /// Takes over a list of texts; an earlier one is deleted. NULL: none. @return 1.
    int setAltValueListValue(IxSingleElementList* list) { return ixSetList(*this, mAltValueList, list); }
    /// Appends a copy of `value`. @return 1, or 0 for NULL or without memory.
    int addAltValue(const char* value) { return ixAddText(*this, mAltValueList, value); }

    char* mField = nullptr;  ///< Owned: node selector of the element or attribute that has the value; NULL: not set.
    IxSingleElementList* mAltValueList = nullptr;  ///< Owned texts: values that are free; NULL: none.
};

/// The element `uniqueness-failure`: values that have to be unique are in use.
class IX_XML_EXPORT ix_uniqueness_failure : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_uniqueness_failure() : ix_phraseType(kClass) {}
    ~ix_uniqueness_failure() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_exists`; an earlier one is deleted. NULL: none. @return 1.
    int setExistsListValue(IxSingleElementList* list) { return ixSetList(*this, mExistsList, list); }
    /// Appends an object, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addExists(ix_exists* exists) { return ixAdd(*this, mExistsList, exists); }

    IxSingleElementList* mExistsList = nullptr;  ///< Owned `ix_exists`; NULL: none.
};

/// The element `not-well-formed`: the body is no well-formed XML.
class IX_XML_EXPORT ix_not_well_formed : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_not_well_formed() : ix_phraseType(kClass) {}
};

/// The element `constraint-failure`: the document would break a rule of its application usage.
class IX_XML_EXPORT ix_constraint_failure : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_constraint_failure() : ix_phraseType(kClass) {}
};

/// The element `cannot-delete`: the request would not be idempotent.
class IX_XML_EXPORT ix_cannot_delete : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_cannot_delete() : ix_phraseType(kClass) {}
};

/// The element `not-utf-8`: the body is in another encoding.
class IX_XML_EXPORT ix_not_utf_8 : public ix_phraseType {
  public:
    static const XmlClass kClass;

    ix_not_utf_8() : ix_phraseType(kClass) {}
};

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT XcapErrorDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_xcap_error`.
    XMLElement* CreateRootElement() override;
    ix_extension* CreateExtensionElement();
    ix_not_utf_8* CreateNot_utf_8Element();
    ix_cannot_delete* CreateCannot_deleteElement();
    ix_constraint_failure* CreateConstraint_failureElement();
    ix_not_well_formed* CreateNot_well_formedElement();
    ix_exists* CreateExistsElement();
    ix_uniqueness_failure* CreateUniqueness_failureElement();
    ix_not_xml_att_value* CreateNot_xml_att_valueElement();
    ix_cannot_insert* CreateCannot_insertElement();
    ix_no_parent* CreateNo_parentElement();
    ix_not_xml_frag* CreateNot_xml_fragElement();
    ix_schema_validation_error* CreateSchema_validation_errorElement();
    /// An empty list, for objects that exist or for alternative values. One that is not linked is freed with
    /// `ix_xml_common_methods`.
    IxSingleElementList* CreateList();
};

class IX_XML_EXPORT XcapErrorUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    XcapErrorUnMarshaller();
};

/// Writes the XML declaration and `<xcap-error  xmlns="..."  ...>` with the error condition in it, as in
/// `<cannot-delete  phrase="...">`, `</cannot-delete>`. A condition of any other class is left out.
///
/// The writers answer 1, or 0 for NULL.
class IX_XML_EXPORT Xcap_ErrorMarshall : public XmlFamilyMarshaller {
  public:
    Xcap_ErrorMarshall();

    int AddXcap_errorElementToXml(ix_xcap_error* error);
    int AddSchema_validation_errorElementToXml(ix_schema_validation_error* condition);
    int AddNot_xml_fragElementToXml(ix_not_xml_frag* condition);
    int AddNo_parentElementToXml(ix_no_parent* condition);
    int AddCannot_insertElementToXml(ix_cannot_insert* condition);
    int AddNot_xml_att_valueElementToXml(ix_not_xml_att_value* condition);
    int AddUniqueness_failureElementToXml(ix_uniqueness_failure* condition);
    int AddExistsElementToXml(ix_exists* exists);
    int AddNot_well_formedElementToXml(ix_not_well_formed* condition);
    int AddConstraint_failureElementToXml(ix_constraint_failure* condition);
    int AddCannot_deleteElementToXml(ix_cannot_delete* condition);
    int AddNot_utf_8ElementToXml(ix_not_utf_8* condition);
    /// Without contents.
    int AddExtensionElementToXml(ix_extension* condition);

  private:
    bool StartCondition(const ix_phraseType* condition, e_XmlStrRef name, const XmlLogText& entered);
    int AddCondition(const ix_phraseType* condition, e_XmlStrRef name, const XmlLogText& entered);
};

class IX_XML_EXPORT XcapErrorContext : public XmlFamilyContext {
  public:
    XcapErrorContext();
};

#endif
